#pragma once
// The coordinate system, its grid, and the tick labels that every object
// offers, collected, cleared of doubles and split into plain numbers and
// formulas.

#include <vector>

#include "graph/items.h"
#include "graph/session.h"

namespace lp::graph {

// The options of the settings store that shape the axes.
struct AxisOptions {
  int16_t intK = 5;
  int16_t intKD = 8;
  bool ykdLeft = false, ytxtLeft = false, xkdUp = false, xtxtUp = false;
  bool autoKD = true;
};

// 1, or with automatic ticks a tenth of the x extent (whole, at least 1).
double TickStep(const View& view, bool autoKD);
// The multiples of step strictly inside (from, to), without 0.
std::vector<double> TickPositions(double from, double to, double step);

struct AxesDrawing {
  View range;
  Look look;
  std::vector<double> xTicks, yTicks;  // empty without drawScale
};
// Adds a number label for each tick to the collecting arrays.
AxesDrawing DrawAxes(const AxesRecord& zbx, const AxisOptions& options, std::vector<Tick>& xLabels,
                     std::vector<Tick>& yLabels);

// Horizontal lines first, then vertical, never at 0 nor at the range's ends.
DrawnObject DrawGrid(const View& view, const Look& look);

struct TickLabels {
  std::vector<Tick> plainX, formulaX, plainY, formulaY;
};
// Sorted by place; a label at the place of one before it survives only as a
// formula, and a number of the axes gives way to an object's label near it.
TickLabels CollectTickLabels(std::vector<Tick> xLabels, std::vector<Tick> yLabels);

// The labels as one canvas can print them: numbers of the axes closer than
// minGap (world units) to the origin or to a label kept before them drop out,
// nearest the origin kept first; labels of the objects always stay.
TickLabels Thinned(const TickLabels& labels, double minGap);

// The text of a number as a label: "2", "-1.5", "0.25".
std::u16string NumberLabel(double value);

}  // namespace lp::graph
