#include "word/docx/host/units.h"

#include <cstdio>
#include <cstdlib>

namespace word::docx {

std::string HexOfColor(long bgr) {
  char text[7];
  std::snprintf(text, sizeof text, "%02X%02X%02X", static_cast<unsigned>(bgr & 0xFF),
                static_cast<unsigned>((bgr >> 8) & 0xFF),
                static_cast<unsigned>((bgr >> 16) & 0xFF));
  return text;
}

long ColorOfHex(const std::string& hex) {
  if (hex.size() != 6) return 0;
  char* end = nullptr;
  const long rgb = std::strtol(hex.c_str(), &end, 16);
  if (*end != '\0') return 0;
  return ((rgb >> 16) & 0xFF) | (rgb & 0xFF00) | ((rgb & 0xFF) << 16);
}

}  // namespace word::docx
