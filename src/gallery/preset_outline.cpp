#include "gallery/preset_outline.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace lp::gallery {
namespace {

constexpr double kFull = 100000.0;  // adjustments are in 1/100000
constexpr double kCircle = 0.5523;  // a quarter circle's Bezier handle
constexpr double kPi = 3.14159265358979;

// An adjustment by name ("adj", "adj1"), as Word's gd writes it: "val N".
double Adjustment(pugi::xml_node adjustments, const char* name, double fallback) {
  pugi::xml_node gd = adjustments.find_child_by_attribute("a:gd", "name", name);
  const char* formula = gd.attribute("fmla").value();
  if (std::strncmp(formula, "val ", 4) != 0) return fallback / kFull;
  return std::strtod(formula + 4, nullptr) / kFull;
}

PathStep Move(double x, double y) {
  return {PathStep::kMove, {{x, y}}};
}
PathStep Line(double x, double y) {
  return {PathStep::kLine, {{x, y}}};
}
PathStep Close() {
  return {PathStep::kClose, {}};
}

std::vector<PathStep> Open(std::initializer_list<Point> points) {
  std::vector<PathStep> steps;
  for (const Point& p : points) steps.push_back(steps.empty() ? Move(p.x, p.y) : Line(p.x, p.y));
  return steps;
}

std::vector<PathStep> Closed(std::initializer_list<Point> points) {
  std::vector<PathStep> steps = Open(points);
  steps.push_back(Close());
  return steps;
}

// A rectangle whose corners are quarter ellipses rx wide and ry high.
std::vector<PathStep> Rounded(double w, double h, double rx, double ry) {
  rx = std::min(rx, w / 2);
  ry = std::min(ry, h / 2);
  const double kx = rx * (1 - kCircle), ky = ry * (1 - kCircle);
  return {Move(rx, 0),
          Line(w - rx, 0),
          {PathStep::kCubic, {{w - kx, 0}, {w, ky}, {w, ry}}},
          Line(w, h - ry),
          {PathStep::kCubic, {{w, h - ky}, {w - kx, h}, {w - rx, h}}},
          Line(rx, h),
          {PathStep::kCubic, {{kx, h}, {0, h - ky}, {0, h - ry}}},
          Line(0, ry),
          {PathStep::kCubic, {{0, ky}, {kx, 0}, {rx, 0}}},
          Close()};
}

// A block arrow pointing right; its shaft is a1 of the height, its head a2
// of the shorter side long.
std::vector<PathStep> RightArrow(double w, double h, double a1, double a2) {
  const double y1 = h / 2 * (1 - a1), y2 = h - y1, x1 = w - std::min(w, h) * a2;
  return Closed({{0, y1}, {x1, y1}, {x1, 0}, {w, h / 2}, {x1, h}, {x1, y2}, {0, y2}});
}

// The curve of the ellipse filling the box from `start` through `sweep`
// degrees, clockwise on the page; angles are where the points are seen
// from the centre, as Word's arc adjustments give them.
std::vector<PathStep> EllipseArc(double w, double h, double start, double sweep) {
  const double rx = w / 2, ry = h / 2;
  const int pieces = std::max(2, static_cast<int>(std::ceil(std::fabs(sweep) / 3)));
  std::vector<PathStep> steps;
  for (int i = 0; i <= pieces; ++i) {
    const double a = (start + sweep * i / pieces) * kPi / 180;
    const double r = rx * ry / std::max(1e-9, std::hypot(ry * std::cos(a), rx * std::sin(a)));
    steps.push_back(i == 0 ? Move(rx + r * std::cos(a), ry + r * std::sin(a))
                           : Line(rx + r * std::cos(a), ry + r * std::sin(a)));
  }
  return steps;
}

// Word's arc, pie and chord: adj1 and adj2 are the start and end angles in
// 60000ths of a degree.
std::vector<OutlinePath> Slice(const std::string& preset, double w, double h, pugi::xml_node av) {
  const double start = Adjustment(av, "adj1", preset == "arc" ? 16200000 : 0) * kFull / 60000;
  const double end = Adjustment(av, "adj2", preset == "pie" ? 16200000 : 0) * kFull / 60000;
  const double sweep = std::fmod(std::fmod(end - start, 360) + 360, 360);
  std::vector<PathStep> curve = EllipseArc(w, h, start, sweep == 0 ? 360 : sweep);
  std::vector<PathStep> piece = curve;
  if (preset != "chord") piece.push_back(Line(w / 2, h / 2));
  piece.push_back(Close());
  if (preset != "arc") return {{piece}};
  return {{piece, false, true}, {curve, true, false}};
}

std::vector<PathStep> Mirrored(std::vector<PathStep> steps, double w) {
  for (PathStep& step : steps)
    for (Point& p : step.points) p.x = w - p.x;
  return steps;
}

std::vector<PathStep> Connector(const std::string& preset, double w, double h, pugi::xml_node av) {
  const double x1 = w * Adjustment(av, "adj1", 50000);
  if (preset == "bentConnector2") return Open({{0, 0}, {w, 0}, {w, h}});
  if (preset == "bentConnector3") return Open({{0, 0}, {x1, 0}, {x1, h}, {w, h}});
  if (preset == "bentConnector4") {
    const double y2 = h * Adjustment(av, "adj2", 50000);
    return Open({{0, 0}, {x1, 0}, {x1, y2}, {w, y2}, {w, h}});
  }
  if (preset == "curvedConnector2")
    return {Move(0, 0), {PathStep::kCubic, {{w / 2, 0}, {w, h / 2}, {w, h}}}};
  if (preset == "curvedConnector3")
    return {Move(0, 0),
            {PathStep::kCubic, {{x1 / 2, 0}, {x1, h / 4}, {x1, h / 2}}},
            {PathStep::kCubic, {{x1, h * 3 / 4}, {(w + x1) / 2, h}, {w, h}}}};
  return Open({{0, 0}, {w, h}});
}

std::vector<PathStep> Outline(const std::string& preset, double w, double h,
                              pugi::xml_node adjustments) {
  const auto is = [&](const char* prefix) { return preset.rfind(prefix, 0) == 0; };
  const double side = std::min(w, h);
  if (preset == "line" || is("straightConnector") || is("bentConnector") || is("curvedConnector"))
    return Connector(preset, w, h, adjustments);
  if (preset == "flowChartDecision" || preset == "diamond")
    return Closed({{w / 2, 0}, {w, h / 2}, {w / 2, h}, {0, h / 2}});
  if (preset == "flowChartInputOutput") return Closed({{w / 5, 0}, {w, 0}, {w * 4 / 5, h}, {0, h}});
  if (preset == "parallelogram") {
    const double x = side * Adjustment(adjustments, "adj", 25000);
    return Closed({{x, 0}, {w, 0}, {w - x, h}, {0, h}});
  }
  if (preset == "triangle")
    return Closed({{w * Adjustment(adjustments, "adj", 50000), 0}, {w, h}, {0, h}});
  if (preset == "rtTriangle") return Closed({{0, 0}, {w, h}, {0, h}});
  if (preset == "roundRect") {
    const double r = side * Adjustment(adjustments, "adj", 16667);
    return Rounded(w, h, r, r);
  }
  if (preset == "flowChartAlternateProcess") return Rounded(w, h, side / 6, side / 6);
  if (preset == "flowChartTerminator") return Rounded(w, h, w * 3475 / 21600, h / 2);
  if (preset == "rightArrow" || preset == "leftArrow") {
    std::vector<PathStep> arrow = RightArrow(w, h, Adjustment(adjustments, "adj1", 50000),
                                             Adjustment(adjustments, "adj2", 50000));
    return preset == "rightArrow" ? arrow : Mirrored(std::move(arrow), w);
  }
  return Closed({{0, 0}, {w, 0}, {w, h}, {0, h}});
}

}  // namespace

std::vector<OutlinePath> PresetOutline(const std::string& preset, double w, double h,
                                       pugi::xml_node adjustments) {
  if (preset == "arc" || preset == "pie" || preset == "chord")
    return Slice(preset, w, h, adjustments);
  return {{Outline(preset, w, h, adjustments)}};
}

}  // namespace lp::gallery
