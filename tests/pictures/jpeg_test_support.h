#pragma once
// Test helpers for the JPEG writer: pictures, a reader of JPEG segments,
// portable any-map files, and the libjpeg-turbo command-line tools.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "pictures/jpeg_writer.h"

namespace lp::test {

// A picture in top-down rows of red, green, blue bytes.
struct RgbImage {
  int width = 0;
  int height = 0;
  int channels = 3;  // 1 for grey
  std::vector<std::uint8_t> samples;
};

// Smooth shading, stripes, a sharp-edged disc and noise: something of what a
// photograph or a figure puts in front of the encoder. The same for a seed.
RgbImage MakeTestImage(int width, int height, unsigned seed);

// The image as a bitmap: bottom-up blue, green, red rows padded to 4 bytes.
Picture ToBitmap(const RgbImage& image);
// The samples as numbers to compare a decoded picture with: the image's own,
// or with `grey` its exact luminance 0.299 R + 0.587 G + 0.114 B.
std::vector<double> Reference(const RgbImage& image, bool grey);

std::vector<std::uint8_t> ReadBytes(const std::filesystem::path& path);

struct Segment {
  std::uint8_t marker;                // the byte after FF
  std::vector<std::uint8_t> payload;  // without the length field
};

struct JpegParts {
  std::vector<Segment> segments;   // SOI first, SOS last
  std::vector<std::uint8_t> scan;  // the bytes between SOS and the marker ending it, as stored
  std::uint8_t endMarker = 0;      // the marker after the scan
  bool endsAtEndMarker = false;    // nothing follows that marker
};

// Splits a file into segments; the scan ends at the first FF not followed by
// 00. Empty when the file does not start with FF D8.
std::optional<JpegParts> ParseJpeg(const std::vector<std::uint8_t>& bytes);

bool WritePnm(const RgbImage& image, const std::filesystem::path& path);
std::optional<RgbImage> ReadPnm(const std::filesystem::path& path);

double Psnr(const RgbImage& decoded, const std::vector<double>& reference);

// Runs a shell command; its exit status and what it wrote to stderr.
struct ToolRun {
  int status = -1;
  std::string errors;
};
ToolRun RunTool(const std::string& command);
bool HaveTool(const std::string& name);

// A fresh directory under the test's temporary directory.
std::filesystem::path FreshDirectory(const std::string& name);

}  // namespace lp::test
