#include "pictures/jpeg_block_coder.h"

#include <bit>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace lp {

namespace {

// Bit i is set when coefficient i is not zero.
std::uint64_t NonZeroMask(const std::int16_t* c) {
#if defined(__SSE2__) || defined(_M_X64)
  const __m128i zero = _mm_setzero_si128();
  std::uint64_t mask = 0;
  for (int i = 0; i < 64; i += 16) {
    const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(c + i));
    const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(c + i + 8));
    const __m128i zeros = _mm_packs_epi16(_mm_cmpeq_epi16(a, zero), _mm_cmpeq_epi16(b, zero));
    mask |= std::uint64_t(~_mm_movemask_epi8(zeros) & 0xFFFF) << i;
  }
  return mask;
#else
  std::uint64_t mask = 0;
  for (int i = 0; i < 64; ++i) mask |= std::uint64_t(c[i] != 0) << i;
  return mask;
#endif
}

int SizeOf(int value) {
  return std::bit_width(static_cast<unsigned>(value < 0 ? -value : value));
}

}  // namespace

BlockCoder::BlockCoder(JpegOutput& out) : out_(out), tables_(GetJpegTables()) {}

void BlockCoder::WriteBlock(const std::int16_t* coefficients, int component) {
  const int table = component == 0 ? 0 : 1;  // luminance or chrominance
  const HuffmanCodes& dc = tables_.dc[table];
  const HuffmanCodes& ac = tables_.ac[table];
  const int diff = coefficients[0] - previousDc_[component];
  previousDc_[component] = coefficients[0];
  const int dcSize = SizeOf(diff);
  WriteSymbolAndValue(dc, dcSize, dcSize, diff);

  std::uint64_t rest = NonZeroMask(coefficients) & ~std::uint64_t{1};
  int last = 0;
  while (rest != 0) {
    const int k = std::countr_zero(rest);
    int run = k - last - 1;
    for (; run > 15; run -= 16) out_.WriteBits(ac.code[0xF0], ac.length[0xF0]);
    const int size = SizeOf(coefficients[k]);
    WriteSymbolAndValue(ac, run * 16 + size, size, coefficients[k]);
    last = k;
    rest &= rest - 1;
  }
  if (last != 63) out_.WriteBits(ac.code[0x00], ac.length[0x00]);
}

}  // namespace lp
