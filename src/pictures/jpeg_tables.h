#pragma once
// The encoder's constant tables. The quantisation and Huffman tables come
// from two hex texts that are also the exact payloads of the DQT and DHT
// segments, so that what the encoder uses and what the file says cannot drift.

#include <array>
#include <cstdint>
#include <vector>

namespace lp {

// One Huffman table as the encoder uses it: for each symbol, its code
// (right-aligned) and the code's length in bits; a length of 0 marks a symbol
// the table does not hold.
struct HuffmanCodes {
  std::array<std::uint16_t, 256> code{};
  std::array<std::uint8_t, 256> length{};
};

struct JpegTables {
  // Byte 0 (table 0), 64 entries, byte 1 (table 1), 64 entries: the DQT
  // payload at Q = 0, entries in zig-zag order.
  std::vector<std::uint8_t> quantisationPayload;
  // The whole DHT payload: tables 00 (DC 0), 10 (AC 0), 01 (DC 1), 11 (AC 1).
  std::vector<std::uint8_t> huffmanPayload;
  std::array<HuffmanCodes, 2> dc;  // by table number
  std::array<HuffmanCodes, 2> ac;
};

// Walks the anti-diagonals of the 8x8 block, alternating direction.
constexpr std::array<std::uint8_t, 64> MakeZigZag() {
  std::array<std::uint8_t, 64> order{};
  int row = 0, column = 0;
  for (int i = 0; i < 64; ++i) {
    order[i] = static_cast<std::uint8_t>(row * 8 + column);
    const bool up = (row + column) % 2 == 0;
    if (up && column == 7) {
      ++row;
    } else if (up && row == 0) {
      ++column;
    } else if (up) {
      --row, ++column;
    } else if (row == 7) {
      ++column;
    } else if (column == 0) {
      ++row;
    } else {
      ++row, --column;
    }
  }
  return order;
}

// kZigZag[i] = position of the i-th coefficient of the zig-zag order, packed
// as row * 8 + column.
inline constexpr std::array<std::uint8_t, 64> kZigZag = MakeZigZag();

// Where the transform stores the natural position row * 8 + column: it
// writes its coefficients column-major.
constexpr int ColumnMajorIndex(int natural) {
  return (natural % 8) * 8 + natural / 8;
}

// Built on first use, once, and shared afterwards.
const JpegTables& GetJpegTables();

// The base entries of quantisation table `table` (0 luminance, 1
// chrominance) in zig-zag order, scaled for quality reduction value `q`:
// Q = 0 keeps the table, Q = 100 gives all ones.
std::array<std::uint8_t, 64> ScaledQuantisationTable(int table, int q);

}  // namespace lp
