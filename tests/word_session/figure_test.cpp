#include <gtest/gtest.h>

#include "runtime/error.h"
#include "runtime/recording_prompt.h"
#include "session/figure.h"
#include "word/fake/fake_word.h"

namespace {

using word::fake::CallDiff;

class FigureTest : public ::testing::Test {
 protected:
  word::fake::FakeWord word_;
  lp::RecordingPrompt prompt_;
  lp::Session session_{word_, prompt_};
};

TEST_F(FigureTest, CaretAnchorStaysOnThePage) {
  struct Row {
    const char* name;
    double x, y;
    float anchorX, anchorY;
  };
  const Row rows[] = {
      {"inside", 100, 200, 100, 200},
      {"near the corner", 5, 19.5, 20, 20},
      {"past the page", 600, 900, 595.3f - 10, 841.9f - 10},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    word_.Set("Selection.Information(5)", row.x);
    word_.Set("Selection.Information(6)", row.y);
    lp::GetCaretAnchor(session_);
    EXPECT_FLOAT_EQ(session_.AnchorX, row.anchorX);
    EXPECT_FLOAT_EQ(session_.AnchorY, row.anchorY);
  }
}

TEST_F(FigureTest, ShapeNamesJoinBaseNumberTimeAndSuffix) {
  session_.ShapeCounter = 1;
  std::u16string name = lp::MakeShapeName(session_, u"区间");
  ASSERT_EQ(name.substr(0, 3), u"区间：");
  ASSERT_GT(name.size(), 3u + 9u);
  EXPECT_EQ(name.substr(name.size() - 9), u"_lumenpad");
  std::u16string digits = name.substr(3, name.size() - 3 - 9);
  EXPECT_EQ(digits.find_first_not_of(u"0123456789"), std::u16string::npos);
  EXPECT_NE(digits[0], u'0');  // the random number runs from 1 to 999
  EXPECT_EQ(session_.ShapeNames, std::vector<std::u16string>{name});

  // A long base is cut at 32 characters and stored as cut.
  session_.ShapeCounter = 3;
  std::u16string base(30, u'长');
  name = lp::MakeShapeName(session_, base);
  EXPECT_EQ(name.size(), 32u);
  EXPECT_EQ(name.substr(0, 31), base + u"：");
  ASSERT_EQ(session_.ShapeNames.size(), 3u);
  EXPECT_EQ(session_.ShapeNames[2], name);
  EXPECT_EQ(session_.ShapeNames[1], u"");

  session_.ShapeCounter = 0;
  EXPECT_THROW(lp::MakeShapeName(session_, u"x"), lp::RuntimeError);
}

TEST_F(FigureTest, ColumnArithmeticNamesKeepDateTimeAndNumberWhole) {
  std::u16string name = lp::strGetShapeName(u"竖式横线");
  ASSERT_EQ(name.substr(0, 5), u"竖式横线：");
  EXPECT_EQ(name.substr(name.size() - 9), u"_lumenpad");
  std::u16string digits = name.substr(5, name.size() - 5 - 9);
  EXPECT_EQ(digits.find_first_not_of(u"0123456789"), std::u16string::npos);
  EXPECT_GE(digits.size(), 4u + 1 + 1 + 1 + 2 + 2 + 1);  // year, date, time, number
  EXPECT_TRUE(session_.ShapeNames.empty());
}

TEST_F(FigureTest, ClosingAFigureGroupsNamesAndPlacesIt) {
  word_.AddScriptedShape(u"a", word::msoLine, 180, 180, 50, 0);
  word_.AddScriptedShape(u"b", word::msoTextBox, 200, 170, 20, 20);
  session_.ShapeNames = {u"a", u"b"};
  session_.ShapeCounter = 2;
  word_.Set("Selection.Information(5)", 100.0);
  word_.Set("Selection.Information(6)", 150.0);

  lp::CloseFigure(session_, u"区间");

  EXPECT_EQ(
      CallDiff(word_.Calls(), {"Shapes.Range(\"a\",\"b\").Group()", "Shape3.Select(True)",
                               "Selection.ShapeRange.Name=\"区间：*_lumenpad\"",
                               "Selection.ShapeRange.ZOrder(1)", "Selection.ShapeRange.ZOrder(4)",
                               "Selection.ShapeRange.Left=100", "Selection.ShapeRange.Top=150"}),
      "");
  ASSERT_EQ(word_.ShapeNames().size(), 1u);
  EXPECT_EQ(word_.ShapeNames()[0], session_.ShapeNames[1]);
  EXPECT_EQ(session_.ShapeCounter, 2);
}

}  // namespace
