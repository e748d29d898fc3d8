#include <gtest/gtest.h>

#include "word/fake/fake_word.h"

namespace {

using word::fake::CallDiff;

TEST(FakeWord, RecordsCallsAndKeepsTheSelection) {
  word::fake::FakeWord word;
  word.SetSelectionText(u"x^2");
  word::Selection& selection = word.Selection();
  EXPECT_EQ(selection.Text(), u"x^2");
  selection.Font().SetSuperscript(word::wdToggle);
  selection.TypeText(u" 360= ");
  selection.TypeParagraph();
  auto line = word.ActiveDocument().Shapes().AddLine(10, 20, 30, 40.5f);
  line->SetName(u"轴");
  line->Line().SetWeight(0.75f);
  selection.Fields().Add(*selection.Range(), word::wdFieldEmpty, u"EQ \\F(1,2)", false);

  EXPECT_EQ(CallDiff(word.Calls(),
                     {"Selection.Font.Superscript=9999998", "Selection.TypeText(\" 360= \")",
                      "Selection.TypeParagraph()", "Shapes.AddLine(10,20,30,40.5)",
                      "Shape1.Name=\"轴\"", "Shape1.Line.Weight=0.75",
                      "Selection.Fields.Add(Selection.Range,-1,\"EQ \\F(1,2)\",False)"}),
            "");
  EXPECT_EQ(word.Typed(), u" 360= \r");
  EXPECT_EQ(selection.Text(), u"");
  EXPECT_EQ(selection.Font().Superscript(), word::wdToggle);
  EXPECT_EQ(word.ActiveDocument().Shapes().Item(u"轴")->Width(), 20);
  EXPECT_EQ(word.ActiveDocument().Fields().Item(1)->Code()->Text(), u"EQ \\F(1,2)");
}

TEST(FakeWord, AnswersFromTheScriptAndFailsOnRequest) {
  word::fake::FakeWord word;
  EXPECT_EQ(word.Version(), u"11.0");
  EXPECT_FLOAT_EQ(word.ActiveDocument().PageSetup().PageWidth(), 595.3f);
  word.Set("PageSetup.PageWidth", 600);
  EXPECT_FLOAT_EQ(word.ActiveDocument().PageSetup().PageWidth(), 600);
  word.QueueFindResults({true});
  EXPECT_TRUE(word.Selection().Find().Execute(word::wdReplaceNone));
  EXPECT_FALSE(word.Selection().Find().Execute(word::wdReplaceNone));
  word.FailOn("Application.Run", 513, "no such macro");
  EXPECT_THROW(word.Run(u"MTCommand_TeXToggle"), word::ComError);
  word.ActiveDocument().Close(false);
  EXPECT_THROW(word.ActiveDocument(), word::ComError);
}

TEST(CallDiff, ShowsMissingAndExtraLines) {
  EXPECT_EQ(CallDiff({"a", "Shape1.Name=\"x：12_lumenpad\""}, {"a", "Shape1.Name=\"x：*\""}), "");
  EXPECT_EQ(CallDiff({"a", "c", "d"}, {"a", "b", "d"}), "  a\n- b\n+ c\n  d\n");
  EXPECT_EQ(CallDiff({}, {"a"}), "- a\n");
}

}  // namespace
