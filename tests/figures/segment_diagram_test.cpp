#include "figures/segment_diagram.h"

#include <gtest/gtest.h>

#include "runtime/error.h"

namespace lp::figures {
namespace {

std::vector<std::u16string> Names(const ShapeList& shapes) {
  std::vector<std::u16string> names;
  for (const FigureShape& s : shapes) names.push_back(s.name);
  return names;
}

TEST(SegmentDiagram, RatioSumRoundsHalfToEvenAfterEachAddition) {
  EXPECT_EQ(RatioSum(SplitRatio(u"1.5:1.5")), 4);  // 1.5 -> 2, 3.5 -> 4
  EXPECT_EQ(RatioSum(SplitRatio(u"2.5:1")), 3);    // 2.5 -> 2, 3
  EXPECT_EQ(RatioSum(SplitRatio(u"2:1:1")), 4);
  EXPECT_TRUE(SplitRatio(u"5").empty());
}

TEST(SegmentDiagram, RatioCutsTheBarAtTheRunningSums) {
  SegmentRequest r;  // 8 cm, 2 mm, 2:1:1
  ShapeList shapes = SegmentDiagram(r);
  EXPECT_EQ(Names(shapes),
            (std::vector<std::u16string>{u"线段竖线1", u"线段竖线2", u"线段横线1", u"线段竖线3",
                                         u"线段横线2", u"线段竖线4", u"线段横线3"}));
  const float u = 8 * 28.4f / 4;
  const float tick[] = {180, 180 + 2 * u, 180 + 3 * u, 180 + 4 * u};
  for (int i = 0; i < 4; ++i) {
    const FigureShape& t = shapes[i == 0 ? 0 : 2 * i - 1];
    EXPECT_FLOAT_EQ(t.points[0].x, tick[i]);
    EXPECT_FLOAT_EQ(t.points[1].x, tick[i]);
    EXPECT_FLOAT_EQ(t.points[0].y, 180 - 6);  // 2 mm x 2.84, rounded
    EXPECT_FLOAT_EQ(t.points[1].y, 180);
  }
  EXPECT_FLOAT_EQ(shapes[4].points[0].x, tick[1]);
  EXPECT_FLOAT_EQ(shapes[4].points[1].x, tick[2]);
}

TEST(SegmentDiagram, FullWidthColonsDrawAsNarrowOnes) {
  SegmentRequest narrow;
  SegmentRequest wide;
  wide.ratio = u"2：1：1";
  ShapeList a = SegmentDiagram(narrow);
  ShapeList b = SegmentDiagram(wide);
  ASSERT_EQ(a.size(), b.size());
  for (size_t i = 0; i < a.size(); ++i) EXPECT_FLOAT_EQ(a[i].points[1].x, b[i].points[1].x);
}

TEST(SegmentDiagram, HalvesThatRoundUpLeaveTheBarShort) {
  SegmentRequest r;
  r.ratio = u"1.5:1.5";
  ShapeList shapes = SegmentDiagram(r);
  EXPECT_FLOAT_EQ(shapes.back().points[1].x, 180 + 8 * 28.4f * 3 / 4);
}

TEST(SegmentDiagram, EqualPartsAndNothingToDraw) {
  SegmentRequest r;
  r.equalParts = true;
  ShapeList shapes = SegmentDiagram(r);
  ASSERT_EQ(shapes.size(), 7u);
  EXPECT_EQ(shapes.back().name, u"线段竖线4");
  EXPECT_FLOAT_EQ(shapes.back().points[0].x, 180 + 8 * 28.4f);
  EXPECT_EQ(shapes[3].name, u"线段横线2");
  EXPECT_FLOAT_EQ(shapes[3].points[0].x, 180 + 8 * 28.4f / 3);

  r.parts = u"0";
  EXPECT_TRUE(SegmentDiagram(r).empty());
  r.equalParts = false;
  r.ratio = u"5";
  EXPECT_TRUE(SegmentDiagram(r).empty());
  r.ratio = u"0:0";
  EXPECT_THROW(SegmentDiagram(r), RuntimeError);
}

}  // namespace
}  // namespace lp::figures
