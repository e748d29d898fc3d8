#include "figures/sector.h"

#include <cmath>
#include <numbers>

#include "runtime/convert.h"

namespace lp::figures {
namespace {

constexpr double kPointsPerCm = 28.4;
constexpr float kMarkRadius = 10;

double Radians(double degrees) {
  return degrees * std::numbers::pi / 180;
}

Point At(Point c, double r, double degrees) {
  return {static_cast<float>(c.x + r * std::cos(Radians(degrees))),
          static_cast<float>(c.y - r * std::sin(Radians(degrees)))};
}

// The Bezier points after the start point, from angle `from` to `to`
// (either direction), in pieces of at most 90 degrees.
std::vector<Point> ArcPieces(Point c, double r, double from, double to) {
  std::vector<Point> points;
  const int n = std::max(1, static_cast<int>(std::ceil(std::abs(to - from) / 90 - 1e-9)));
  const double step = (to - from) / n;
  const double k = 4.0 / 3 * std::tan(Radians(step) / 4) * r;
  for (int i = 0; i < n; ++i) {
    const double a = from + i * step, b = a + step;
    const Point p = At(c, r, a), q = At(c, r, b);
    points.push_back({static_cast<float>(p.x - k * std::sin(Radians(a))),
                      static_cast<float>(p.y - k * std::cos(Radians(a)))});
    points.push_back({static_cast<float>(q.x + k * std::sin(Radians(b))),
                      static_cast<float>(q.y + k * std::cos(Radians(b)))});
    points.push_back(q);
  }
  return points;
}

// A straight piece written as a Bezier, so one freeform holds the outline.
void StraightTo(std::vector<Point>& points, Point to) {
  const Point from = points.back();
  points.insert(points.end(), {from, to, to});
}

FigureShape Curve(std::u16string name, std::vector<Point> points) {
  FigureShape s;
  s.kind = ShapeKind::kCurve;
  s.name = std::move(name);
  s.points = std::move(points);
  return s;
}

// The closed outline: centre, out along the start radius, round the arc and
// back (for an annulus, round the inner arc backwards).
FigureShape Outline(const SectorRequest& r, Point c, double outer, double inner, double angle) {
  std::vector<Point> points{r.kind == SectorKind::kAnnulus ? At(c, inner, 0) : c};
  StraightTo(points, At(c, outer, 0));
  for (Point p : ArcPieces(c, outer, 0, angle)) points.push_back(p);
  if (r.kind == SectorKind::kAnnulus) {
    StraightTo(points, At(c, inner, angle));
    for (Point p : ArcPieces(c, inner, angle, 0)) points.push_back(p);
  } else {
    StraightTo(points, c);
  }
  FigureShape s;
  s.kind = ShapeKind::kFreeform;
  s.name = u"扇形";
  s.points = std::move(points);
  s.curvedSegments = true;
  if (r.filled) s.fill = FillKind::kColor, s.rgb = 0xD9D9D9;
  return s;
}

}  // namespace

SectorFigure MakeSector(const SectorRequest& r) {
  const double outer = Val(r.radius) * kPointsPerCm;
  const double angle = Val(r.angle);
  const double inner = r.kind == SectorKind::kAnnulus ? Val(r.innerRadius) * kPointsPerCm : 0;
  if (!(outer > 0) || outer > 20 * kPointsPerCm) return {{}, u"半径应大于 0 且不超过 20 厘米。"};
  if (!(angle > 0) || angle > 360) return {{}, u"圆心角应大于 0° 且不超过 360°。"};
  if (r.kind == SectorKind::kAnnulus && !(inner > 0 && inner < outer))
    return {{}, u"内半径应大于 0 且小于外半径。"};
  const Point c{static_cast<float>(r.originX + outer), static_cast<float>(r.originY + outer)};
  SectorFigure figure;
  if (r.kind == SectorKind::kArc) {
    std::vector<Point> arc{At(c, outer, 0)};
    for (Point p : ArcPieces(c, outer, 0, angle)) arc.push_back(p);
    figure.shapes.push_back(Curve(u"弧", std::move(arc)));
    if (r.radii)
      for (double a : {0.0, angle}) {
        const Point end = At(c, outer, a);
        figure.shapes.push_back(Line(u"半径", c.x, c.y, end.x, end.y));
        figure.shapes.back().dashed = true;
      }
  } else {
    figure.shapes.push_back(Outline(r, c, outer, inner, angle));
  }
  if (r.angleMark && angle < 360) {
    std::vector<Point> mark{At(c, kMarkRadius, 0)};
    for (Point p : ArcPieces(c, kMarkRadius, 0, angle)) mark.push_back(p);
    figure.shapes.push_back(Curve(u"角标", std::move(mark)));
  }
  if (!r.label.empty()) {
    const Point at = At(c, kMarkRadius + 14, angle / 2);
    figure.shapes.push_back(Label(u"角度", r.label, at.x - 15, at.y - 8, 30, 16));
    figure.shapes.back().textStyle.centred = true;
  }
  return figure;
}

}  // namespace lp::figures
