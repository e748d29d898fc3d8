#include "pictures/jpeg_kernels.h"

#if defined(__GNUC__) && (defined(__x86_64__) || defined(__i386__))
#include <immintrin.h>

#include <algorithm>

#define LP_AVX2 __attribute__((target("avx2")))

namespace lp {

namespace {

// Byte picks that spread one 16-byte lane of four blue, green, red pixels
// into four 32-bit integers of one colour (0x80 zeroes a byte).
#define LP_PICK(c)                                                                               \
  _mm256_setr_epi8(c, -128, -128, -128, c + 3, -128, -128, -128, c + 6, -128, -128, -128, c + 9, \
                   -128, -128, -128, c, -128, -128, -128, c + 3, -128, -128, -128, c + 6, -128,  \
                   -128, -128, c + 9, -128, -128, -128)

struct Pixels8 {
  __m256 b, g, r;
};

// Eight pixels from 24 bytes, blue at byte kBlue of each (0 or 2); reads 28,
// so callers keep 4 bytes of slack.
template <int kBlue>
LP_AVX2 inline Pixels8 LoadPixels(const std::uint8_t* pixels) {
  const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pixels));
  const __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pixels + 12));
  const __m256i both = _mm256_inserti128_si256(_mm256_castsi128_si256(low), high, 1);
  return {_mm256_cvtepi32_ps(_mm256_shuffle_epi8(both, LP_PICK(kBlue))),
          _mm256_cvtepi32_ps(_mm256_shuffle_epi8(both, LP_PICK(1))),
          _mm256_cvtepi32_ps(_mm256_shuffle_epi8(both, LP_PICK(2 - kBlue)))};
}

LP_AVX2 inline __m256 Mix(const Pixels8& p, float fr, float fg, float fb) {
  return _mm256_add_ps(
      _mm256_add_ps(_mm256_mul_ps(_mm256_set1_ps(fr), p.r), _mm256_mul_ps(_mm256_set1_ps(fg), p.g)),
      _mm256_mul_ps(_mm256_set1_ps(fb), p.b));
}

// Whole groups of eight of the `count` pixels whose 28-byte read stays
// inside the `readable` pixels.
inline int VectorPixels(int count, int readable) {
  const int whole = std::min(count, readable - 2);
  return whole > 0 ? whole / 8 * 8 : 0;
}

template <int kBlue>
LP_AVX2 void ConvertColourIn(const std::uint8_t* pixels, int vectorCount, float* y, float* cb,
                             float* cr) {
  const __m256 centre = _mm256_set1_ps(128.0f);
  for (int i = 0; i < vectorCount; i += 8) {
    const Pixels8 p = LoadPixels<kBlue>(pixels + 3 * i);
    _mm256_storeu_ps(y + i, _mm256_sub_ps(Mix(p, kYR, kYG, kYB), centre));
    _mm256_storeu_ps(cb + i, Mix(p, kCbR, kCbG, kCbB));
    _mm256_storeu_ps(cr + i, Mix(p, kCrR, kCrG, kCrB));
  }
}

template <int kBlue>
LP_AVX2 void ConvertGreyIn(const std::uint8_t* pixels, int vectorCount, float* y) {
  const __m256 centre = _mm256_set1_ps(128.0f);
  for (int i = 0; i < vectorCount; i += 8) {
    const Pixels8 p = LoadPixels<kBlue>(pixels + 3 * i);
    _mm256_storeu_ps(y + i, _mm256_sub_ps(Mix(p, kYR, kYG, kYB), centre));
  }
}

LP_AVX2 void ConvertColour(const std::uint8_t* pixels, PixelOrder order, int count, int readable,
                           float* y, float* cb, float* cr) {
  const int vectorCount = VectorPixels(count, readable);
  if (order == PixelOrder::kBgr) {
    ConvertColourIn<0>(pixels, vectorCount, y, cb, cr);
  } else {
    ConvertColourIn<2>(pixels, vectorCount, y, cb, cr);
  }
  PlainKernels().convertColour(pixels + 3 * vectorCount, order, count - vectorCount,
                               readable - vectorCount, y + vectorCount, cb + vectorCount,
                               cr + vectorCount);
}

LP_AVX2 void ConvertGrey(const std::uint8_t* pixels, PixelOrder order, int count, int readable,
                         float* y) {
  const int vectorCount = VectorPixels(count, readable);
  if (order == PixelOrder::kBgr) {
    ConvertGreyIn<0>(pixels, vectorCount, y);
  } else {
    ConvertGreyIn<2>(pixels, vectorCount, y);
  }
  PlainKernels().convertGrey(pixels + 3 * vectorCount, order, count - vectorCount,
                             readable - vectorCount, y + vectorCount);
}

LP_AVX2 inline __m256 Times(float c, __m256 v) {
  return _mm256_mul_ps(_mm256_set1_ps(c), v);
}

