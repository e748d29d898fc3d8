#include "word/docx/drawing/dml_tables.h"

#include <array>
#include <utility>

namespace word::docx::drawing {

namespace {

// Indexed by msoPattern - 1.
constexpr std::array<std::string_view, 48> kPatterns = {
    "pct5",     "pct10",      "pct20",    "pct25",     "pct30",      "pct40",      "pct50",
    "pct60",    "pct70",      "pct75",    "pct80",     "pct90",      "dkHorz",     "dkVert",
    "dkDnDiag", "dkUpDiag",   "smCheck",  "trellis",   "ltHorz",     "ltVert",     "ltDnDiag",
    "ltUpDiag", "smGrid",     "dotDmnd",  "wdDnDiag",  "wdUpDiag",   "dashUpDiag", "dashDnDiag",
    "narVert",  "narHorz",    "dashVert", "dashHorz",  "lgConfetti", "lgGrid",     "horzBrick",
    "lgCheck",  "smConfetti", "zigZag",   "solidDmnd", "diagBrick",  "openDmnd",   "plaid",
    "sphere",   "weave",      "dotGrid",  "divot",     "shingle",    "wave",
};

constexpr std::array<std::pair<MsoLineDashStyle, std::string_view>, 8> kDashes = {{
    {msoLineSolid, "solid"},
    {msoLineSquareDot, "sysDot"},
    {msoLineRoundDot, "sysDot"},
    {msoLineDash, "dash"},
    {msoLineDashDot, "dashDot"},
    {msoLineDashDotDot, "sysDashDotDot"},
    {msoLineLongDash, "lgDash"},
    {msoLineLongDashDot, "lgDashDot"},
}};

constexpr std::array<std::pair<MsoArrowheadStyle, std::string_view>, 6> kArrowheads = {{
    {msoArrowheadNone, "none"},
    {msoArrowheadTriangle, "triangle"},
    {msoArrowheadOpen, "arrow"},
    {msoArrowheadStealth, "stealth"},
    {msoArrowheadDiamond, "diamond"},
    {msoArrowheadOval, "oval"},
}};

}  // namespace

std::string_view PatternName(long pattern) {
  if (pattern < 1 || pattern > static_cast<long>(kPatterns.size())) return {};
  return kPatterns[static_cast<size_t>(pattern - 1)];
}

std::string_view DashName(MsoLineDashStyle style) {
  for (const auto& [value, name] : kDashes) {
    if (value == style) return name;
  }
  return "solid";
}

bool DashHasRoundCap(MsoLineDashStyle style) {
  return style == msoLineRoundDot;
}

MsoLineDashStyle DashStyleOfName(std::string_view name, bool roundCap) {
  if (name == "sysDot") return roundCap ? msoLineRoundDot : msoLineSquareDot;
  if (name == "sysDash") return msoLineSquareDot;
  for (const auto& [value, known] : kDashes) {
    if (known == name) return value;
  }
  return msoLineSolid;
}

std::string_view ArrowheadName(MsoArrowheadStyle style) {
  for (const auto& [value, name] : kArrowheads) {
    if (value == style) return name;
  }
  return "none";
}

std::string_view ArrowheadSizeName(long size) {
  switch (size) {
    case 1:
      return "sm";
    case 3:
      return "lg";
    default:
      return "med";
  }
}

}  // namespace word::docx::drawing
