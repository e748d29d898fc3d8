#include "figures/grid_paper.h"

#include <cmath>

#include "runtime/convert.h"

namespace lp::figures {
namespace {

constexpr double kPointsPerCm = 28.4;

FigureShape Guide(std::u16string name, float x1, float y1, float x2, float y2) {
  FigureShape s = Line(std::move(name), x1, y1, x2, y2);
  s.dashed = true;
  return s;
}

}  // namespace

GridFigure MakeGridPaper(const GridRequest& r) {
  const double rowsValue = Val(r.rows), cellCm = Val(r.cellCm);
  if (!(rowsValue >= 1 && rowsValue <= 60) || rowsValue != std::floor(rowsValue))
    return {{}, u"行数应是 1 到 60 之间的整数。"};
  if (!(cellCm >= 0.3 && cellCm <= 5)) return {{}, u"格子边长应在 0.3 到 5 厘米之间。"};
  const float cell = static_cast<float>(cellCm * kPointsPerCm);
  const int rows = static_cast<int>(rowsValue);
  const int cols = static_cast<int>(std::floor(r.textWidth / cell + 1e-6));
  if (cols < 1) return {{}, u"格子太大，一行放不下一格。"};
  const float x0 = r.originX, y0 = r.originY, x1 = x0 + cols * cell, y1 = y0 + rows * cell;
  GridFigure figure;
  ShapeList& s = figure.shapes;
  // Coordinate paper draws every fifth line solid and the rest dashed.
  const auto rule = [&](int i, float a1, float b1, float a2, float b2) {
    if (r.kind == GridKind::kCoordinate && i % 5 != 0)
      s.push_back(Guide(u"格线", a1, b1, a2, b2));
    else
      s.push_back(Line(u"格线", a1, b1, a2, b2));
  };
  for (int i = 0; i <= rows; ++i) rule(i, x0, y0 + i * cell, x1, y0 + i * cell);
  for (int j = 0; j <= cols; ++j) rule(j, x0 + j * cell, y0, x0 + j * cell, y1);
  if (r.kind == GridKind::kTian || r.kind == GridKind::kMi) {
    const float h = cell / 2;
    for (int i = 0; i < rows; ++i)
      s.push_back(Guide(u"中线", x0, y0 + i * cell + h, x1, y0 + i * cell + h));
    for (int j = 0; j < cols; ++j)
      s.push_back(Guide(u"中线", x0 + j * cell + h, y0, x0 + j * cell + h, y1));
  }
  if (r.kind == GridKind::kMi)
    for (int i = 0; i < rows; ++i)
      for (int j = 0; j < cols; ++j) {
        const float x = x0 + j * cell, y = y0 + i * cell;
        s.push_back(Guide(u"斜线", x, y, x + cell, y + cell));
        s.push_back(Guide(u"斜线", x + cell, y, x, y + cell));
      }
  return figure;
}

}  // namespace lp::figures
