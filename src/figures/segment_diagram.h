#pragma once
// The segment diagram of a word problem: one horizontal bar cut by short
// ticks, in a given ratio or into n equal parts.

#include <cstdint>
#include <string>
#include <vector>

#include "figures/shape_list.h"

namespace lp::figures {

struct SegmentRequest {
  std::u16string length = u"8";  // whole bar, centimetres
  std::u16string height = u"2";  // ticks, millimetres
  bool equalParts = false;       // false: by the ratio
  std::u16string ratio = u"2:1:1";
  std::u16string parts = u"3";
  float originX = 180;
  float originY = 180;
};

// The pieces of a ratio; full-width colons count as ":". No colon: nothing.
std::vector<float> SplitRatio(const std::u16string& ratio);
// The sum, rounded half to even after each addition: 1.5:1.5 sums to 4.
int16_t RatioSum(const std::vector<float>& pieces);

// The ticks and segments of the bar, named with the figure's bases; empty
// when there is nothing to draw (a ratio without a colon, n = 0).
ShapeList SegmentDiagram(const SegmentRequest& request);

}  // namespace lp::figures
