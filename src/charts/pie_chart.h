#pragma once
// The pie chart of a ratio: one closed curve per part, from the centre,
// clockwise from three o'clock, each arc a polygon with a corner every 0.1
// radian.

#include <string>
#include <vector>

#include "charts/chart_fill.h"
#include "figures/shape_list.h"

namespace lp::charts {

struct PieRequest {
  std::u16string data = u"10：35：25：30";
  std::u16string radius = u"2";  // centimetres
  bool fill = false;
  bool shading = false;  // random patterns instead of random colours
  float originX = 180;
  float originY = 180;
};

// Full-width characters narrowed; ":" and "," both separate.
std::vector<std::u16string> PieParts(const std::u16string& data);

// The points of one sector from angle a0 to a1: 3k + 1 of them, starting and
// ending at the centre, so that Word draws it as a Bezier curve.
std::vector<figures::Point> SectorPoints(float a0, float a1, float radius, float cx, float cy);

// Raises division by zero when the parts add up to 0.
figures::ShapeList PieChart(const PieRequest& request, const Random& rnd);

}  // namespace lp::charts
