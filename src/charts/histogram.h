#pragma once
// Frequency and relative-frequency histograms and bar charts from a list of
// numbers: axes, columns, value marks and labels as shapes.

#include <cstdint>
#include <string>
#include <vector>

#include "charts/chart_fill.h"
#include "figures/shape_list.h"

namespace lp::charts {

inline constexpr char16_t kYScaleRefused[] = u"您指定的y轴刻度数据有误，请检查！";
inline constexpr char16_t kRelativeFrequencyCaption[] = u"频率/组距";
inline constexpr char16_t kRelativeFrequencyField[] = u"EQ \\F(频率,组距)";

enum class ChartType { kFrequency = 0, kRelativeFrequency = 1, kBar = 2 };

// The dialog's values as typed.
struct HistogramRequest {
  ChartType type = ChartType::kFrequency;
  std::u16string data = u"3,5,6,4,7,5,4";
  std::u16string lengthX = u"6";  // centimetres
  std::u16string lengthY = u"4";
  std::u16string firstValue = u"20";
  std::u16string classWidth = u"10";
  std::u16string captionX = u"样本";
  std::u16string captionY = u"频数";
  bool fixedYScale = false;
  std::u16string yStart = u"100";
  std::u16string yEnd = u"700";
  std::u16string yStep = u"100";
  bool framed = false;  // the style with the open frame
  bool brokenAxis = true;
  std::u16string decimals = u"3";
  bool fill = false;
  bool shading = false;  // fill with patterns instead of colours
  float originX = 180;
  float originY = 180;
};

struct HistogramData {
  std::vector<int16_t> values;  // in the order given
  std::vector<int16_t> sorted;
  int16_t maxValue = 0;
  int16_t total = 0;
  int16_t gap = 0;  // smallest positive difference of neighbours, 0 if none
};

// Full-width characters narrowed, ":" counts as ",", one trailing "," dropped.
HistogramData ReadHistogramData(const std::u16string& text);

struct ChartResult {
  figures::ShapeList shapes;
  std::u16string refusal;  // a message for the teacher; nothing drawn
};

// Raises division by zero when the vertical step is 0 (all values equal).
ChartResult Histogram(const HistogramRequest& request, const Random& rnd);

}  // namespace lp::charts
