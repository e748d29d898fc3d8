// Encodes a 4096x4096 photograph (4:4:4, Q 0, float DCT) with our writer and
// with libjpeg-turbo given the same tables, SIMD on and, in a second run of
// this program under JSIMD_FORCENONE=1, SIMD off. Prints megapixels per
// second, the ratios, the encoder's peak memory and the PSNR of both files.

#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "libjpeg_side.h"
#include "photograph.h"
#include "pictures/jpeg_encoder.h"

namespace {

namespace fs = std::filesystem;
using lp::Picture;

constexpr int kSide = 4096;
constexpr int kRuns = 5;

// Processor time of this process: other work on a shared machine slows the
// wall clock far more than it slows this.
double CpuSeconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return now.tv_sec + now.tv_nsec * 1e-9;
}

double BestSeconds(const std::function<bool()>& encode) {
  double best = 1e9;
  for (int run = 0; run < kRuns; ++run) {
    const double start = CpuSeconds();
    if (!encode()) {
      std::fputs("encoding failed\n", stderr);
      std::exit(1);
    }
    best = std::min(best, CpuSeconds() - start);
  }
  return best;
}

double MegapixelsPerSecond(double seconds) {
  return double(kSide) * kSide / 1e6 / seconds;
}

long StatusKilobytes(const char* field) {
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line)) {
    if (line.rfind(field, 0) == 0) return std::atol(line.c_str() + std::strlen(field));
  }
  return -1;
}

// The resident set above what it was before the encode, at its peak.
double EncoderPeakMegabytes(const Picture& picture, const std::string& path) {
  std::ofstream("/proc/self/clear_refs") << "5";  // restarts the peak count
  const long before = StatusKilobytes("VmRSS:");
  lp::EncodeBitmap(picture.bits.data(), picture.header, path, 0);
  return (StatusKilobytes("VmHWM:") - before) / 1024.0;
}

double Psnr(const Picture& picture, const std::string& jpeg) {
  const std::size_t stride = lp::BitmapStride(kSide, 24);
  const std::vector<std::uint8_t> decoded = lp::bench::LibjpegDecode(jpeg, stride);
  double squares = 0;
  for (int y = 0; y < kSide; ++y) {
    for (std::size_t i = y * stride; i < y * stride + 3 * kSide; ++i) {
      const double d = double(decoded[i]) - picture.bits[i];
      squares += d * d;
    }
  }
  return 10 * std::log10(255.0 * 255.0 * 3.0 * kSide * kSide / squares);
}

// Runs this program again with libjpeg-turbo's SIMD switched off; its speed.
double LibjpegWithoutSimd(const std::string& png) {
  const std::string command = "JSIMD_FORCENONE=1 '" + fs::read_symlink("/proc/self/exe").string() +
                              "' --libjpeg-only '" + png + "'";
  std::FILE* child = popen(command.c_str(), "r");
  double rate = 0;
  if (child == nullptr || std::fscanf(child, "%lf", &rate) != 1) rate = 0;
  if (child) pclose(child);
  return rate;
}

}  // namespace

int main(int argc, char** argv) {
  const bool libjpegOnly = argc > 1 && std::string(argv[1]) == "--libjpeg-only";
  const std::string png =
      argc > 1 + libjpegOnly ? argv[1 + libjpegOnly] : std::string(LP_KODAK_DIR) + "/kodim01.png";
  const Picture picture = lp::bench::MakePhotograph(png, kSide);
  const fs::path dir = fs::temp_directory_path() / ("bench_jpeg_" + std::to_string(getpid()));
  fs::create_directories(dir);
  const std::string ours = (dir / "ours.jpg").string(), theirs = (dir / "theirs.jpg").string();
  const auto libjpeg = [&] { return lp::bench::LibjpegEncode(picture, theirs); };
  if (libjpegOnly) {
    std::printf("%.2f\n", MegapixelsPerSecond(BestSeconds(libjpeg)));
    fs::remove_all(dir);
    return 0;
  }

  const double peak = EncoderPeakMegabytes(picture, ours);
  const auto encodeWith = [&](const lp::JpegKernels& kernels) {
    return
        [&] { return lp::EncodeBitmapWith(picture.bits.data(), picture.header, ours, 0, kernels); };
  };
  const double plain = MegapixelsPerSecond(BestSeconds(encodeWith(lp::PlainKernels())));
  const double best = MegapixelsPerSecond(BestSeconds(encodeWith(lp::BestKernels())));
  const double simd = MegapixelsPerSecond(BestSeconds(libjpeg));
  const double noSimd = LibjpegWithoutSimd(png);

  std::printf("%s tiled to %dx%d, 4:4:4, Q 0, float DCT, best of %d by processor time\n",
              fs::path(png).filename().c_str(), kSide, kSide, kRuns);
  std::printf("  lumenpad (%s loops)      %7.1f MP/s  %6.2f MB\n", lp::BestKernels().name, best,
              fs::file_size(ours) / 1e6);
  std::printf("  lumenpad (plain loops)     %7.1f MP/s\n", plain);
  std::printf("  libjpeg-turbo, SIMD        %7.1f MP/s  %6.2f MB\n", simd,
              fs::file_size(theirs) / 1e6);
  std::printf("  libjpeg-turbo, no SIMD     %7.1f MP/s\n", noSimd);
  std::printf("  ratio to libjpeg-turbo without SIMD %.2f, with SIMD %.2f\n", best / noSimd,
              best / simd);
  std::printf("  peak memory: bitmap %.1f MB + encoder %.1f MB\n", picture.bits.size() / 1048576.0,
              peak);
  std::printf("  PSNR: lumenpad %.2f dB, libjpeg-turbo %.2f dB\n", Psnr(picture, ours),
              Psnr(picture, theirs));
  fs::remove_all(dir);
  return 0;
}
