#include "jpeg_test_support.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace lp::test {

namespace fs = std::filesystem;

RgbImage MakeTestImage(int width, int height, unsigned seed) {
  RgbImage image{width, height, 3, std::vector<std::uint8_t>(3 * std::size_t(width) * height)};
  unsigned noise = seed * 2654435761u + 1;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const double dx = x - width * 0.6, dy = y - height * 0.4;
      const bool inDisc =
          dx * dx + dy * dy < 0.05 * (double(width) * width + double(height) * height);
      for (int c = 0; c < 3; ++c) {
        noise = noise * 1664525u + 1013904223u;
        double v = 128 + 70 * std::sin(0.05 * x * (c + 1) + 0.03 * y) + 30 * std::cos(0.4 * y + c);
        v += inDisc ? 40.0 * (c - 1) : 0.0;
        v += static_cast<double>(noise >> 28) - 7.5;
        image.samples[(std::size_t(y) * width + x) * 3 + c] =
            static_cast<std::uint8_t>(std::clamp(v, 0.0, 255.0));
      }
    }
  }
  return image;
}

Picture ToBitmap(const RgbImage& image) {
  Picture picture;
  picture.header = {image.width, image.height, 24};
  const std::size_t stride = BitmapStride(image.width, 24);
  picture.bits.assign(stride * image.height, 0xCD);  // row padding the encoder must skip
  for (int y = 0; y < image.height; ++y) {
    std::uint8_t* row = &picture.bits[stride * (image.height - 1 - y)];
    for (int x = 0; x < image.width; ++x) {
      const std::uint8_t* rgb = &image.samples[(std::size_t(y) * image.width + x) * 3];
      row[3 * x] = rgb[2];
      row[3 * x + 1] = rgb[1];
      row[3 * x + 2] = rgb[0];
    }
  }
  return picture;
}

std::vector<double> Reference(const RgbImage& image, bool grey) {
  if (!grey) return {image.samples.begin(), image.samples.end()};
  std::vector<double> luminance;
  for (std::size_t i = 0; i < image.samples.size(); i += 3) {
    luminance.push_back(0.299 * image.samples[i] + 0.587 * image.samples[i + 1] +
                        0.114 * image.samples[i + 2]);
  }
  return luminance;
}

std::vector<std::uint8_t> ReadBytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::optional<JpegParts> ParseJpeg(const std::vector<std::uint8_t>& bytes) {
  if (bytes.size() < 4 || bytes[0] != 0xFF || bytes[1] != 0xD8) return std::nullopt;
  JpegParts parts;
  parts.segments.push_back({0xD8, {}});
  std::size_t at = 2;
  while (parts.segments.back().marker != 0xDA) {
    if (at + 4 > bytes.size() || bytes[at] != 0xFF) return std::nullopt;
    const std::size_t length = bytes[at + 2] * 256 + bytes[at + 3];
    if (length < 2 || at + 2 + length > bytes.size()) return std::nullopt;
    parts.segments.push_back(
        {bytes[at + 1], {bytes.begin() + at + 4, bytes.begin() + at + 2 + length}});
    at += 2 + length;
  }
  std::size_t end = at;
  while (end + 1 < bytes.size() && !(bytes[end] == 0xFF && bytes[end + 1] != 0x00)) {
    end += bytes[end] == 0xFF ? 2 : 1;
  }
  if (end + 1 >= bytes.size()) return std::nullopt;
  parts.scan.assign(bytes.begin() + at, bytes.begin() + end);
  at = end;
  parts.endMarker = bytes[at + 1];
  parts.endsAtEndMarker = at + 2 == bytes.size();
  return parts;
}

bool WritePnm(const RgbImage& image, const fs::path& path) {
  std::ofstream file(path, std::ios::binary);
  file << (image.channels == 3 ? "P6\n" : "P5\n") << image.width << ' ' << image.height
       << "\n255\n";
  file.write(reinterpret_cast<const char*>(image.samples.data()),
             static_cast<std::streamsize>(image.samples.size()));
  return static_cast<bool>(file);
}

std::optional<RgbImage> ReadPnm(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::string magic;
  int maxValue = 0;
  RgbImage image;
  file >> magic >> image.width >> image.height >> maxValue;
  if (!file || (magic != "P6" && magic != "P5") || maxValue != 255) return std::nullopt;
  file.get();  // the single white space before the samples
  image.channels = magic == "P6" ? 3 : 1;
  image.samples.resize(std::size_t(image.width) * image.height * image.channels);
  file.read(reinterpret_cast<char*>(image.samples.data()),
            static_cast<std::streamsize>(image.samples.size()));
  if (!file) return std::nullopt;
  return image;
}

double Psnr(const RgbImage& decoded, const std::vector<double>& reference) {
  double squares = 0;
  for (std::size_t i = 0; i < reference.size(); ++i) {
    const double d = decoded.samples[i] - reference[i];
    squares += d * d;
  }
  return 10 * std::log10(255.0 * 255.0 * static_cast<double>(reference.size()) / squares);
}

ToolRun RunTool(const std::string& command) {
  const fs::path errors = FreshDirectory("tool") / "stderr.txt";
  ToolRun run;
  const int status = std::system((command + " 2>'" + errors.string() + "'").c_str());
  run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  std::ifstream file(errors);
  std::stringstream text;
  text << file.rdbuf();
  run.errors = text.str();
  return run;
}

bool HaveTool(const std::string& name) {
  return std::system(("command -v " + name + " >/dev/null 2>&1").c_str()) == 0;
}

fs::path FreshDirectory(const std::string& name) {
  static int counter = 0;
  const fs::path dir =
      fs::path(::testing::TempDir()) /
      ("lp_jpeg_" + std::to_string(::getpid()) + "_" + name + "_" + std::to_string(++counter));
  fs::remove_all(dir);
  fs::create_directories(dir);
  return dir;
}

}  // namespace lp::test
