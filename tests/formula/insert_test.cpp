// The gs and mhgs commands against the recording Word.
#include <gtest/gtest.h>

#include <algorithm>

#include "formula/commands.h"
#include "formula/insert.h"
#include "formula/script_pass.h"
#include "runtime/recording_prompt.h"
#include "runtime/utf8.h"
#include "word/fake/fake_word.h"

namespace lp {
namespace {

class GsTest : public ::testing::Test {
 protected:
  word::fake::FakeWord word;
  RecordingPrompt prompt;
  Session session{word, prompt};
  DriverControl control = DriverControl::WithTimeout(std::chrono::milliseconds(200));

  GsOutcome Gs(const std::u16string& selected) {
    word.SetSelectionText(selected);
    return RunGs(session, control);
  }
  long CountCalls(const std::string& prefix) const {
    return std::count_if(word.Calls().begin(), word.Calls().end(),
                         [&](const std::string& c) { return c.rfind(prefix, 0) == 0; });
  }
  bool Called(const std::string& line) const {
    return std::find(word.Calls().begin(), word.Calls().end(), line) != word.Calls().end();
  }
  std::string AllCalls() const {
    std::string all;
    for (const auto& c : word.Calls()) all += c + "\n";
    return all;
  }
};

TEST_F(GsTest, FractionBecomesFieldWithShrunkScript) {
  word.QueueFindResults({true});
  EXPECT_EQ(Gs(u"x^2/2"), GsOutcome::kDone);
  EXPECT_TRUE(Called("Selection.Fields.Add(Selection.Range,-1,\"EQ \\F(x\\S(2),2)\",False)"))
      << AllCalls();
  EXPECT_TRUE(Called("Selection.Find.Text=\"\\S(2)\"")) << AllCalls();
  EXPECT_TRUE(Called("Selection.Font.Size=7")) << AllCalls();  // 70 percent of 10.5, cut
  EXPECT_EQ(CountCalls("Selection.Fields.ToggleShowCodes"), 2);
  EXPECT_EQ(CountCalls("Selection.Characters"), 0);  // no font pass without EmbellishFormula
}

TEST_F(GsTest, SemicolonGivesOneFieldAndOneBlankEach) {
  EXPECT_EQ(Gs(u"a;b+1"), GsOutcome::kDone);
  EXPECT_EQ(CountCalls("Selection.Fields.Add("), 2);
  EXPECT_TRUE(Called("Selection.Fields.Add(Selection.Range,-1,\"EQ b＋1\",False)")) << AllCalls();
  EXPECT_EQ(CountCalls("Selection.TypeText(\" \")"), 2);
}

TEST_F(GsTest, ShortSelectionOpensDialogAndUnbalancedInsertsNothing) {
  EXPECT_EQ(Gs(u"x"), GsOutcome::kShowDialog);
  EXPECT_EQ(Gs(u"(x+1"), GsOutcome::kDone);
  EXPECT_EQ(CountCalls("Selection.Fields.Add("), 0);
  ASSERT_EQ(prompt.Shown().size(), 1u);
  EXPECT_EQ(prompt.Shown()[0].prompt, u"您输入的表达式括号不匹配，请检查您的输入");
}

TEST_F(GsTest, NeverEndingFormulaLeavesDocumentUntouched) {
  EXPECT_EQ(Gs(u"xl+1"), GsOutcome::kTimedOut);
  EXPECT_EQ(CountCalls("Selection.Fields"), 0);
  EXPECT_EQ(CountCalls("Selection.Range.Text="), 0);
  EXPECT_EQ(prompt.Shown().size(), 1u);
}

TEST_F(GsTest, MathTypeRouteTypesTexAndToggles) {
  session.config.blMathType = -1;
  EXPECT_EQ(Gs(u"(a+b)/2;c"), GsOutcome::kDone);
  EXPECT_TRUE(Called("Selection.TypeText(\"$\\frac{a+b}{2};c$\")")) << AllCalls();
  EXPECT_TRUE(Called("Application.Run(\"MTCommand_TeXToggle\")")) << AllCalls();
}

TEST_F(GsTest, FontPassStylesCharactersOfTheCode) {
  session.config.EmbellishFormula = -1;
  InsertEqField(session, u"EQ @a+-x2");
  const std::string all = AllCalls();
  EXPECT_NE(all.find("Characters(4).Text=\"a\""), std::string::npos) << all;
  EXPECT_NE(all.find("Characters(4).Font.Name=\"Symbol\""), std::string::npos) << all;
  EXPECT_NE(all.find("Characters(5).Text=\"±\""), std::string::npos) << all;
  EXPECT_NE(all.find("Characters(7).Font.Italic=-1"), std::string::npos) << all;
  EXPECT_NE(all.find("Characters(8).Font.Italic=0"), std::string::npos) << all;
}

TEST(ScriptPass, RaisedAndLoweredCharacters) {
  auto plain = [](char16_t c) { return ScriptChar{std::u16string(1, c), false, false}; };
  auto up = [](char16_t c) { return ScriptChar{std::u16string(1, c), true, false}; };
  auto down = [](char16_t c) { return ScriptChar{std::u16string(1, c), false, true}; };
  EXPECT_EQ(ScriptPassText({plain('x'), up('2'), plain('+'), plain('1')}), u"x^(2)+1");
  EXPECT_EQ(ScriptPassText({plain('x'), up('2'), plain('y')}), u"x^(2)");  // y is dropped
  EXPECT_EQ(ScriptPassText({plain('x'), down('2')}), u"x^(2)");
  EXPECT_EQ(ScriptPassText({plain('a'), down('1'), down('2')}), u"a^(12)");
  EXPECT_EQ(ScriptPassText({plain('a'), down('n'), plain('+'), plain('b')}), u"a_(n)+b");
  EXPECT_EQ(ScriptPassText({plain('a'), plain(';'), plain('b')}), u"a;b");
}

TEST(CollectScripts, HeadsDigitsAndGroups) {
  EXPECT_EQ(
      CollectScripts(u"EQ x\\S(2)+A\\o(\\S\\UP5(5),\\S\\DO3(3))+a\\S\\DO(\\S(1))"),
      (std::vector<std::u16string>{u"\\S(2)", u"\\S\\UP5(5)", u"\\S\\DO3(3)", u"\\S\\DO(\\S(1))"}));
}

TEST(Mhgs, SignsThenLettersThenDigits) {
  word::fake::FakeWord word;
  RecordingPrompt prompt;
  Session session{word, prompt};
  RunMhgs(session);
  const auto& calls = word.Calls();
  auto at = [&](const std::string& line) {
    return std::find(calls.begin(), calls.end(), line) - calls.begin();
  };
  EXPECT_LT(at("Bookmarks(\"\\Page\").Range.Select()"), at("Selection.Find.Text=\">=\""));
  EXPECT_LT(at("Selection.Find.Text=\"<\""), at("Selection.Find.Text=\"^$\""));
  EXPECT_LT(at("Selection.Find.Text=\"^$\""), at("Selection.Find.Text=\"^#\""));
  EXPECT_LT(at("Selection.Find.Text=\"^#\""), static_cast<long>(calls.size()));
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "Selection.Find.Execute(2)"), 9);
}

}  // namespace
}  // namespace lp
