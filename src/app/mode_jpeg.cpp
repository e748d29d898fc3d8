#include <charconv>
#include <cstdint>
#include <cstdio>

#include "app/utility_modes.h"
#include "pictures/qt_picture.h"
#include "runtime/utf8.h"

namespace lp {

namespace {

bool ParseOptions(const std::string& text, std::uint32_t& options) {
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, options);
  return error == std::errc() && stop == end;
}

}  // namespace

// --jpeg IN OUT [--jpeg-options N]: IN is a PNG, BMP, PPM or PGM picture.
// PPM, PGM and PNG stream through the encoder a strip at a time, so a large
// picture never sits in memory whole.
int JpegMode(const ModeArgs& in) {
  const std::vector<std::string>& args = in.args;
  std::uint32_t options = 0;
  const bool withOptions = args.size() == 4 && args[2] == "--jpeg-options";
  if (!(args.size() == 2 || withOptions) || (withOptions && !ParseOptions(args[3], options))) {
    std::fputs("用法：lumenpad --jpeg 图片 输出.jpg [--jpeg-options N]\n", stderr);
    return 2;
  }
  const std::unique_ptr<RowSource> picture = OpenPicture(args[0]);
  JpegResult result = JpegResult::kUnreadable;
  if (picture) result = EncodeRows(*picture, args[1], options);
  switch (result) {
    case JpegResult::kWritten:
      return 0;
    case JpegResult::kTooLarge:
      std::fprintf(stderr, "%s\n",
                   ToUtf8(PictureTooLargeText(picture->Width(), picture->Height())).c_str());
      break;
    case JpegResult::kUnreadable:
      std::fprintf(stderr, "无法读取图片：%s\n", args[0].c_str());
      break;
    case JpegResult::kUnwritable:
      std::fprintf(stderr, "无法写入 JPEG 文件：%s\n", args[1].c_str());
      break;
  }
  return 1;
}

}  // namespace lp
