#include "charts/histogram.h"

#include <gtest/gtest.h>

#include "runtime/error.h"

namespace lp::charts {
namespace {

using figures::FigureShape;
using figures::ShapeKind;

double NoRandom() {
  return 0.5;
}

std::vector<const FigureShape*> Columns(const figures::ShapeList& shapes) {
  std::vector<const FigureShape*> columns;
  for (const FigureShape& s : shapes)
    if (s.kind == ShapeKind::kRectangle) columns.push_back(&s);
  return columns;
}

const FigureShape* Named(const figures::ShapeList& shapes, const std::u16string& name) {
  for (const FigureShape& s : shapes)
    if (s.name == name) return &s;
  return nullptr;
}

TEST(Histogram, DefaultDataSortedWithItsMaximumTotalAndStep) {
  HistogramData d = ReadHistogramData(u"3,5,6,4,7,5,4");
  EXPECT_EQ(d.sorted, (std::vector<int16_t>{3, 4, 4, 5, 5, 6, 7}));
  EXPECT_EQ(d.values, (std::vector<int16_t>{3, 5, 6, 4, 7, 5, 4}));
  EXPECT_EQ(d.maxValue, 7);
  EXPECT_EQ(d.total, 34);
  EXPECT_EQ(d.gap, 1);
  // A trailing comma and full-width colons read the same.
  EXPECT_EQ(ReadHistogramData(u" 3：5：6,4,7,5,4, ").values, d.values);
  EXPECT_EQ(ReadHistogramData(u"10,30,20").gap, 10);
  EXPECT_EQ(ReadHistogramData(u"5,5").gap, 0);
}

TEST(Histogram, RelativeFrequencyLabelsAndTheFractionCaption) {
  HistogramRequest r;
  r.type = ChartType::kRelativeFrequency;
  r.captionY = u"频率/组距";
  figures::ShapeList shapes = Histogram(r, NoRandom).shapes;
  const FigureShape* first = Named(shapes, u"频率/组距y 1");
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first->text, u"0.009");  // 3 / (34 x 10)
  const FigureShape* caption = Named(shapes, u"频率/组距文字标注");
  ASSERT_NE(caption, nullptr);
  EXPECT_TRUE(caption->textIsEqField);
  EXPECT_EQ(caption->text, u"EQ \\F(频率,组距)");

  int labels = 0;
  for (const FigureShape& s : shapes) labels += s.name.starts_with(u"频率/组距y");
  EXPECT_EQ(labels, 5);  // 3, 4, 5, 6, 7: repeated values are marked once

  r.captionY = u"频率";
  caption = Named(Histogram(r, NoRandom).shapes, u"频率/组距文字标注");
  EXPECT_FALSE(caption->textIsEqField);
  EXPECT_EQ(caption->text, u"频率");
}

TEST(Histogram, BarsTouchAndStandInProportionToTheirValues) {
  for (bool framed : {false, true}) {
    SCOPED_TRACE(framed ? "framed" : "plain");
    HistogramRequest r;
    r.framed = framed;
    r.data = u"3,5,6,4,7,5,4";
    figures::ShapeList shapes = Histogram(r, NoRandom).shapes;
    std::vector<const FigureShape*> bars = Columns(shapes);
    const double values[] = {3, 5, 6, 4, 7, 5, 4};
    ASSERT_EQ(bars.size(), 7u);
    for (size_t i = 0; i < bars.size(); ++i) {
      EXPECT_NEAR(bars[i]->top + bars[i]->height, 180, 1e-3);
      EXPECT_NEAR(bars[i]->height / values[i], bars[0]->height / values[0], 1e-3);
      if (i > 0) {
        EXPECT_NEAR(bars[i - 1]->left + bars[i - 1]->width, bars[i]->left, 1e-3);
      }
    }
    // The tallest bar stays below the top of the y axis.
    EXPECT_LT(bars[4]->height, 4 * 28.4);
    // First class boundary 20 is not 0: the bars start one unit right of the axis.
    EXPECT_GT(bars[0]->left, 180);
  }
}

TEST(Histogram, ClassLabelsCloseTheLastClassAndBarChartsLeaveGaps) {
  HistogramRequest r;
  figures::ShapeList shapes = Histogram(r, NoRandom).shapes;
  ASSERT_NE(Named(shapes, u"样本文字x8"), nullptr);
  EXPECT_EQ(Named(shapes, u"样本文字x8")->text, u"90");
  EXPECT_NE(Named(shapes, u"x轴折线部分"), nullptr);

  r.type = ChartType::kBar;
  r.brokenAxis = false;
  r.firstValue = u"0";
  shapes = Histogram(r, NoRandom).shapes;
  EXPECT_EQ(Named(shapes, u"样本文字x8"), nullptr);
  EXPECT_EQ(Named(shapes, u"x轴折线部分"), nullptr);
  std::vector<const FigureShape*> bars = Columns(shapes);
  EXPECT_FLOAT_EQ(bars[0]->left, 180);
  EXPECT_LT(bars[0]->left + bars[0]->width, bars[1]->left);
  EXPECT_NE(Named(shapes, u"条形图1左竖线"), nullptr);
}

TEST(Histogram, FillsFromTheRandomSource) {
  HistogramRequest r;
  r.fill = true;
  EXPECT_EQ(Columns(Histogram(r, NoRandom).shapes)[0]->rgb, 127 | (127 << 8) | (127 << 16));
  r.shading = true;
  EXPECT_EQ(Columns(Histogram(r, NoRandom).shapes)[0]->pattern, 31);  // Int(34 x 0.5 + 14)
  r.type = ChartType::kBar;
  EXPECT_EQ(Columns(Histogram(r, NoRandom).shapes)[0]->pattern, 22);
}

TEST(Histogram, FixedYScaleAndRefusals) {
  HistogramRequest r;
  r.fixedYScale = true;
  r.data = u"300,500,600";
  ChartResult result = Histogram(r, NoRandom);
  EXPECT_TRUE(result.refusal.empty());
  EXPECT_NE(Named(result.shapes, u"刻度文字y700"), nullptr);
  EXPECT_EQ(Named(result.shapes, u"频数文字y300"), nullptr);

  r.yStart = u"0";
  result = Histogram(r, NoRandom);
  EXPECT_EQ(result.refusal, kYScaleRefused);
  EXPECT_TRUE(result.shapes.empty());

  HistogramRequest equal;
  equal.data = u"5,5,5";
  EXPECT_THROW(Histogram(equal, NoRandom), RuntimeError);
  equal.data = u"40000";
  EXPECT_THROW(Histogram(equal, NoRandom), RuntimeError);
}

}  // namespace
}  // namespace lp::charts
