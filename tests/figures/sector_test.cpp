#include "figures/sector.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lp::figures {
namespace {

constexpr double kPi = 3.14159265358979323846;

// The point of a cubic Bezier at t.
Point Bezier(const Point* p, double t) {
  const double u = 1 - t;
  auto mix = [&](float a, float b, float c, float d) {
    return static_cast<float>(u * u * u * a + 3 * u * u * t * b + 3 * u * t * t * c +
                              t * t * t * d);
  };
  return {mix(p[0].x, p[1].x, p[2].x, p[3].x), mix(p[0].y, p[1].y, p[2].y, p[3].y)};
}

TEST(Sector, ArcEndsAndPointsLieOnTheCircle) {
  for (double angle : {30.0, 90.0, 120.0, 200.0, 360.0}) {
    SectorRequest r;
    r.kind = SectorKind::kArc;
    r.radius = u"2";
    r.angle = std::u16string(u"") + [&] {
      std::string s = std::to_string(angle);
      return std::u16string(s.begin(), s.end());
    }();
    r.angleMark = false;
    const SectorFigure f = MakeSector(r);
    ASSERT_TRUE(f.error.empty());
    const FigureShape& arc = f.shapes[0];
    const double R = 2 * 28.4, cx = 180 + R, cy = 180 + R;
    const Point end = arc.points.back();
    EXPECT_NEAR(arc.points[0].x, cx + R, 0.01);
    EXPECT_NEAR(arc.points[0].y, cy, 0.01);
    EXPECT_NEAR(end.x, cx + R * std::cos(angle * kPi / 180), 0.01) << angle;
    EXPECT_NEAR(end.y, cy - R * std::sin(angle * kPi / 180), 0.01) << angle;
    ASSERT_EQ(arc.points.size() % 3, 1u);
    for (size_t i = 0; i + 3 < arc.points.size(); i += 3)
      for (double t : {0.25, 0.5, 0.75}) {
        const Point p = Bezier(&arc.points[i], t);
        EXPECT_NEAR(std::hypot(p.x - cx, p.y - cy), R, R * 0.001) << angle;
      }
    ASSERT_EQ(f.shapes.size(), 3u);  // the arc and its two dashed radii
    EXPECT_TRUE(f.shapes[2].dashed);
    EXPECT_NEAR(f.shapes[2].points[1].x, end.x, 0.01);
  }
}

TEST(Sector, FilledAnnulusIsOneClosedOutline) {
  SectorRequest r;
  r.kind = SectorKind::kAnnulus;
  r.radius = u"3";
  r.innerRadius = u"1.5";
  r.angle = u"90";
  r.filled = true;
  r.label = u"90°";
  const SectorFigure f = MakeSector(r);
  ASSERT_TRUE(f.error.empty());
  ASSERT_EQ(f.shapes.size(), 3u);
  const FigureShape& outline = f.shapes[0];
  EXPECT_EQ(outline.kind, ShapeKind::kFreeform);
  EXPECT_EQ(outline.fill, FillKind::kColor);
  EXPECT_NEAR(outline.points.front().x, outline.points.back().x, 0.01);
  EXPECT_NEAR(outline.points.front().y, outline.points.back().y, 0.01);
  const double cx = 180 + 3 * 28.4, cy = 180 + 3 * 28.4;
  EXPECT_NEAR(outline.points.front().x, cx + 1.5 * 28.4, 0.01);
  EXPECT_NEAR(outline.points.front().y, cy, 0.01);
  EXPECT_EQ(f.shapes[2].text, u"90°");
}

TEST(Sector, RefusedInputsSayWhy) {
  SectorRequest r;
  r.angle = u"0";
  EXPECT_FALSE(MakeSector(r).error.empty());
  r.angle = u"400";
  EXPECT_FALSE(MakeSector(r).error.empty());
  r.angle = u"60";
  r.radius = u"abc";
  EXPECT_FALSE(MakeSector(r).error.empty());
  r.radius = u"2";
  r.kind = SectorKind::kAnnulus;
  r.innerRadius = u"3";
  EXPECT_FALSE(MakeSector(r).error.empty());
}

}  // namespace
}  // namespace lp::figures
