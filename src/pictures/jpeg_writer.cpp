#include "pictures/jpeg_writer.h"

#include <algorithm>
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

bool Fits(std::int64_t width, std::int64_t height) {
  return width >= 1 && width <= kMaxJpegSide && height >= 1 && height <= kMaxJpegSide;
}

bool IsEncodable(const BitmapHeader& header) {
  return header.bitCount == 24 && Fits(header.width, std::llabs(std::int64_t{header.height}));
}

std::u16string Digits(std::int64_t number) {
  const std::string ascii = std::to_string(number);
  return {ascii.begin(), ascii.end()};
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

// The headers, then the scan that `code` writes band by band.
bool WriteJpeg(const std::string& path, const JpegFrame& frame, const JpegKernels& kernels,
               const std::function<bool(ScanWriter&)>& code) {
  return WriteFileWhole(path, [&](std::ostream& file) {
    JpegOutput out(file);
    WriteHeaders(out, frame);
    ScanWriter scan(out, frame, kernels);
    return code(scan) && out.FinishFile();
  });
}

}  // namespace

std::u16string PictureTooLargeText(std::int64_t width, std::int64_t height) {
  return u"图片太大：" + Digits(width) + u"×" + Digits(height) + u" 像素，JPEG 图片每边最多 " +
         Digits(kMaxJpegSide) + u" 像素。";
}

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
  return WriteJpeg(path, frame, kernels, [&](ScanWriter& scan) {
    scan.Write(topRow, bottomUp ? -stride : stride);
    return true;
  });
}

JpegResult EncodeRowsWith(RowSource& source, const std::string& path, std::uint32_t options,
                          const JpegKernels& kernels) {
  if (!Fits(source.Width(), source.Height())) return JpegResult::kTooLarge;
  JpegFrame frame = MakeJpegFrame(
      {static_cast<std::int32_t>(source.Width()), static_cast<std::int32_t>(-source.Height()), 24},
      options);
  frame.pixels = source.Order();
  const std::size_t stride = 3 * static_cast<std::size_t>(frame.width);
  bool readable = true;
  const bool written = WriteJpeg(path, frame, kernels, [&](ScanWriter& scan) {
    std::vector<std::uint8_t> band(stride * scan.BandRows());
    for (int top = 0; readable && top < frame.height; top += scan.BandRows()) {
      const int rows = std::min(scan.BandRows(), frame.height - top);
      readable = source.ReadRows(band.data(), rows);
      if (readable) scan.WriteBand(band.data(), static_cast<std::ptrdiff_t>(stride), rows);
    }
    return readable;
  });
  if (written) return JpegResult::kWritten;
  return readable ? JpegResult::kUnwritable : JpegResult::kUnreadable;
}

JpegResult EncodeRows(RowSource& source, const std::string& path, std::uint32_t options) {
  return EncodeRowsWith(source, path, options, BestKernels());
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
