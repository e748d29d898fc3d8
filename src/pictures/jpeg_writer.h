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

// Bytes per bitmap row: rows are padded to whole 32-bit words.
std::size_t BitmapStride(std::int32_t width, std::uint16_t bitCount);

// Encodes `bits` (rows of BitmapStride bytes) into the file `path` (UTF-8).
// Returns false when the header is not a 24-bit bitmap of 1 to 65535 pixels
// each way or the file cannot be written; a failed save leaves neither a
// partial file nor a changed earlier file at `path`.
bool EncodeBitmap(const std::uint8_t* bits, const BitmapHeader& header, const std::string& path,
                  std::uint32_t options);

// Checks that the picture holds all its rows, then encodes it.
bool SavePictureAsJPEG(const Picture& picture, const std::string& path, std::uint32_t options);

}  // namespace lp
