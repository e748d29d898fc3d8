#pragma once
// Huffman coding of quantised blocks into the scan.

#include <array>
#include <cstdint>

#include "pictures/jpeg_output.h"
#include "pictures/jpeg_tables.h"

namespace lp {

class BlockCoder {
 public:
  explicit BlockCoder(JpegOutput& out);

  // Codes one block of 64 coefficients for `component` (0 luminance, 1 and
  // 2 chrominance), stored column-major as the transform writes them, in
  // zig-zag order: the DC difference from the component's previous block,
  // then runs of zeros and values, with (15, 0) for every 16 zeros before a
  // value and (0, 0) after the last value.
  void WriteBlock(const std::int16_t* columnMajor, int component);

 private:
  // Writes `symbol`'s code from `table`, followed by the `size` low bits of
  // `value`: a negative value goes as value - 1, its ones' complement.
  void WriteSymbolAndValue(const HuffmanCodes& table, int symbol, int size, int value) {
    const std::uint32_t bits =
        static_cast<std::uint32_t>(value + (value >> 31)) & ((1u << size) - 1);
    out_.WriteBits((std::uint32_t{table.code[symbol]} << size) | bits, table.length[symbol] + size);
  }

  JpegOutput& out_;
  const JpegTables& tables_;
  std::array<int, 3> previousDc_{};
};

}  // namespace lp
