#include <png.h>

#include <csetjmp>
#include <filesystem>
#include <fstream>
#include <vector>

#include "pictures/picture_rows.h"

namespace lp {

namespace {

// libpng reports errors by a long jump to the last setjmp. Each function
// that calls into libpng sets it first and holds nothing that needs
// destroying, so the jump skips no destructor.

void ReadFromStream(png_structp png, png_bytep bytes, png_size_t count) {
  auto* file = static_cast<std::ifstream*>(png_get_io_ptr(png));
  if (!file->read(reinterpret_cast<char*>(bytes), static_cast<std::streamsize>(count))) {
    png_error(png, "the file ends early");
  }
}

void IgnoreWarning(png_structp, png_const_charp) {}

class PngRows final : public RowSource {
 public:
  explicit PngRows(std::ifstream file) : file_(std::move(file)) {}
  ~PngRows() override { png_destroy_read_struct(&png_, &info_, nullptr); }

  // Reads the header and sets libpng to hand out 8-bit red, green, blue rows,
  // with alpha where the picture has transparency. False on damage and for
  // interlaced pictures.
  bool Start() {
    png_ = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, IgnoreWarning);
    info_ = png_ ? png_create_info_struct(png_) : nullptr;
    if (info_ == nullptr || setjmp(png_jmpbuf(png_))) return false;
    png_set_read_fn(png_, &file_, ReadFromStream);
    png_read_info(png_, info_);
    if (png_get_interlace_type(png_, info_) != PNG_INTERLACE_NONE) return false;
    png_set_expand(png_);
    png_set_scale_16(png_);
    png_set_gray_to_rgb(png_);
    png_read_update_info(png_, info_);
    alpha_ = png_get_channels(png_, info_) == 4;
    return true;
  }

  std::int64_t Width() const override { return png_get_image_width(png_, info_); }
  std::int64_t Height() const override { return png_get_image_height(png_, info_); }
  PixelOrder Order() const override { return PixelOrder::kRgb; }

  bool ReadRows(std::uint8_t* rows, int count) override {
    const std::size_t rowBytes = (alpha_ ? 4 : 3) * static_cast<std::size_t>(Width());
    if (alpha_) withAlpha_.resize(rowBytes * count);
    std::uint8_t* target = alpha_ ? withAlpha_.data() : rows;
    pointers_.resize(count);
    for (int r = 0; r < count; ++r) pointers_[r] = target + r * rowBytes;
    if (!ReadInto(count)) return false;
    if (alpha_) LayOnWhite(rows, static_cast<std::size_t>(Width()) * count);
    return true;
  }

 private:
  bool ReadInto(int count) {
    if (setjmp(png_jmpbuf(png_))) return false;
    png_read_rows(png_, pointers_.data(), nullptr, static_cast<png_uint_32>(count));
    return true;
  }

  void LayOnWhite(std::uint8_t* rgb, std::size_t pixels) const {
    const std::uint8_t* rgba = withAlpha_.data();
    for (std::size_t i = 0; i < pixels; ++i, rgba += 4, rgb += 3) {
      const unsigned alpha = rgba[3], white = 255 * (255 - alpha);
      for (int c = 0; c < 3; ++c) {
        rgb[c] = static_cast<std::uint8_t>((rgba[c] * alpha + white + 127) / 255);
      }
    }
  }

  std::ifstream file_;
  png_structp png_ = nullptr;
  png_infop info_ = nullptr;
  bool alpha_ = false;
  std::vector<std::uint8_t> withAlpha_;
  std::vector<png_bytep> pointers_;
};

}  // namespace

std::unique_ptr<RowSource> OpenPngRows(const std::string& path) {
  std::ifstream file(std::filesystem::path(std::u8string(path.begin(), path.end())),
                     std::ios::binary);
  if (!file) return nullptr;
  auto rows = std::make_unique<PngRows>(std::move(file));
  if (!rows->Start()) return nullptr;
  return rows;
}

}  // namespace lp
