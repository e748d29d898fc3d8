#include "figures/point_labels.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lp::figures {
namespace {

Point Centre(const FigureShape& s) {
  return {s.left + s.width / 2, s.top + s.height / 2};
}

TEST(PointLabels, NamesReadPrimesAndSubscripts) {
  const struct {
    const char16_t* typed;
    const char16_t* text;
    std::vector<long> subscripts;
  } rows[] = {{u"A", u"A", {}},    {u"B'", u"B′", {}},        {u"P''", u"P′′", {}},
              {u"A1", u"A1", {2}}, {u"A_12", u"A12", {2, 3}}, {u"C1'", u"C1′", {2}}};
  for (const auto& row : rows) {
    PointName name;
    ASSERT_TRUE(ParsePointName(row.typed, name)) << std::string(row.text, row.text + 1);
    EXPECT_EQ(name.text, row.text);
    EXPECT_EQ(name.subscripts, row.subscripts);
  }
  PointName name;
  for (const char16_t* bad : {u"", u"1A", u"甲", u"A-B", u"A_"})
    EXPECT_FALSE(ParsePointName(bad, name));
  EXPECT_EQ(ContinueNames({u"A"}, 4), (std::vector<std::u16string>{u"A", u"B", u"C", u"D"}));
  EXPECT_EQ(ContinueNames({u"P1", u"P2"}, 4),
            (std::vector<std::u16string>{u"P1", u"P2", u"P3", u"P4"}));
  EXPECT_EQ(ContinueNames({u"M'"}, 2), (std::vector<std::u16string>{u"M'", u"N'"}));
}

// Points spread evenly from the origin; every name stands clear of its dot
// on the chosen side, moved by the typed offset.
TEST(PointLabels, PointsSpreadAlongTheSegmentWithTheirNames) {
  PointLabelRequest r;
  r.alongSegment = true;
  r.names = u"A，B";
  r.count = u"5";
  r.length = u"4";
  r.place = LabelPlace::kBelow;
  r.dy = u"2";
  const PointLabelFigure f = MakePointLabels(r);
  ASSERT_TRUE(f.error.empty()) << std::string(f.error.begin(), f.error.end());
  ASSERT_EQ(f.shapes.size(), 1u + 2 * 5);
  EXPECT_EQ(f.shapes[0].kind, ShapeKind::kLine);
  EXPECT_NEAR(f.shapes[0].points[1].x - f.shapes[0].points[0].x, 4 * 28.4, 0.01);
  const char16_t* names[] = {u"A", u"B", u"C", u"D", u"E"};
  for (int i = 0; i < 5; ++i) {
    const FigureShape& dot = f.shapes[1 + 2 * i];
    const FigureShape& name = f.shapes[2 + 2 * i];
    EXPECT_EQ(dot.kind, ShapeKind::kOval);
    EXPECT_EQ(dot.fill, FillKind::kColor);
    EXPECT_NEAR(Centre(dot).x, 180 + i * 28.4, 0.01);
    EXPECT_NEAR(Centre(dot).y, 180, 0.01);
    EXPECT_EQ(name.text, names[i]);
    EXPECT_TRUE(name.textStyle.italic);
    EXPECT_EQ(name.textStyle.latinFont, u"Times New Roman");
    EXPECT_NEAR(Centre(name).x, Centre(dot).x, 0.01);
    EXPECT_NEAR(name.top, dot.top + dot.height + 1.5f + 2, 0.01);
  }
}

TEST(PointLabels, EveryPlaceKeepsTheNameOffTheDot) {
  for (int place = 0; place < 8; ++place) {
    PointLabelRequest r;
    r.names = u"Q";
    r.place = static_cast<LabelPlace>(place);
    const PointLabelFigure f = MakePointLabels(r);
    ASSERT_EQ(f.shapes.size(), 2u);
    const FigureShape& dot = f.shapes[0];
    const FigureShape& name = f.shapes[1];
    const bool apart = name.left >= dot.left + dot.width || name.left + name.width <= dot.left ||
                       name.top >= dot.top + dot.height || name.top + name.height <= dot.top;
    EXPECT_TRUE(apart) << place;
  }
}

TEST(PointLabels, RefusedInputsSayWhy) {
  const struct {
    const char* row;
    bool segment;
    const char16_t *names, *count, *length, *dx, *size;
  } rows[] = {
      {"no name", false, u"", u"3", u"4", u"0", u"10.5"},
      {"bad name", false, u"AB", u"3", u"4", u"0", u"10.5"},
      {"two names, one point", false, u"A B", u"3", u"4", u"0", u"10.5"},
      {"offset not a number", false, u"A", u"3", u"4", u"x", u"10.5"},
      {"size too small", false, u"A", u"3", u"4", u"0", u"2"},
      {"one point on a segment", true, u"A", u"1", u"4", u"0", u"10.5"},
      {"count not whole", true, u"A", u"2.5", u"4", u"0", u"10.5"},
      {"more names than points", true, u"A B C", u"2", u"4", u"0", u"10.5"},
      {"length zero", true, u"A", u"3", u"0", u"0", u"10.5"},
  };
  for (const auto& row : rows) {
    PointLabelRequest r;
    r.alongSegment = row.segment;
    r.names = row.names;
    r.count = row.count;
    r.length = row.length;
    r.dx = row.dx;
    r.size = row.size;
    const PointLabelFigure f = MakePointLabels(r);
    EXPECT_FALSE(f.error.empty()) << row.row;
    EXPECT_TRUE(f.shapes.empty()) << row.row;
  }
}

}  // namespace
}  // namespace lp::figures
