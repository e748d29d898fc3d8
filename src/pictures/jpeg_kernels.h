#pragma once
// The encoder's inner loops, in a plain version and, where the processor
// offers it, a vector version chosen at run time. Both do the same single
// precision operations in the same order, so they write identical files.

#include <cstddef>
#include <cstdint>

#include "pictures/jpeg_writer.h"

namespace lp {

struct JpegKernels {
  const char* name;
  // `count` pixels of three bytes in `order` to Y, Cb, Cr samples centred
  // on 0: Y - 128, Cb and Cr as they come. The row goes on for `readable`
  // pixels (at least `count`), which vector loads may read past `count`.
  void (*convertColour)(const std::uint8_t* pixels, PixelOrder order, int count, int readable,
                        float* y, float* cb, float* cr);
  // The same for the Y samples alone.
  void (*convertGrey)(const std::uint8_t* pixels, PixelOrder order, int count, int readable,
                      float* y);
  // Forward DCT of the 8x8 samples at `samples` (rows `stride` floats apart),
  // each coefficient rounded to the nearest integer, then divided by its
  // divisor truncating toward zero. Coefficients and divisors are stored
  // column-major: index = horizontal frequency * 8 + vertical frequency.
  void (*transformBlock)(const float* samples, std::ptrdiff_t stride, const float* divisors,
                         std::int16_t* coefficients);
};

const JpegKernels& PlainKernels();
// Null when the processor or the build lacks AVX2.
const JpegKernels* Avx2Kernels();
// The fastest kernels this processor runs.
const JpegKernels& BestKernels();

// Colour factors, in single precision: Cb = (B - Y) / 1.772 and
// Cr = (R - Y) / 1.402 become factors of R, G and B by those divisions.
inline constexpr float kYR = 0.299f, kYG = 0.587f, kYB = 0.114f;
inline constexpr float kCbR = -0.299f / 1.772f, kCbG = -0.587f / 1.772f,
                       kCbB = (1.0f - 0.114f) / 1.772f;
inline constexpr float kCrR = (1.0f - 0.299f) / 1.402f, kCrG = -0.587f / 1.402f,
                       kCrB = -0.114f / 1.402f;

// Half the cosines cos(k pi / 16), k = 1..7: each pass of the transform
// halves its outputs, and halving the constants instead gives the same bits,
// since scaling by a power of two is exact.
inline constexpr float kHalfCos1 = 0.5f * 0.98078528f, kHalfCos2 = 0.5f * 0.923879533f,
                       kHalfCos3 = 0.5f * 0.831469612f, kHalfCos4 = 0.5f * 0.707106781f,
                       kHalfCos5 = 0.5f * 0.555570233f, kHalfCos6 = 0.5f * 0.382683432f,
                       kHalfCos7 = 0.5f * 0.195090322f;

}  // namespace lp
