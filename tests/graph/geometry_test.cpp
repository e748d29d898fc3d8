// The geometry of the graph objects, checked against the stated numbers and
// against textbook formulas computed here.
#include <gtest/gtest.h>

#include <cmath>

#include "graph/axes.h"
#include "graph/canvas.h"
#include "graph/drawers.h"
#include "graph/sampling.h"
#include "runtime/convert.h"
#include "toolkit/expression.h"

namespace lp::graph {
namespace {

constexpr double kPi = 3.14159265358979;

template <class T>
std::vector<T> Only(const std::vector<Item>& items) {
  std::vector<T> found;
  for (const Item& item : items)
    if (auto* t = std::get_if<T>(&item)) found.push_back(*t);
  return found;
}

TEST(Canvas, StatedTransformsAndScales) {
  PageTransform a4 = PageTransformOf(595, 842, 5, View{});
  EXPECT_EQ(a4.orgx, 298);  // 297.5 rounds to even
  EXPECT_EQ(a4.orgy, 421);
  EXPECT_DOUBLE_EQ(a4.scale, 11.92);
  EXPECT_DOUBLE_EQ(a4.X(1), 309.92);
  EXPECT_DOUBLE_EQ(a4.Y(1), 409.08);

  PreviewScale tall = PreviewScaleOf(View{-5, 5, -10, 10});
  EXPECT_DOUBLE_EQ(tall.left, -10);
  EXPECT_DOUBLE_EQ(tall.right, 10);
  EXPECT_DOUBLE_EQ(tall.pvu, 0.2);
  PreviewScale square = PreviewScaleOf(View{});
  EXPECT_DOUBLE_EQ(square.left, -5);
  EXPECT_DOUBLE_EQ(square.top, 5);
  PreviewScale wide = PreviewScaleOf(View{-10, 10, -5, 5});
  EXPECT_DOUBLE_EQ(wide.top, 10);
  EXPECT_DOUBLE_EQ(wide.pvu, 0.1);  // the height, even where the width is larger
  EXPECT_EQ(CornerText(-5, 5), u"(-5,5)");

  View v;
  EXPECT_FALSE(OutsideView(v, {5, 5}, {-5, -5}));
  EXPECT_TRUE(OutsideView(v, {0, 0}, {0, 5.01}));
}

TEST(Canvas, DashStyles) {
  const int expected[][2] = {{0, 1}, {1, 1}, {6, 1}, {2, 7}, {3, 4}, {4, 5}, {5, 6}, {7, 0}};
  for (auto [style, dash] : expected) EXPECT_EQ(DashStyleOf(style), dash) << style;
}

TEST(Sampling, PrepareNodesCounts) {
  NodePlan wide = PrepareNodes(0, 300);
  EXPECT_EQ(wide.step, 0.5);
  EXPECT_EQ(wide.count, 601);
  NodePlan ten = PrepareNodes(-5, 5);
  EXPECT_EQ(ten.count, 199);
  EXPECT_NEAR(ten.step, 0.05, 1e-12);
  EXPECT_GT(ten.step, 0.05);  // repeated subtraction leaves it just above
  for (double r : {1.0, 7.3, 42.0, 1000.0}) EXPECT_EQ(PrepareNodes(0, r).count % 3, 1) << r;
  EXPECT_TRUE(SampleNodes(ExpressionSampler(u"x"), 0, 0.02).empty());
}

TEST(Sampling, RoundingAgreesWithTheText) {
  // Every node goes through "#.###"; the quick rounding must give the same
  // double as the text, halves and large values included.
  std::vector<double> values{0.0005,  1.0005,   -1.0005,    2.675,
                             -0.0004, 123.4565, 99999.9995, 1e7 + 0.0015};
  for (int i = -20000; i <= 20000; ++i) values.push_back(i * 0.0137 + 0.00005 * (i % 7));
  for (double v : values) EXPECT_EQ(Round3(v), Val(Format(v, u"#.###"))) << v;
}

TEST(Sampling, ScanFindsThePoles) {
  std::vector<Segment> reciprocal = ScanSegments(ExpressionSampler(u"1/x"), -5, 5, View{}, true);
  ASSERT_EQ(reciprocal.size(), 2u);
  EXPECT_DOUBLE_EQ(reciprocal[0].start, -5);
  EXPECT_NEAR(reciprocal[0].end, -0.2, 1e-9);
  EXPECT_NEAR(reciprocal[1].start, 0.2, 0.011);  // x gathers its 0.01 steps
  EXPECT_NEAR(reciprocal[1].end, 5, 0.011);

  TrigParams tan;
  tan.kind = 2;
  std::vector<Segment> pieces = ScanSegments(TrigSampler(tan), -kPi, kPi, View{}, true);
  ASSERT_EQ(pieces.size(), 3u);
  // Each cut lies just short of a pole, where tan leaves the view (atan 5).
  EXPECT_NEAR(pieces[0].end, -kPi / 2 - std::atan(1.0 / 5), 0.011);
  EXPECT_NEAR(pieces[1].start, -std::atan(5.0), 0.011);
  EXPECT_NEAR(pieces[1].end, std::atan(5.0), 0.011);
}

// Every node of every curve lies on its function, to the nodes' rounding.
void ExpectOnCurve(const std::vector<Item>& items, const std::function<double(double)>& f,
                   bool swapAxes = false) {
  std::vector<CurveItem> curves = Only<CurveItem>(items);
  ASSERT_FALSE(curves.empty());
  for (const CurveItem& c : curves) {
    EXPECT_EQ(c.nodes.size() % 3, 1u);
    for (const WorldPoint& n : c.nodes) {
      double t = swapAxes ? n.y : n.x, v = swapAxes ? n.x : n.y;
      EXPECT_NEAR(v, f(t), 0.0005 + 1e-9) << " at " << t;
    }
  }
}

TEST(Curves, NodesAgreeWithDirectEvaluation) {
  AnyParams any{0, u"x^2-2*x", {{-1, 3, true, true}}};
  ExpectOnCurve(DrawAny(any), [](double x) { return x * x - 2 * x; });
  AnyParams sideways{1, u"x^2", {{-2, 2, true, true}}};
  ExpectOnCurve(
      DrawAny(sideways), [](double y) { return y * y; }, true);

  PowerParams cube{1, 1, 3, -2, 2};
  std::vector<Item> cubeItems = DrawPower(cube, View{});
  EXPECT_EQ(Only<CurveItem>(cubeItems).size(), 2u);  // split at 0
  ExpectOnCurve(cubeItems, [](double x) { return std::cbrt(x); });
  PowerParams square{0, 2, 1, -2, 2};
  ExpectOnCurve(DrawPower(square, View{}), [](double x) { return x * x; });

  ExpectOnCurve(DrawExponent({2, 1, -1, -3, 2}), [](double x) { return std::pow(2, x + 1) - 1; });
  LogParams logAbs{1, 2, 0, 0, -5, 5};
  std::vector<Item> logItems = DrawLog(logAbs);
  EXPECT_EQ(Only<CurveItem>(logItems).size(), 2u);
  ExpectOnCurve(logItems, [](double x) { return std::log2(std::fabs(x)); });
  ExpectOnCurve(DrawReciprocal({2, 0.4, -5, 5}), [](double x) { return 2 / x; });

  TrigParams sine;
  sine.A = 2, sine.w = 2, sine.F = 1, sine.K = 0.5;
  sine.segments = {{0, 6.28, true, true}};
  Labels labels;
  ExpectOnCurve(DrawTrig(sine, labels), [](double x) { return 2 * std::sin(2 * x + 1) + 0.5; });
}

TEST(Conics, FociDirectricesAndAsymptotes) {
  // x^2/25 + y^2/9 = 1 about (1, -1): c = 4, directrices at a^2/c = 25/4.
  ConicParams e;
  e.cx = 1, e.cy = -1, e.a2 = 25, e.b2 = 9, e.focus = e.directrix = true;
  std::vector<Item> ellipse = DrawEllipse(e);
  OvalItem oval = Only<OvalItem>(ellipse).at(0);
  EXPECT_DOUBLE_EQ(oval.rx, 5);
  EXPECT_DOUBLE_EQ(oval.ry, 3);
  std::vector<DotItem> foci = Only<DotItem>(ellipse);
  ASSERT_EQ(foci.size(), 2u);
  EXPECT_DOUBLE_EQ(foci[0].at.x, 1 - 4);
  EXPECT_DOUBLE_EQ(foci[1].at.x, 1 + 4);
  EXPECT_FLOAT_EQ(foci[0].offsetX, -1.2f);
  std::vector<LineItem> directrices = Only<LineItem>(ellipse);
  EXPECT_DOUBLE_EQ(directrices[0].from.x, 1 - 25.0 / 4);
  EXPECT_DOUBLE_EQ(directrices[1].to.x, 1 + 25.0 / 4);

  e.horizontal = false;
  std::vector<DotItem> upright = Only<DotItem>(DrawEllipse(e));
  EXPECT_DOUBLE_EQ(upright[0].at.y, -1 + 4);
  EXPECT_FLOAT_EQ(upright[0].offsetX, 0);  // placed at the point itself
  EXPECT_FLOAT_EQ(upright[0].offsetY, 0);

  // x^2/9 - y^2/16 = 1: c = 5, directrices 9/5, asymptotes y = ±4/3 x.
  ConicParams h;
  h.hyperbola = true, h.a2 = 9, h.b2 = 16, h.from = -4, h.to = 4;
  h.focus = h.directrix = h.asymptotes = true;
  std::vector<Item> hyperbola = DrawHyperbola(h);
  std::vector<CurveItem> branches = Only<CurveItem>(hyperbola);
  ASSERT_EQ(branches.size(), 2u);
  for (int side : {0, 1}) {
    double sign = side == 0 ? -1 : 1;  // the left branch first
    ExpectOnCurve(
        {branches[side]}, [sign](double y) { return sign * std::sqrt(9 * (1 + y * y / 16)); },
        true);
  }
  std::vector<DotItem> hf = Only<DotItem>(hyperbola);
  EXPECT_DOUBLE_EQ(hf[0].at.x, -5);
  EXPECT_DOUBLE_EQ(hf[1].at.x, 5);
  EXPECT_FLOAT_EQ(hf[0].offsetY, -1.2f);  // left focus offset both ways
  EXPECT_FLOAT_EQ(hf[1].offsetX, -1.2f);  // right focus only in x
  EXPECT_FLOAT_EQ(hf[1].offsetY, 0);
  std::vector<LineItem> lines = Only<LineItem>(hyperbola);
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_DOUBLE_EQ(lines[0].from.x, -9.0 / 5);
  for (int i : {2, 3}) {
    double slope = (lines[i].to.y - lines[i].from.y) / (lines[i].to.x - lines[i].from.x);
    EXPECT_NEAR(std::fabs(slope), 4.0 / 3, 1e-12);
    EXPECT_NEAR(lines[i].from.y, slope * lines[i].from.x, 1e-9);  // through the centre
  }

  // y = (x - 1)^2 / 4 + 2: focus 1 above the vertex, directrix 1 below.
  ParabolaParams p;
  p.h = 1, p.k = 2, p.q = 4, p.focus = p.directrix = true, p.from = -3, p.to = 5;
  std::vector<Item> parabola = DrawParabola(p);
  ExpectOnCurve(parabola, [](double x) { return (x - 1) * (x - 1) / 4 + 2; });
  EXPECT_DOUBLE_EQ(Only<DotItem>(parabola)[0].at.y, 3);
  EXPECT_DOUBLE_EQ(Only<LineItem>(parabola)[0].from.y, 1);
}

TEST(Axes, StepsGridAndLabels) {
  EXPECT_EQ(TickStep(View{}, true), 1);
  EXPECT_EQ(TickStep(View{-50, 50, -50, 50}, true), 10);
  EXPECT_EQ(TickStep(View{-50, 50, -50, 50}, false), 1);
  DrawnObject grid = DrawGrid(View{}, Look{});
  EXPECT_EQ(grid.items.size(), 16u);  // -4..4 without 0, both ways
  for (const LineItem& l : Only<LineItem>(grid.items)) {
    EXPECT_NE(l.from.x == l.to.x ? l.from.x : l.from.y, 0);
    EXPECT_LT(std::fabs(l.from.x == l.to.x ? l.from.x : l.from.y), 5);
  }

  AxesRecord zbx;
  std::vector<Tick> x, y;
  AxesDrawing none = DrawAxes(zbx, AxisOptions{}, x, y);
  EXPECT_TRUE(none.xTicks.empty());
  EXPECT_TRUE(x.empty());
  zbx.drawScale = true;
  DrawAxes(zbx, AxisOptions{}, x, y);
  EXPECT_EQ(x.size(), 8u);
  x.push_back({2, u"2", u"point_x"});          // doubles an axis number: dropped
  x.push_back({3.14159f, u"@p", u"sj_x"});     // crowds the axis number 3: that gives way
  x.push_back({3.14159f, u"(3)/1", u"sj_x"});  // a formula at the same place stays
  TickLabels labels = CollectTickLabels(x, y);
  std::vector<std::u16string> plain, formula;
  for (const Tick& t : labels.plainX) plain.push_back(t.text);
  for (const Tick& t : labels.formulaX) formula.push_back(t.text);
  EXPECT_EQ(plain, (std::vector<std::u16string>{u"-4", u"-3", u"-2", u"-1", u"1", u"2", u"4"}));
  EXPECT_EQ(formula, (std::vector<std::u16string>{u"@p", u"(3)/1"}));
  // Where numbers crowd, every other one stays, nearest the origin first,
  // and none next to an object's label or the origin.
  TickLabels thin = Thinned(labels, 1.5);
  std::vector<std::u16string> kept;
  for (const Tick& t : thin.plainX) kept.push_back(t.text);
  EXPECT_EQ(kept, (std::vector<std::u16string>{u"-4", u"-2"}));  // 2 and 4 crowd pi
  EXPECT_EQ(thin.formulaX.size(), 2u);
  EXPECT_EQ(NumberLabel(-1.5), u"-1.5");
  EXPECT_EQ(NumberLabel(2), u"2");
}

}  // namespace
}  // namespace lp::graph
