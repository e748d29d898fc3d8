#include "gallery/picture_settings.h"

#include <cctype>
#include <filesystem>

#include "runtime/convert.h"
#include "runtime/text.h"
#include "runtime/utf8.h"

namespace lp::gallery {
namespace {

bool IsPlainNumber(const std::u16string& text) {
  int dots = 0;
  for (char16_t c : text) {
    if (c == u'.')
      ++dots;
    else if (c < u'0' || c > u'9')
      return false;
  }
  return dots <= 1 && text != u".";
}

}  // namespace

std::optional<double> CheckResolution(const std::u16string& dpi) {
  const std::u16string resolution = Trim(dpi);
  if (resolution.empty() || !IsPlainNumber(resolution)) return std::nullopt;
  const double value = Val(resolution);
  if (value < kMinDpi || value > kMaxDpi) return std::nullopt;
  return value;
}

PictureSettings CheckPictureSettings(const std::u16string& file, const std::u16string& dpi) {
  PictureSettings settings;
  const std::u16string name = Trim(file);
  if (name.empty()) {
    settings.error = u"请输入图片的文件名！";
    return settings;
  }
  const std::optional<double> resolution = CheckResolution(dpi);
  if (!resolution) {
    settings.error = kResolutionRefused;
    return settings;
  }
  settings.dpi = *resolution;
  settings.path = ToUtf8(name);
  std::string extension = std::filesystem::path(settings.path).extension().string();
  for (char& c : extension) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  if (extension != ".jpg" && extension != ".jpeg") settings.path += ".jpg";
  return settings;
}

}  // namespace lp::gallery
