#include <QImage>
#include <QString>
#include <charconv>
#include <cstdint>
#include <cstdio>

#include "app/utility_modes.h"
#include "pictures/qt_picture.h"

namespace lp {

namespace {

bool ParseOptions(const std::string& text, std::uint32_t& options) {
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, options);
  return error == std::errc() && stop == end;
}

}  // namespace

// --jpeg IN OUT [--jpeg-options N]: IN is a PNG, BMP or PPM picture.
int JpegMode(const ModeArgs& in) {
  const std::vector<std::string>& args = in.args;
  std::uint32_t options = 0;
  const bool withOptions = args.size() == 4 && args[2] == "--jpeg-options";
  if (!(args.size() == 2 || withOptions) || (withOptions && !ParseOptions(args[3], options))) {
    std::fputs("usage: lumenpad --jpeg IN OUT [--jpeg-options N]\n", stderr);
    return 2;
  }
  const QImage picture(QString::fromStdString(args[0]));
  if (picture.isNull()) {
    std::fprintf(stderr, "cannot read the picture %s\n", args[0].c_str());
    return 1;
  }
  if (!SavePictureAsJPEG(picture, args[1], options)) {
    std::fprintf(stderr, "cannot write %s\n", args[1].c_str());
    return 1;
  }
  return 0;
}

}  // namespace lp
