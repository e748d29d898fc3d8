#include "pictures/jpeg_block_coder.h"

#include <array>
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

// kColumnMajorAt[k]: where the k-th coefficient of the zig-zag order lies.
constexpr std::array<std::uint8_t, 64> kColumnMajorAt = [] {
  std::array<std::uint8_t, 64> at{};
  for (int k = 0; k < 64; ++k) at[k] = static_cast<std::uint8_t>(ColumnMajorIndex(kZigZag[k]));
  return at;
}();

// kZigZagBits[b][byte]: the zig-zag bits of the set bits of byte b of a
// column-major mask. Eight look-ups reorder a mask where reordering the 64
// coefficients themselves would cost 64 moves a block.
constexpr std::array<std::array<std::uint64_t, 256>, 8> kZigZagBits = [] {
  std::array<int, 64> zigZagOf{};
  for (int k = 0; k < 64; ++k) zigZagOf[kColumnMajorAt[k]] = k;
  std::array<std::array<std::uint64_t, 256>, 8> bits{};
  for (int b = 0; b < 8; ++b) {
    for (int byte = 0; byte < 256; ++byte) {
      for (int i = 0; i < 8; ++i) {
        if (byte >> i & 1) bits[b][byte] |= std::uint64_t{1} << zigZagOf[8 * b + i];
      }
    }
  }
  return bits;
}();

std::uint64_t ZigZagMask(std::uint64_t columnMajorMask) {
  std::uint64_t mask = 0;
  for (int b = 0; b < 8; ++b) mask |= kZigZagBits[b][(columnMajorMask >> (8 * b)) & 0xFF];
  return mask;
}

int SizeOf(int value) {
  return std::bit_width(static_cast<unsigned>(value < 0 ? -value : value));
}

}  // namespace

BlockCoder::BlockCoder(JpegOutput& out) : out_(out), tables_(GetJpegTables()) {}

void BlockCoder::WriteBlock(const std::int16_t* columnMajor, int component) {
  const int table = component == 0 ? 0 : 1;  // luminance or chrominance
  const HuffmanCodes& dc = tables_.dc[table];
  const HuffmanCodes& ac = tables_.ac[table];
  const int diff = columnMajor[0] - previousDc_[component];
  previousDc_[component] = columnMajor[0];
  const int dcSize = SizeOf(diff);
  WriteSymbolAndValue(dc, dcSize, dcSize, diff);

  std::uint64_t rest = ZigZagMask(NonZeroMask(columnMajor)) & ~std::uint64_t{1};
  int last = 0;
  while (rest != 0) {
    const int k = std::countr_zero(rest);
    int run = k - last - 1;
    for (; run > 15; run -= 16) out_.WriteBits(ac.code[0xF0], ac.length[0xF0]);
    const int value = columnMajor[kColumnMajorAt[k]];
    const int size = SizeOf(value);
    WriteSymbolAndValue(ac, run * 16 + size, size, value);
    last = k;
    rest &= rest - 1;
  }
  if (last != 63) out_.WriteBits(ac.code[0x00], ac.length[0x00]);
}

}  // namespace lp
