#pragma once
// Saving a bitmap as a baseline JFIF file with the program's own encoder.
//
// The option word: the low 8 bits are the quality reduction value Q (0 keeps
// the base tables, anything above 100 counts as 100, which gives all-one
// tables); 256 samples luminance twice horizontally, 512 twice vertically;
// 1024 writes one grey component and ignores the sampling bits. Bit 2048 is
// not used by this encoder: the picture dialog never sets it.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace lp {

// How the three bytes of a pixel are ordered.
enum class PixelOrder { kBgr, kRgb };

enum JpegOption : std::uint32_t {
  kJpegQualityMask = 0xFF,
  kJpegLumaTwiceHorizontally = 256,
  kJpegLumaTwiceVertically = 512,
  kJpegGrey = 1024,
};

// What the encoder reads of a device-independent bitmap's header. Rows are
// stored bottom up when height > 0 and top down when height < 0, as GDI does.
struct BitmapHeader {
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::uint16_t bitCount = 24;  // only 24-bit blue, green, red pixels are encoded
};

// A raw bitmap as GDI hands it out: its header and height x stride bytes.
struct Picture {
  BitmapHeader header;
  std::vector<std::uint8_t> bits;
};

// The largest width and height written. The frame header could hold 65535,
// but common decoders refuse anything above 65500, and a file the teacher
// cannot open is worse than a clear refusal.
inline constexpr std::int64_t kMaxJpegSide = 65500;

// "图片太大：W×H 像素，JPEG 图片每边最多 65500 像素。"
std::u16string PictureTooLargeText(std::int64_t width, std::int64_t height);

// Bytes per bitmap row: rows are padded to whole 32-bit words.
std::size_t BitmapStride(std::int32_t width, std::uint16_t bitCount);

// Encodes `bits` (rows of BitmapStride bytes) into the file `path` (UTF-8).
// Returns false when the header is not a 24-bit bitmap of 1 to kMaxJpegSide
// pixels each way or the file cannot be written; a failed save leaves
// neither a partial file nor a changed earlier file at `path`.
bool EncodeBitmap(const std::uint8_t* bits, const BitmapHeader& header, const std::string& path,
                  std::uint32_t options);

// Checks that the picture holds all its rows, then encodes it.
bool SavePictureAsJPEG(const Picture& picture, const std::string& path, std::uint32_t options);

// A picture read a few rows at a time, so that a large one never sits in
// memory whole.
class RowSource {
 public:
  virtual ~RowSource() = default;
  virtual std::int64_t Width() const = 0;
  virtual std::int64_t Height() const = 0;
  // The order of the bytes ReadRows hands out: whichever the file holds,
  // so that no row is reordered on the way.
  virtual PixelOrder Order() const { return PixelOrder::kBgr; }
  // Fills the next `count` rows of pixels, top row first, each 3 * Width()
  // bytes right after the one above. False when the picture ends early or
  // is damaged.
  virtual bool ReadRows(std::uint8_t* rows, int count) = 0;
};

enum class JpegResult { kWritten, kTooLarge, kUnreadable, kUnwritable };

// Encodes the source's rows as they come, a band of 8 or 16 at a time.
// The file is the one EncodeBitmap writes for the same pixels; on any
// failure it is left as EncodeBitmap leaves it.
JpegResult EncodeRows(RowSource& source, const std::string& path, std::uint32_t options);

}  // namespace lp
