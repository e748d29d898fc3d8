#pragma once
// The two canvases of a graph: the square preview in world units and the
// Word page in points, with the tests that keep a curve inside the view.

#include <cstdint>
#include <string>

#include "graph/items.h"

namespace lp::graph {

// The world limits of the coordinate system.
struct View {
  double xmin = -5, xmax = 5, ymin = -5, ymax = 5;
};

// The preview's user scale: the world rectangle shown, kept square by
// padding the shorter side, and PVU, the unit of every small preview measure.
struct PreviewScale {
  double left = 0, top = 0, right = 0, bottom = 0;  // top > bottom: y grows upward
  double pvu = 0;
};
PreviewScale PreviewScaleOf(const View& view);

// "(x,y)", the corner labels of the preview.
std::u16string CornerText(double x, double y);

// Where the world lands on the page: the origin at the page's centre, the
// figure as wide as the smaller page side divided by intK.
struct PageTransform {
  int32_t orgx = 0, orgy = 0;
  double scale = 1;  // points per world unit
  double X(double x) const { return orgx + scale * x; }
  double Y(double y) const { return orgy - scale * y; }
};
PageTransform PageTransformOf(double pageWidth, double pageHeight, int16_t intK, const View& view);

// True when either point lies outside the view (its limits count as inside).
bool OutsideView(const View& view, WorldPoint previous, WorldPoint current);

// Word's dash style for the dialog's style value.
int DashStyleOf(int style);

}  // namespace lp::graph
