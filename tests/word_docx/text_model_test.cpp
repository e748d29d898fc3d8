#include <gtest/gtest.h>

#include "docx_test_util.h"
#include "word/docx/docx_application.h"

namespace word::docx {
namespace {

using testing::TempDir;

class TextModel : public ::testing::Test {
 protected:
  TempDir dir;
  std::unique_ptr<DocxApplication> app = OpenDocx(dir / "new.docx");
  word::Selection& sel = app->Selection();
  word::Document& doc = app->ActiveDocument();
};

TEST_F(TextModel, TypingCountsCharactersAndParagraphMarksAsWordDoes) {
  EXPECT_EQ(doc.Content()->Text(), u"\r");
  sel.TypeText(u"解：x+1");
  sel.TypeParagraph();
  sel.TypeText(u"ab\tc");
  EXPECT_EQ(doc.Content()->Text(), u"解：x+1\rab\tc\r");
  EXPECT_EQ(sel.Start(), 10);
  EXPECT_EQ(doc.Range(2, 5)->Text(), u"x+1");
  EXPECT_EQ(doc.Content()->Characters().Count(), 11);
  EXPECT_EQ(doc.Content()->Characters().Item(6)->Text(), u"\r");
}

TEST_F(TextModel, MovesBackspaceAndDeleteWorkOnTheCaret) {
  sel.TypeText(u"abcdef");
  EXPECT_EQ(sel.MoveLeft(wdCharacter, 2, wdMove), 2);
  sel.TypeBackspace();  // removes d
  EXPECT_EQ(doc.Content()->Text(), u"abcef\r");
  EXPECT_EQ(sel.MoveLeft(wdCharacter, 1, wdExtend), 1);
  EXPECT_EQ(sel.Text(), u"c");
  sel.TypeText(u"XY");  // typing replaces the selection
  EXPECT_EQ(doc.Content()->Text(), u"abXYef\r");
  EXPECT_EQ(sel.Delete(wdCharacter, 1), 1);
  EXPECT_EQ(doc.Content()->Text(), u"abXYf\r");
  EXPECT_EQ(sel.MoveRight(wdCharacter, 10, wdMove), 1);  // stops before the last mark
  EXPECT_EQ(sel.Start(), 5);
  sel.MoveLeft(wdStory, 1, wdMove);
  EXPECT_EQ(sel.Start(), 0);
  sel.TypeParagraph();
  sel.TypeBackspace();  // joins the paragraphs again
  EXPECT_EQ(doc.Content()->Text(), u"abXYf\r");
}

TEST_F(TextModel, FontTogglesContinueWithTheSelectionsFormat) {
  // Factorisation types an exponent: superscript on, digits, superscript off.
  sel.TypeText(u"2");
  sel.Font().SetSuperscript(wdToggle);
  EXPECT_EQ(sel.Font().Superscript(), wdTrue);
  sel.TypeText(u"3");
  sel.Font().SetSuperscript(wdToggle);
  sel.TypeText(u"×5");
  EXPECT_EQ(doc.Range(0, 1)->Font().Superscript(), wdFalse);
  EXPECT_EQ(doc.Range(1, 2)->Font().Superscript(), wdTrue);
  EXPECT_EQ(doc.Range(2, 4)->Font().Superscript(), wdFalse);
  EXPECT_EQ(doc.Range(0, 4)->Font().Superscript(), wdUndefined);

  auto r = doc.Range(0, 1);
  r->Font().SetName(u"Symbol");
  r->Font().SetSize(14);
  r->Font().SetBold(wdTrue);
  r->Font().SetScaling(70);
  r->Font().SetColor(RGB(255, 0, 0));
  EXPECT_EQ(r->Font().Name(), u"Symbol");
  EXPECT_EQ(r->Font().Size(), 14.0f);
  EXPECT_EQ(r->Font().Bold(), wdTrue);
  EXPECT_EQ(r->Font().Scaling(), 70);
  EXPECT_EQ(r->Font().Color(), RGB(255, 0, 0));
  EXPECT_EQ(doc.Range(1, 2)->Font().Bold(), wdFalse);
}

TEST_F(TextModel, NewDocumentHasChineseDefaults) {
  EXPECT_EQ(sel.Font().Name(), u"Times New Roman");
  EXPECT_EQ(sel.Font().NameFarEast(), u"宋体");
  EXPECT_EQ(sel.Font().Size(), 10.5f);
  EXPECT_NEAR(doc.PageSetup().PageWidth(), 595.3f, 0.1);
  EXPECT_NEAR(doc.PageSetup().PageHeight(), 841.9f, 0.1);
  EXPECT_EQ(doc.PageSetup().LeftMargin(), 90.0f);
}

TEST_F(TextModel, RangesFollowEditsAsWordRangesDo) {
  sel.TypeText(u"one two");
  auto two = doc.Range(4, 7);
  doc.Range(0, 0)->InsertAfter(u"zero ");
  EXPECT_EQ(two->Text(), u"two");
  doc.Range(0, 5)->Delete();
  EXPECT_EQ(two->Start(), 4);
  two->SetText(u"三");
  EXPECT_EQ(doc.Content()->Text(), u"one 三\r");
  EXPECT_EQ(two->End(), 5);
}

TEST_F(TextModel, InsertSymbolTakesOnePosition) {
  sel.TypeText(u"x∈");
  sel.InsertSymbol(-3898, u"Symbol", true);
  EXPECT_EQ(doc.Content()->Characters().Count(), 4);
  EXPECT_EQ(sel.Start(), 3);
}

}  // namespace
}  // namespace word::docx
