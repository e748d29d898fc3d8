#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <limits>
#include <vector>

#include "pictures/picture_rows.h"

namespace lp {

namespace {

// Past this a header number is nonsense; it is still far above any side the
// writer takes, so the refusal can name the size.
constexpr std::int64_t kLargestNumber = 1'000'000'000;

// A header number after blanks and `#` comments; false past kLargestNumber.
bool ReadNumber(std::istream& in, std::int64_t& number) {
  int c = in.get();
  while (std::isspace(c) || c == '#') {
    if (c == '#') in.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    c = in.get();
  }
  if (!std::isdigit(c)) return false;
  number = 0;
  for (; std::isdigit(c); c = in.get()) {
    number = number * 10 + (c - '0');
    if (number > kLargestNumber) return false;
  }
  return std::isspace(c);  // one blank ends the number; after the last, the samples start
}

class NetpbmRows final : public RowSource {
 public:
  NetpbmRows(std::ifstream file, int channels, std::int64_t width, std::int64_t height,
             unsigned maxValue)
      : file_(std::move(file)),
        channels_(channels),
        width_(width),
        height_(height),
        maxValue_(maxValue),
        raw_(RawRowBytes()) {}

  std::int64_t Width() const override { return width_; }
  std::int64_t Height() const override { return height_; }
  PixelOrder Order() const override { return PixelOrder::kRgb; }

  bool ReadRows(std::uint8_t* rows, int count) override {
    if (raw_.empty()) return ReadColourBytes(rows, count);
    for (int r = 0; r < count; ++r) {
      if (!file_.read(reinterpret_cast<char*>(raw_.data()), std::ssize(raw_))) return false;
      ScaleRow(rows + r * 3 * width_);
    }
    return true;
  }

 private:
  int SampleBytes() const { return maxValue_ > 255 ? 2 : 1; }

  // Bytes of colour go straight into the strip; other rows go through a
  // buffer of one row.
  std::size_t RawRowBytes() const {
    if (channels_ == 3 && maxValue_ == 255) return 0;
    return static_cast<std::size_t>(width_) * channels_ * SampleBytes();
  }

  bool ReadColourBytes(std::uint8_t* rows, int count) {
    return static_cast<bool>(file_.read(reinterpret_cast<char*>(rows), 3 * width_ * count));
  }

  unsigned Sample(std::size_t i) const {
    if (SampleBytes() == 1) return raw_[i];
    return raw_[2 * i] << 8 | raw_[2 * i + 1];
  }

  std::uint8_t Scaled(std::size_t i) const {
    const unsigned value = std::min(Sample(i), maxValue_);
    return static_cast<std::uint8_t>((value * 255u + maxValue_ / 2) / maxValue_);
  }

  void ScaleRow(std::uint8_t* rgb) const {
    const std::size_t samples = static_cast<std::size_t>(width_) * 3;
    for (std::size_t i = 0; i < samples; ++i) rgb[i] = Scaled(channels_ == 1 ? i / 3 : i);
  }

  std::ifstream file_;
  int channels_;
  std::int64_t width_, height_;
  unsigned maxValue_;
  std::vector<std::uint8_t> raw_;
};

}  // namespace

std::unique_ptr<RowSource> OpenNetpbmRows(const std::string& path) {
  std::ifstream file(std::filesystem::path(std::u8string(path.begin(), path.end())),
                     std::ios::binary);
  char magic[2] = {};
  file.read(magic, 2);
  if (!file || magic[0] != 'P' || (magic[1] != '5' && magic[1] != '6')) return nullptr;
  std::int64_t width = 0, height = 0, maxValue = 0;
  if (!ReadNumber(file, width) || !ReadNumber(file, height) || !ReadNumber(file, maxValue) ||
      width < 1 || height < 1 || maxValue < 1 || maxValue > 65535) {
    return nullptr;
  }
  return std::make_unique<NetpbmRows>(std::move(file), magic[1] == '6' ? 3 : 1, width, height,
                                      static_cast<unsigned>(maxValue));
}

}  // namespace lp
