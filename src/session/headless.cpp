#include "session/headless.h"

#include <cstdlib>
#include <string_view>

namespace lp {

bool RunIsHeadless(bool scripted) {
  if (scripted) return true;
#ifdef _WIN32
  return false;
#else
  const char* platform = std::getenv("QT_QPA_PLATFORM");
  if (platform && std::string_view(platform) == "offscreen") return true;
  return !std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY");
#endif
}

}  // namespace lp
