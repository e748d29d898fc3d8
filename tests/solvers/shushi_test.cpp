#include "solvers/shushi.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "runtime/recording_prompt.h"
#include "solvers/vertical_arithmetic.h"
#include "word/fake/fake_word.h"

namespace lp {
namespace {

class ShuShiTest : public ::testing::Test {
 protected:
  long CountOf(const std::string& prefix) const {
    return std::count_if(word_.Calls().begin(), word_.Calls().end(),
                         [&](const std::string& c) { return c.rfind(prefix, 0) == 0; });
  }
  word::fake::FakeWord word_;
  RecordingPrompt prompt_;
  Session session_{word_, prompt_};
};

TEST_F(ShuShiTest, SelectedSumBecomesOneGroupAtTheCaret) {
  word_.Set("Selection.Type", 2);
  word_.SetSelectionText(u" 123+45 ");
  word_.Set("Selection.Information(5)", 150);
  word_.Set("Selection.Information(6)", 300);
  ShuShi(session_);
  EXPECT_TRUE(prompt_.Shown().empty());
  EXPECT_EQ(CountOf("Shapes.AddShape(1,"), 12);
  EXPECT_EQ(CountOf("Shapes.AddLine("), 1);
  std::vector<word::Text> top = word_.ShapeNames();
  ASSERT_EQ(top.size(), 1u);
  EXPECT_EQ(top[0].substr(0, 3), u"竖式：");
  EXPECT_NE(std::find(word_.Calls().begin(), word_.Calls().end(), "Shape14.Left=150"),
            word_.Calls().end());
}

TEST_F(ShuShiTest, ASelectedTextBoxGivesItsText) {
  word_.AddScriptedShape(u"box", word::msoTextBox, 100, 100, 80, 20);
  word_.ActiveDocument().Shapes().Item(u"box")->TextFrame().TextRange()->SetText(u"12×3");
  word_.SelectShapes({u"box"});
  ShuShi(session_);
  EXPECT_TRUE(prompt_.Shown().empty());
  EXPECT_EQ(CountOf("Shapes.AddShape(1,"), 9);  // 12, x 3 and 36 in three columns
}

TEST_F(ShuShiTest, AsksUntilTheTextHoldsAnOperatorAndRefusesBadSums) {
  word_.Set("Selection.Type", 1);
  prompt_.Answer(u"");
  prompt_.Answer(u"0+3");
  ShuShi(session_);
  ASSERT_EQ(prompt_.Shown().size(), 3u);
  EXPECT_EQ(prompt_.Shown()[0].prompt, kColumnSumPrompt);
  EXPECT_EQ(prompt_.Shown()[0].title, kColumnSumTitle);
  EXPECT_EQ(prompt_.Shown()[2].prompt, kColumnSumRefused);
  EXPECT_EQ(CountOf("Shapes."), 0);

  prompt_.Clear();
  ShuShi(session_);  // cancelled: nothing drawn, nothing more asked
  EXPECT_EQ(prompt_.Shown().size(), 1u);
  EXPECT_EQ(CountOf("Shapes."), 0);
}

}  // namespace
}  // namespace lp