// Eight-point transforms of the eight columns of x[0..7] (one row each), the
// outputs of each column written as rows: x[k] becomes frequency k.
LP_AVX2 inline void TransformColumnsToRows(__m256* x) {
  const __m256 s0 = _mm256_add_ps(x[0], x[7]), s1 = _mm256_add_ps(x[1], x[6]);
  const __m256 s2 = _mm256_add_ps(x[2], x[5]), s3 = _mm256_add_ps(x[3], x[4]);
  const __m256 d0 = _mm256_sub_ps(x[0], x[7]), d1 = _mm256_sub_ps(x[1], x[6]);
  const __m256 d2 = _mm256_sub_ps(x[2], x[5]), d3 = _mm256_sub_ps(x[3], x[4]);
  const __m256 e0 = _mm256_add_ps(s0, s3), e1 = _mm256_add_ps(s1, s2);
  const __m256 e2 = _mm256_sub_ps(s0, s3), e3 = _mm256_sub_ps(s1, s2);
  x[0] = Times(kHalfCos4, _mm256_add_ps(e0, e1));
  x[4] = Times(kHalfCos4, _mm256_sub_ps(e0, e1));
  x[2] = _mm256_add_ps(Times(kHalfCos2, e2), Times(kHalfCos6, e3));
  x[6] = _mm256_sub_ps(Times(kHalfCos6, e2), Times(kHalfCos2, e3));
  x[1] = _mm256_add_ps(_mm256_add_ps(Times(kHalfCos1, d0), Times(kHalfCos3, d1)),
                       _mm256_add_ps(Times(kHalfCos5, d2), Times(kHalfCos7, d3)));
  x[3] = _mm256_sub_ps(_mm256_sub_ps(Times(kHalfCos3, d0), Times(kHalfCos7, d1)),
                       _mm256_add_ps(Times(kHalfCos1, d2), Times(kHalfCos5, d3)));
  x[5] = _mm256_add_ps(_mm256_sub_ps(Times(kHalfCos5, d0), Times(kHalfCos1, d1)),
                       _mm256_add_ps(Times(kHalfCos7, d2), Times(kHalfCos3, d3)));
  x[7] = _mm256_add_ps(_mm256_sub_ps(Times(kHalfCos7, d0), Times(kHalfCos5, d1)),
                       _mm256_sub_ps(Times(kHalfCos3, d2), Times(kHalfCos1, d3)));
}

// Pairs, then quads, then 128-bit halves: the usual three-step transpose.
LP_AVX2 inline void Transpose(__m256* x) {
  __m256 t[8], u[8];
#pragma GCC unroll 8
  for (int i = 0; i < 8; i += 2) {
    t[i] = _mm256_unpacklo_ps(x[i], x[i + 1]);
    t[i + 1] = _mm256_unpackhi_ps(x[i], x[i + 1]);
  }
  // u[4 * half + 0..3] hold rows 4 * half to 4 * half + 3 of the columns
  // 0|4, 1|5, 2|6, 3|7.
#pragma GCC unroll 8
  for (int i = 0; i < 8; i += 4) {
    u[i] = _mm256_shuffle_ps(t[i], t[i + 2], _MM_SHUFFLE(1, 0, 1, 0));
    u[i + 1] = _mm256_shuffle_ps(t[i], t[i + 2], _MM_SHUFFLE(3, 2, 3, 2));
    u[i + 2] = _mm256_shuffle_ps(t[i + 1], t[i + 3], _MM_SHUFFLE(1, 0, 1, 0));
    u[i + 3] = _mm256_shuffle_ps(t[i + 1], t[i + 3], _MM_SHUFFLE(3, 2, 3, 2));
  }
#pragma GCC unroll 8
  for (int k = 0; k < 4; ++k) {
    x[k] = _mm256_permute2f128_ps(u[k], u[k + 4], 0x20);
    x[k + 4] = _mm256_permute2f128_ps(u[k], u[k + 4], 0x31);
  }
}

LP_AVX2 void TransformBlock(const float* samples, std::ptrdiff_t stride, const float* divisors,
                            std::int16_t* coefficients) {
  __m256 x[8];
#pragma GCC unroll 8
  for (int i = 0; i < 8; ++i) x[i] = _mm256_loadu_ps(samples + i * stride);
  TransformColumnsToRows(x);
  Transpose(x);
  TransformColumnsToRows(x);
  __m256i q[8];
#pragma GCC unroll 8
  for (int i = 0; i < 8; ++i) {
    const __m256 rounded = _mm256_round_ps(x[i], _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
    q[i] = _mm256_cvttps_epi32(_mm256_div_ps(rounded, _mm256_loadu_ps(divisors + 8 * i)));
  }
#pragma GCC unroll 8
  for (int i = 0; i < 8; i += 2) {
    // packs works per 128-bit lane; the permute puts the two rows back in order.
    const __m256i packed = _mm256_permute4x64_epi64(_mm256_packs_epi32(q[i], q[i + 1]), 0xD8);
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(coefficients + 8 * i), packed);
  }
}

}  // namespace

const JpegKernels* Avx2Kernels() {
  static const JpegKernels kernels{"avx2", ConvertColour, ConvertGrey, TransformBlock};
  return __builtin_cpu_supports("avx2") ? &kernels : nullptr;
}

}  // namespace lp

#else

namespace lp {
const JpegKernels* Avx2Kernels() {
  return nullptr;
}
}  // namespace lp

#endif
