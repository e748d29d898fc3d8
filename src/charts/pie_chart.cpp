#include "charts/pie_chart.h"

#include <cmath>

#include "runtime/convert.h"
#include "runtime/error.h"
#include "runtime/text.h"

namespace lp::charts {
namespace {

constexpr double kPointsPerCm = 28.4;
constexpr double kTwoPi = 6.28318530717958;
constexpr float kStep = 0.1f;

}  // namespace

std::vector<std::u16string> PieParts(const std::u16string& data) {
  return Split(Replace(StrConvNarrow(data), u",", u":"), u":");
}

std::vector<figures::Point> SectorPoints(float a0, float a1, float radius, float cx, float cy) {
  auto at = [&](float a) {
    return figures::Point{radius * std::cos(a) + cx, radius * std::sin(a) + cy};
  };
  std::vector<figures::Point> corners;
  for (float a = a0; a <= a1; a += kStep) corners.push_back(at(a));
  const size_t m = corners.size();
  size_t c = 4 * m;
  c += c % 3 == 0 ? 2 : (c % 3 == 1 ? 1 : 0);
  const size_t count = c + 8;
  // Rows 1 to 4 the centre, four equal rows per corner so that each step is
  // a straight chord, the last row written moved onto a1, then four rows at
  // a1 and four at the centre close the curve.
  std::vector<figures::Point> points(count);
  for (size_t row = 0; row < 4; ++row) points[row] = {cx, cy};
  for (size_t k = 0; k < m; ++k)
    for (size_t row = 4 + 4 * k; row < 8 + 4 * k; ++row) points[row] = corners[k];
  points[4 * m + 3] = at(a1);
  for (size_t row = count - 8; row < count - 4; ++row) points[row] = at(a1);
  for (size_t row = count - 4; row < count; ++row) points[row] = {cx, cy};
  return points;
}

figures::ShapeList PieChart(const PieRequest& r, const Random& rnd) {
  const auto radius = static_cast<float>(Val(r.radius) * kPointsPerCm);
  std::vector<std::u16string> parts = PieParts(r.data);
  std::vector<float> values;
  float sum = 0;
  for (const std::u16string& part : parts) {
    values.push_back(CSng(Val(part)));
    sum += values.back();
  }
  if (sum == 0) throw RuntimeError(kDivisionByZero);
  figures::ShapeList shapes;
  float a0 = 0;
  for (size_t i = 0; i < parts.size(); ++i) {
    float a1 = CSng(values[i] * (kTwoPi / sum) + a0);
    figures::FigureShape sector = figures::Line(u"扇形" + parts[i], 0, 0, 0, 0);
    sector.kind = figures::ShapeKind::kCurve;
    sector.points = SectorPoints(a0, a1, radius, r.originX, r.originY);
    sector.fill = figures::FillKind::kDefault;
    if (r.fill) {
      if (!r.shading)
        FillRandomColour(sector, rnd);
      else
        FillPattern(sector, RandomPattern(rnd));
    }
    shapes.push_back(std::move(sector));
    a0 = a1;
  }
  return shapes;
}

}  // namespace lp::charts
