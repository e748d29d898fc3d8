#include "charts/pie_chart.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "runtime/error.h"

namespace lp::charts {
namespace {

double NoRandom() {
  return 0.5;
}

// The angle in degrees, clockwise from three o'clock, of a point seen from
// the centre (180, 180); y grows downward.
double Degrees(const figures::Point& p) {
  double a = std::atan2(p.y - 180.0, p.x - 180.0) * 180 / std::numbers::pi;
  return a < -1e-3 ? a + 360 : a;
}

TEST(PieChart, SectorsFollowTheRatioAndCloseTheCircle) {
  figures::ShapeList sectors = PieChart(PieRequest{}, NoRandom);
  ASSERT_EQ(sectors.size(), 4u);
  const double ratio[] = {10, 35, 25, 30};
  const char16_t* names[] = {u"扇形10", u"扇形35", u"扇形25", u"扇形30"};
  double start = 0;
  double total = 0;
  for (size_t i = 0; i < 4; ++i) {
    SCOPED_TRACE(i);
    const auto& points = sectors[i].points;
    EXPECT_EQ(sectors[i].name, names[i]);
    ASSERT_EQ(points.size() % 3, 1u);
    EXPECT_FLOAT_EQ(points.front().x, 180);
    EXPECT_FLOAT_EQ(points.back().y, 180);
    double from = Degrees(points[4]);
    double to = Degrees(points[points.size() - 5]);
    if (to < from) to += 360;
    EXPECT_NEAR(from, start, 1e-3);
    EXPECT_NEAR(to - from, 360 * ratio[i] / 100, 1e-3);
    for (size_t k = 4; k < points.size() - 4; ++k)
      EXPECT_NEAR(std::hypot(points[k].x - 180.0, points[k].y - 180.0), 56.8, 1e-3);
    start = to >= 360 ? to - 360 : to;
    total += to - from;
  }
  EXPECT_NEAR(total, 360, 1e-3);
  EXPECT_NEAR(Degrees(sectors[1].points[sectors[1].points.size() - 5]), 162, 1e-3);
}

TEST(PieChart, SeparatorsZeroPartsAndCounts) {
  PieRequest commas;
  commas.data = u"10,35:25：30";
  figures::ShapeList a = PieChart(commas, NoRandom);
  figures::ShapeList b = PieChart(PieRequest{}, NoRandom);
  ASSERT_EQ(a.size(), b.size());
  for (size_t i = 0; i < a.size(); ++i) EXPECT_EQ(a[i].points.size(), b[i].points.size());

  // 36 degrees: 7 corners, 28 rows, plus one to make 3k + 1 with the 8 ends.
  EXPECT_EQ(b[0].points.size(), 37u);
  PieRequest zero;
  zero.data = u"0:1";
  figures::ShapeList degenerate = PieChart(zero, NoRandom);
  EXPECT_EQ(degenerate[0].points.size(), 4u + 1 + 8);
  zero.data = u"0:0";
  EXPECT_THROW(PieChart(zero, NoRandom), RuntimeError);

  PieRequest shaded;
  shaded.fill = true;
  shaded.shading = true;
  EXPECT_EQ(PieChart(shaded, NoRandom)[0].pattern, 31);
}

}  // namespace
}  // namespace lp::charts
