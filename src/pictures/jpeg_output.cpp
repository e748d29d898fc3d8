#include "pictures/jpeg_output.h"

namespace lp {

namespace {
constexpr std::size_t kBufferBytes = 64 * 1024;
}

JpegOutput::JpegOutput(std::ostream& file)
    : file_(file), buffer_(kBufferBytes), next_(buffer_.data()), end_(next_ + buffer_.size()) {}

void JpegOutput::PutBytes(const std::uint8_t* bytes, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) PutByte(bytes[i]);
}

void JpegOutput::Flush() {
  file_.write(reinterpret_cast<const char*>(buffer_.data()), next_ - buffer_.data());
  next_ = buffer_.data();
}

bool JpegOutput::FinishFile() {
  Reserve(16);
  const int padding = (8 - bitCount_ % 8) % 8;
  accumulator_ <<= padding;  // the last byte is filled up with zero bits
  bitCount_ += padding;
  while (bitCount_ > 0) {
    bitCount_ -= 8;
    EmitByte(static_cast<std::uint8_t>(accumulator_ >> bitCount_));
  }
  PutWord(0xFFD9);
  Flush();
  file_.flush();
  return static_cast<bool>(file_);
}

}  // namespace lp
