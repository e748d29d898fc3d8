#include "figures/draw_list.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "runtime/recording_prompt.h"
#include "word/fake/fake_word.h"

namespace lp::figures {
namespace {

class DrawListTest : public ::testing::Test {
 protected:
  bool Called(const std::string& call) const {
    const auto& calls = word_.Calls();
    return std::find(calls.begin(), calls.end(), call) != calls.end();
  }
  word::fake::FakeWord word_;
  RecordingPrompt prompt_;
  Session session_{word_, prompt_};
};

TEST_F(DrawListTest, EachKindIsAddedNamedAndGrouped) {
  FigureShape axis = Line(u"y轴", 180, 180, 180, 60);
  axis.axisArrows = true;
  FigureShape mark = Line(u"刻度", 180, 100, 200, 100);
  mark.dashed = true;
  FigureShape cell = Label(u"ss_(1,1)", u"7", 50, 50, 20, 20);
  cell.kind = ShapeKind::kRectangle;
  cell.naming = Naming::kExact;
  FigureShape caption = Label(u"标注", u"频率/组距", 185, 10, 25, 40);
  caption.text = u"EQ \\F(频率,组距)";
  caption.textIsEqField = true;
  FigureShape bracket = Line(u"括号", 0, 0, 0, 0);
  bracket.kind = ShapeKind::kFreeform;
  bracket.curvedSegments = true;
  bracket.naming = Naming::kUniqueName;
  bracket.points = {{0, 0}, {1, 1}, {2, 2}, {3, 3}};

  ASSERT_TRUE(DrawFigure(session_, {axis, mark, cell, caption, bracket}, u"组合"));
  for (const char* call :
       {"Shapes.AddLine(180,180,180,60)", "Shape1.Line.EndArrowheadStyle=4",
        "Shape2.Line.DashStyle=4", "Shapes.AddShape(1,50,50,20,20)", "Shape3.Name=\"ss_(1,1)\"",
        "Shape3.Fill.Visible=False", "Shape3.Line.Visible=False",
        "Shapes.AddTextbox(1,185,10,25,40)", "Shape4.TextFrame.MarginLeft=0",
        "Shape4.WrapFormat.Type=3", "FreeformBuilder.AddNodes(1,1,1,1,2,2,3,3)",
        "Application.ScreenUpdating=True"}) {
    EXPECT_TRUE(Called(call)) << call;
  }
  EXPECT_EQ(session_.ShapeCounter, 0);
  EXPECT_TRUE(session_.ShapeNames.empty());
  std::vector<word::Text> top = word_.ShapeNames();
  ASSERT_EQ(top.size(), 1u);
  EXPECT_EQ(top[0].substr(0, 3), u"组合：");
}

TEST_F(DrawListTest, EmptyFiguresTouchNothing) {
  EXPECT_FALSE(DrawFigure(session_, {}, u"区间"));
  EXPECT_TRUE(word_.Calls().empty());
}

}  // namespace
}  // namespace lp::figures
