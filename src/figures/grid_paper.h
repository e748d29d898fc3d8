#pragma once
// Grid paper as a shape list: a square grid, 田字格 and 米字格 for writing
// characters, and coordinate paper, as many columns as fill the text width.

#include <string>

#include "figures/shape_list.h"

namespace lp::figures {

enum class GridKind { kSquare, kTian, kMi, kCoordinate };

struct GridRequest {
  GridKind kind = GridKind::kTian;
  std::u16string rows = u"2";      // as typed
  std::u16string cellCm = u"1.5";  // as typed
  float textWidth = 415;           // points between the margins
  float originX = 180;
  float originY = 180;
};

struct GridFigure {
  ShapeList shapes;
  std::u16string error;  // why the input was refused (then no shapes)
};

GridFigure MakeGridPaper(const GridRequest& request);

}  // namespace lp::figures
