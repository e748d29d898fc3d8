#include "pictures/jpeg_writer.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>

#include "pictures/jpeg_encoder.h"
#include "pictures/jpeg_frame.h"
#include "pictures/jpeg_output.h"
#include "pictures/jpeg_scan.h"

namespace lp {

namespace {

namespace fs = std::filesystem;

constexpr std::int64_t kMaxSide = 65535;  // the frame header holds 16-bit sizes

bool IsEncodable(const BitmapHeader& header) {
  const std::int64_t height = std::llabs(std::int64_t{header.height});
  return header.bitCount == 24 && header.width >= 1 && header.width <= kMaxSide && height >= 1 &&
         height <= kMaxSide;
}

// Writes into a temporary file beside `path` and puts it in place only when
// everything went out, so that a failure leaves no partial file and keeps an
// earlier file of that name.
bool WriteFileWhole(const std::string& path, const std::function<bool(std::ostream&)>& write) {
  const fs::path target(std::u8string(path.begin(), path.end()));
  fs::path partial = target;
  partial += ".part";
  bool written = false;
  try {
    std::ofstream file(partial, std::ios::binary | std::ios::trunc);
    written = file && write(file);
    file.close();
    written = written && !file.fail();
  } catch (const std::exception&) {
    written = false;  // out of memory, or the stream threw: the file stays incomplete
  }
  std::error_code error;
  if (written) fs::rename(partial, target, error);
  if (!written || error) {
    fs::remove(partial, error);
    return false;
  }
  return true;
}

}  // namespace

std::size_t BitmapStride(std::int32_t width, std::uint16_t bitCount) {
  return ((static_cast<std::size_t>(width) * bitCount + 31) & ~std::size_t{31}) / 8;
}

bool EncodeBitmapWith(const std::uint8_t* bits, const BitmapHeader& header, const std::string& path,
                      std::uint32_t options, const JpegKernels& kernels) {
  if (bits == nullptr || !IsEncodable(header)) return false;
  const JpegFrame frame = MakeJpegFrame(header, options);
  const auto stride = static_cast<std::ptrdiff_t>(BitmapStride(header.width, header.bitCount));
  const bool bottomUp = header.height > 0;
  const std::uint8_t* topRow = bottomUp ? bits + (frame.height - 1) * stride : bits;
  return WriteFileWhole(path, [&](std::ostream& file) {
    JpegOutput out(file);
    WriteHeaders(out, frame);
    ScanWriter(out, frame, kernels).Write(topRow, bottomUp ? -stride : stride);
    return out.FinishFile();
  });
}

bool EncodeBitmap(const std::uint8_t* bits, const BitmapHeader& header, const std::string& path,
                  std::uint32_t options) {
  return EncodeBitmapWith(bits, header, path, options, BestKernels());
}

bool SavePictureAsJPEG(const Picture& picture, const std::string& path, std::uint32_t options) {
  const BitmapHeader& header = picture.header;
  if (!IsEncodable(header)) return false;
  const std::size_t rows = static_cast<std::size_t>(std::llabs(std::int64_t{header.height}));
  if (picture.bits.size() < rows * BitmapStride(header.width, header.bitCount)) return false;
  return EncodeBitmap(picture.bits.data(), header, path, options);
}

}  // namespace lp
