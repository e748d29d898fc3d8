#pragma once
// The byte and bit output of the encoder: a buffer that goes to the file in
// large pieces, and the bit accumulator of the entropy-coded scan.

#include <cstdint>
#include <cstring>
#include <ostream>
#include <vector>

namespace lp {

class JpegOutput {
 public:
  explicit JpegOutput(std::ostream& file);

  void PutByte(std::uint8_t byte) {
    Reserve(1);
    *next_++ = byte;
  }
  void PutWord(unsigned word) {  // 16 bits, high byte first
    PutByte(static_cast<std::uint8_t>(word >> 8));
    PutByte(static_cast<std::uint8_t>(word));
  }
  void PutBytes(const std::uint8_t* bytes, std::size_t count);

  // Makes room for `count` bytes, so that the scan need not check per byte.
  void Reserve(std::size_t count) {
    if (static_cast<std::size_t>(end_ - next_) < count) Flush();
  }

  // Appends the low `count` bits of `value` (count under 32, no higher bits
  // set) to the scan; a 00 byte follows every FF byte that goes out. The
  // caller reserves room first.
  void WriteBits(std::uint32_t value, int count) {
    accumulator_ = (accumulator_ << count) | value;
    bitCount_ += count;
    if (bitCount_ >= 32) {
      bitCount_ -= 32;
      EmitWord(static_cast<std::uint32_t>(accumulator_ >> bitCount_));
    }
  }

  // Pads the scan to a whole byte with zero bits, writes the end-of-image
  // marker and hands everything to the file. False when the file failed.
  bool FinishFile();

 private:
  void EmitWord(std::uint32_t word) {
    // A byte equal to FF shows as a zero byte of ~word.
    const std::uint32_t inverted = ~word;
    if (((inverted - 0x01010101u) & word & 0x80808080u) == 0) {
      const std::uint8_t bytes[4] = {
          static_cast<std::uint8_t>(word >> 24), static_cast<std::uint8_t>(word >> 16),
          static_cast<std::uint8_t>(word >> 8), static_cast<std::uint8_t>(word)};
      std::memcpy(next_, bytes, 4);
      next_ += 4;
    } else {
      for (int shift = 24; shift >= 0; shift -= 8)
        EmitByte(static_cast<std::uint8_t>(word >> shift));
    }
  }
  void EmitByte(std::uint8_t byte) {
    *next_++ = byte;
    if (byte == 0xFF) *next_++ = 0;
  }
  void Flush();

  std::ostream& file_;
  std::vector<std::uint8_t> buffer_;
  std::uint8_t* next_;
  std::uint8_t* end_;
  std::uint64_t accumulator_ = 0;
  int bitCount_ = 0;
};

}  // namespace lp
