#include <gtest/gtest.h>

#include "../shared_material.h"
#include "docx_test_util.h"
#include "word/docx/docx_application.h"
#include "word/docx/new_document.h"

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

TEST_F(TextModel, ReplacedTextTakesTheFormatOfItsFirstCharacter) {
  sel.Font().SetBold(wdTrue);
  sel.TypeText(u"AB ");
  sel.Font().SetBold(wdFalse);
  sel.Font().SetSuperscript(wdTrue);
  sel.TypeText(u"23");
  sel.Font().SetSuperscript(wdFalse);
  sel.TypeText(u"x");
  sel.MoveLeft(wdCharacter, 3, wdExtend);  // the superscript "23" and "x"
  sel.TypeText(u"5");
  EXPECT_EQ(doc.Content()->Text(), u"AB 5\r");
  EXPECT_EQ(doc.Range(3, 4)->Font().Superscript(), wdTrue);
  EXPECT_EQ(doc.Range(3, 4)->Font().Bold(), wdFalse);

  doc.Range(3, 4)->SetText(u"67");
  EXPECT_EQ(doc.Range(3, 5)->Font().Superscript(), wdTrue);
  auto bold = doc.Range(0, 2);
  bold->SetText(u"C");
  EXPECT_EQ(doc.Range(0, 1)->Font().Bold(), wdTrue);
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

namespace word::docx {
namespace {

// A body as Word writes one: tab, hyperlink, line break, a field with its
// result, a bookmark around them, then a table of one row of two cells.
const char* const kMarkup =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
    R"(<w:document xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main"><w:body>)"
    R"(<w:p><w:r><w:t>a</w:t><w:tab/><w:t>b</w:t></w:r><w:hyperlink><w:r><w:t>链</w:t></w:r></w:hyperlink>)"
    R"(<w:bookmarkStart w:id="1" w:name="mark"/><w:r><w:br/></w:r>)"
    R"(<w:r><w:fldChar w:fldCharType="begin"/></w:r><w:r><w:instrText xml:space="preserve"> PAGE </w:instrText></w:r>)"
    R"(<w:r><w:fldChar w:fldCharType="separate"/></w:r><w:r><w:t>7</w:t></w:r>)"
    R"(<w:r><w:fldChar w:fldCharType="end"/></w:r><w:bookmarkEnd w:id="1"/></w:p>)"
    R"(<w:tbl><w:tr><w:tc><w:p><w:r><w:t>c1</w:t></w:r></w:p></w:tc>)"
    R"(<w:tc><w:p><w:r><w:t>c2</w:t></w:r></w:p></w:tc></w:tr></w:tbl><w:p/></w:body></w:document>)";

TEST(Positions, WordWrittenMarkupCountsAsWordCountsIt) {
  testing::TempDir dir;
  Package package = NewDocumentPackage();
  package.Write("word/document.xml", kMarkup);
  package.SaveTo(dir / "markup.docx");
  auto app = OpenDocx(dir / "markup.docx");
  word::Document& doc = app->ActiveDocument();
  EXPECT_EQ(doc.Content()->End(), 24);
  EXPECT_EQ(doc.Content()->Text(), u"a\tb链\v7\rc1\ac2\a\a\r");
  EXPECT_EQ(doc.Content()->Characters().Count(), 15);
  EXPECT_EQ(doc.Range(13, 14)->Text(), u"7");
  auto mark = doc.Bookmarks().Item(u"mark");
  EXPECT_EQ(mark->Start(), 4);
  EXPECT_EQ(mark->End(), 15);
  EXPECT_EQ(doc.Fields().Item(1)->Result()->Text(), u"7");
  doc.Fields().ToggleShowCodes();
  EXPECT_EQ(doc.Range(0, 16)->Text(), u"a\tb链\v\x13 PAGE \x15\r");
  EXPECT_EQ(doc.Range(16, 18)->Text(), u"c1");
}

TEST(Positions, SimpleFieldsCountAsFields) {
  testing::TempDir dir;
  Package package = NewDocumentPackage();
  package.Write(
      "word/document.xml",
      R"(<w:document xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main">)"
      R"(<w:body><w:p><w:r><w:t>A</w:t></w:r><w:fldSimple w:instr=" PAGE ">)"
      R"(<w:r><w:t>3</w:t></w:r></w:fldSimple><w:r><w:t>B</w:t></w:r></w:p></w:body></w:document>)");
  package.SaveTo(dir / "simple.docx");
  auto app = OpenDocx(dir / "simple.docx");
  word::Document& doc = app->ActiveDocument();
  EXPECT_EQ(doc.Content()->End(), 13);
  EXPECT_EQ(doc.Content()->Text(), u"A3B\r");
  doc.Fields().ToggleShowCodes();
  EXPECT_EQ(doc.Content()->Text(),
            u"A\x13 PAGE \x15"
            u"B\r");
  doc.Fields().Item(1)->Delete();
  EXPECT_EQ(doc.Content()->Text(), u"AB\r");
  EXPECT_EQ(doc.Fields().Count(), 0);
}

TEST(Positions, WordWrittenEqFieldsAreFoundByTheirCodes) {
  LP_SKIP_WITHOUT_SHARED(LP_CORPUS_DIR);
  struct Row {
    const char* file;
    int eqFields;
  };
  const Row rows[] = {
      {"eq/aspose-generated-Field sample - EQ.docx", 13},
      {"eq/openxmlsdk-STRICT-instrText-EQ-Array-AlignLeft.docx", 1},
      {"eq/openxmlsdk-complex0-word2007.docx", 11},
      {"eq/openxmlsdk-complex2010-word2010.docx", 11},
      {"eq/poi-stress019-ja-enclosed-char.docx", 2},
  };
  for (const Row& r : rows) {
    auto app = OpenDocx(testing::Corpus(r.file));
    word::Document& doc = app->ActiveDocument();
    doc.Content()->Fields().ToggleShowCodes();
    int eq = 0;
    for (long i = 1; i <= doc.Fields().Count(); ++i) {
      std::u16string code = doc.Fields().Item(i)->Code()->Text();
      size_t first = code.find_first_not_of(u' ');
      if (first != std::u16string::npos &&
          (code.compare(first, 2, u"EQ") == 0 || code.compare(first, 2, u"eq") == 0))
        ++eq;
    }
    EXPECT_EQ(eq, r.eqFields) << r.file;
  }
}

}  // namespace
}  // namespace word::docx
