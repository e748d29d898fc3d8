#include "pictures/jpeg_kernels.h"

namespace lp {

namespace {

// kBlue is where blue lies in a pixel: 0 for blue, green, red, 2 for red,
// green, blue.
template <int kBlue>
void ConvertColourIn(const std::uint8_t* pixels, int count, float* y, float* cb, float* cr) {
  for (int i = 0; i < count; ++i, pixels += 3) {
    const float b = pixels[kBlue], g = pixels[1], r = pixels[2 - kBlue];
    y[i] = ((kYR * r + kYG * g) + kYB * b) - 128.0f;
    cb[i] = (kCbR * r + kCbG * g) + kCbB * b;
    cr[i] = (kCrR * r + kCrG * g) + kCrB * b;
  }
}

template <int kBlue>
void ConvertGreyIn(const std::uint8_t* pixels, int count, float* y) {
  for (int i = 0; i < count; ++i, pixels += 3) {
    const float b = pixels[kBlue], g = pixels[1], r = pixels[2 - kBlue];
    y[i] = ((kYR * r + kYG * g) + kYB * b) - 128.0f;
  }
}

void ConvertColour(const std::uint8_t* pixels, PixelOrder order, int count, int, float* y,
                   float* cb, float* cr) {
  if (order == PixelOrder::kBgr) {
    ConvertColourIn<0>(pixels, count, y, cb, cr);
  } else {
    ConvertColourIn<2>(pixels, count, y, cb, cr);
  }
}

void ConvertGrey(const std::uint8_t* pixels, PixelOrder order, int count, int, float* y) {
  if (order == PixelOrder::kBgr) {
    ConvertGreyIn<0>(pixels, count, y);
  } else {
    ConvertGreyIn<2>(pixels, count, y);
  }
}

// Eight-point transforms of the eight columns of `in` (row-major), each
// column's outputs written as a row of `out`: out[k * 8 + j] is frequency k of
// column j.
void TransformColumnsToRows(const float* in, std::ptrdiff_t stride, float* out) {
  for (int j = 0; j < 8; ++j) {
    const float* x = in + j;
    const float s0 = x[0] + x[7 * stride], s1 = x[stride] + x[6 * stride];
    const float s2 = x[2 * stride] + x[5 * stride], s3 = x[3 * stride] + x[4 * stride];
    const float d0 = x[0] - x[7 * stride], d1 = x[stride] - x[6 * stride];
    const float d2 = x[2 * stride] - x[5 * stride], d3 = x[3 * stride] - x[4 * stride];
    const float e0 = s0 + s3, e1 = s1 + s2, e2 = s0 - s3, e3 = s1 - s2;
    out[0 * 8 + j] = kHalfCos4 * (e0 + e1);
    out[4 * 8 + j] = kHalfCos4 * (e0 - e1);
    out[2 * 8 + j] = kHalfCos2 * e2 + kHalfCos6 * e3;
    out[6 * 8 + j] = kHalfCos6 * e2 - kHalfCos2 * e3;
    out[1 * 8 + j] = (kHalfCos1 * d0 + kHalfCos3 * d1) + (kHalfCos5 * d2 + kHalfCos7 * d3);
    out[3 * 8 + j] = (kHalfCos3 * d0 - kHalfCos7 * d1) - (kHalfCos1 * d2 + kHalfCos5 * d3);
    out[5 * 8 + j] = (kHalfCos5 * d0 - kHalfCos1 * d1) + (kHalfCos7 * d2 + kHalfCos3 * d3);
    out[7 * 8 + j] = (kHalfCos7 * d0 - kHalfCos5 * d1) + (kHalfCos3 * d2 - kHalfCos1 * d3);
  }
}

void TransformBlock(const float* samples, std::ptrdiff_t stride, const float* divisors,
                    std::int16_t* coefficients) {
  float vertical[64], transposed[64], both[64];
  TransformColumnsToRows(samples, stride, vertical);
  for (int k = 0; k < 8; ++k) {
    for (int j = 0; j < 8; ++j) transposed[j * 8 + k] = vertical[k * 8 + j];
  }
  TransformColumnsToRows(transposed, 8, both);
  // Adding and taking away 1.5 * 2^23 rounds to the nearest integer, ties
  // to even, as the vector rounding does: coefficients stay far below 2^22.
  constexpr float kRounder = 12582912.0f;
  for (int i = 0; i < 64; ++i) {
    const float rounded = (both[i] + kRounder) - kRounder;
    coefficients[i] = static_cast<std::int16_t>(static_cast<int>(rounded / divisors[i]));
  }
}

}  // namespace

const JpegKernels& PlainKernels() {
  static const JpegKernels kernels{"plain", ConvertColour, ConvertGrey, TransformBlock};
  return kernels;
}

const JpegKernels& BestKernels() {
  static const JpegKernels& best = Avx2Kernels() ? *Avx2Kernels() : PlainKernels();
  return best;
}

}  // namespace lp
