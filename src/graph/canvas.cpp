#include "graph/canvas.h"

#include "runtime/convert.h"
#include "runtime/text.h"

namespace lp::graph {

PreviewScale PreviewScaleOf(const View& v) {
  double xr = v.xmax - v.xmin, yr = v.ymax - v.ymin;
  PreviewScale s;
  if (xr <= yr) {
    double pad = (yr - xr) / 2;
    s = {v.xmin - pad, v.ymax, v.xmax + pad, v.ymin};
  } else {
    double pad = (xr - yr) / 2;
    s = {v.xmin, v.ymax + pad, v.xmax, v.ymin - pad};
  }
  // The height in both branches: small measures follow the y range.
  s.pvu = yr / 100;
  return s;
}

std::u16string CornerText(double x, double y) {
  return u"(" + Trim(Str(x)) + u"," + Trim(Str(y)) + u")";
}

PageTransform PageTransformOf(double pageWidth, double pageHeight, int16_t intK, const View& v) {
  PageTransform t;
  t.orgx = CLng(pageWidth / 2);
  t.orgy = CLng(pageHeight / 2);
  double side = t.orgx > t.orgy ? t.orgy : t.orgx;
  t.scale = 2.0 * side / (intK * (v.xmax - v.xmin));
  return t;
}

bool OutsideView(const View& v, WorldPoint a, WorldPoint b) {
  auto outside = [&v](WorldPoint p) {
    return p.x < v.xmin || p.x > v.xmax || p.y < v.ymin || p.y > v.ymax;
  };
  return outside(a) || outside(b);
}

int DashStyleOf(int style) {
  switch (style) {
    case 0:
    case 1:
    case 6:
      return 1;
    case 2:
      return 7;
    case 3:
      return 4;
    case 4:
      return 5;
    case 5:
      return 6;
    default:
      return 0;
  }
}

}  // namespace lp::graph
