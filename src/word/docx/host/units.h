#pragma once
// Lengths and colours as the package stores them: DrawingML lengths in EMU
// (12700 to the point), WordprocessingML lengths in twips (20 to the point),
// colours as RRGGBB hex, where Word's API packs them as BGR longs.

#include <cmath>
#include <cstdint>
#include <string>

namespace word::docx {

constexpr double kEmuPerPoint = 12700.0;
constexpr double kTwipsPerPoint = 20.0;

inline std::int64_t ToEmu(double points) {
  return std::llround(points * kEmuPerPoint);
}
inline float ToPoints(std::int64_t emu) {
  return static_cast<float>(emu / kEmuPerPoint);
}

// 0x00BBGGRR (as Word's RGB() builds it) to "RRGGBB".
std::string HexOfColor(long bgr);
// "RRGGBB" to 0x00BBGGRR; 0 for anything unreadable.
long ColorOfHex(const std::string& hex);

}  // namespace word::docx
