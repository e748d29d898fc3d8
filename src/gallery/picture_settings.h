#pragma once
// What the picture export dialog asks for, checked: the JPEG file and the
// resolution.

#include <optional>
#include <string>

namespace lp::gallery {

inline constexpr double kMinDpi = 36;
inline constexpr double kMaxDpi = 1200;

inline constexpr char16_t kResolutionRefused[] = u"分辨率应是 36 到 1200 之间的数！";

// A resolution typed as a plain number from kMinDpi to kMaxDpi.
std::optional<double> CheckResolution(const std::u16string& dpi);

struct PictureSettings {
  std::u16string error;  // the message for the teacher; empty when usable
  std::string path;      // UTF-8, ending in .jpg or .jpeg
  double dpi = 0;
};

// A name without an extension gets ".jpg"; the resolution is a number from
// kMinDpi to kMaxDpi.
PictureSettings CheckPictureSettings(const std::u16string& file, const std::u16string& dpi);

}  // namespace lp::gallery
