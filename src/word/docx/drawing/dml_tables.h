#pragma once
// Word's Office constants and the DrawingML names that stand for them.

#include <string_view>

#include "word/types.h"

namespace word::docx::drawing {

// a:pattFill prst of msoPattern 1..48; empty for any other number.
std::string_view PatternName(long pattern);

// a:prstDash val of a dash style; round dots also ask for round caps.
std::string_view DashName(MsoLineDashStyle style);
bool DashHasRoundCap(MsoLineDashStyle style);
MsoLineDashStyle DashStyleOfName(std::string_view name, bool roundCap);

// a:headEnd / a:tailEnd type, w and len.
std::string_view ArrowheadName(MsoArrowheadStyle style);
std::string_view ArrowheadSizeName(long size);  // 1 small, 2 medium, 3 large

}  // namespace word::docx::drawing
