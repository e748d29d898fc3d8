#include <gtest/gtest.h>

#include <regex>

#include "docx_test_util.h"
#include "word/docx/docx_application.h"

namespace word::docx {
namespace {

using testing::ReadPart;
using testing::TempDir;

// The runs of document.xml, reduced to what tells a field apart:
// [begin] [sep] [end] for marks, {code} for instrText, "text" for w:t, each
// followed by the size in half-points when the run sets one.
std::string Runs(const std::string& xml) {
  std::string out;
  std::regex run("<w:r>(.*?)</w:r>");
  for (auto it = std::sregex_iterator(xml.begin(), xml.end(), run); it != std::sregex_iterator();
       ++it) {
    std::string r = (*it)[1];
    std::smatch m;
    if (std::regex_search(r, m, std::regex("fldCharType=\"(\\w+)\"")))
      out += "[" + m[1].str() + "]";
    else if (std::regex_search(r, m, std::regex("<w:instrText[^>]*>(.*?)</w:instrText>")))
      out += "{" + m[1].str() + "}";
    else if (std::regex_search(r, m, std::regex("<w:t[^>]*>(.*?)</w:t>")))
      out += "\"" + m[1].str() + "\"";
    if (std::regex_search(r, m, std::regex("<w:sz w:val=\"(\\d+)\""))) out += m[1].str();
  }
  return out;
}

class Fields : public ::testing::Test {
 protected:
  std::string SavedRuns() {
    app->ActiveDocument().Save();
    return Runs(ReadPart(dir / "f.docx", "word/document.xml"));
  }
  TempDir dir;
  std::unique_ptr<DocxApplication> app = OpenDocx(dir / "f.docx");
  word::Selection& sel = app->Selection();
};

TEST_F(Fields, EqFieldIsWrittenAsWordWritesIt) {
  sel.TypeText(u"解");
  auto field = sel.Fields().Add(*sel.Range(), wdFieldEmpty, u"EQ \\F(1,2)", false);
  EXPECT_EQ(field->Code()->Text(), u"");   // the code is hidden behind the formula
  EXPECT_EQ(sel.Start(), 1 + 1 + 12 + 1);  // after begin, " EQ \F(1,2) " and end
  sel.TypeText(u"。");
  EXPECT_EQ(SavedRuns(), "\"解\"[begin]{ EQ \\F(1,2) }[end]\"。\"");
  EXPECT_EQ(app->ActiveDocument().Fields().Count(), 1);
}

TEST_F(Fields, ScriptOfTheCodeShrinksCharacterByCharacter) {
  // As the formula insertion does it: select the field, show its code, find
  // the script and set its size, hide the code.
  auto field = sel.Fields().Add(*sel.Range(), wdFieldEmpty, u"EQ \\F(x\\S(2),2)", false);
  field->Select();
  sel.Fields().ToggleShowCodes();
  EXPECT_EQ(sel.Characters().Count(), 1 + 17 + 1);
  EXPECT_EQ(sel.Characters().Item(1)->Text(), u"\x13");
  sel.Find().ClearFormatting();
  sel.Find().SetWrap(wdFindContinue);
  sel.Find().SetText(u"\\S(2)");
  ASSERT_TRUE(sel.Find().Execute(wdReplaceNone));
  EXPECT_EQ(sel.Text(), u"\\S(2)");
  sel.Font().SetSize(static_cast<float>(static_cast<int>(0.7 * sel.Font().Size())));
  EXPECT_EQ(sel.Font().Size(), 7.0f);
  sel.Fields().ToggleShowCodes();
  // The caret cannot stay in the hidden code: it stands behind the field.
  EXPECT_EQ(sel.Start(), 19);
  EXPECT_EQ(sel.End(), 19);
  EXPECT_EQ(SavedRuns(), "[begin]{ EQ \\F(x}{\\S(2)}14{,2) }[end]");
}

TEST_F(Fields, FractionIsFilledInsideTheShownCode) {
  // The fraction insert: add "EQ \F(,)", open the code, step 8 to the "(".
  sel.Fields().Add(*sel.Range(), wdFieldEmpty, u"EQ \\F(,)", false);
  sel.MoveLeft(wdCharacter, 1, wdExtend);
  EXPECT_EQ(sel.Fields().Count(), 1);
  sel.Fields().ToggleShowCodes();
  sel.MoveLeft(wdCharacter, 1, wdMove);
  sel.MoveRight(wdCharacter, 8, wdMove);
  sel.TypeText(u"1");
  sel.MoveRight(wdCharacter, 1, wdMove);
  sel.TypeText(u"2");
  sel.MoveRight(wdCharacter, 1, wdMove);
  sel.Delete(wdCharacter, 1);  // the blank behind the bracket
  sel.Fields().ToggleShowCodes();
  EXPECT_EQ(app->ActiveDocument().Fields().Item(1)->Code()->Text(), u"");
  EXPECT_EQ(SavedRuns(), "[begin]{ EQ \\F(1,2)}[end]");
}

TEST_F(Fields, EmptyFieldTakesTypedCode) {
  sel.TypeText(u"A");
  sel.Fields().Add(*sel.Range(), wdFieldEmpty, u"", false);
  sel.TypeText(u"eq \\o(\\s\\up 5(3),\\s\\do 3(5))");
  sel.MoveRight(wdStory, 1, wdMove);  // the stored caret would split the code
  EXPECT_EQ(SavedRuns(), "\"A\"[begin]{ eq \\o(\\s\\up 5(3),\\s\\do 3(5)) }[end]");
}

TEST_F(Fields, StretchBecomesTheCodeOfANestedField) {
  sel.TypeText(u"EQ x{SYMBOL 97}");
  sel.MoveLeft(wdCharacter, 1, wdMove);
  sel.MoveLeft(wdCharacter, 9, wdExtend);
  EXPECT_EQ(sel.Text(), u"SYMBOL 97");
  auto stretch = sel.Range();
  app->ActiveDocument().Fields().Add(*stretch, wdFieldEmpty, u"", false);
  EXPECT_EQ(app->ActiveDocument().Fields().Count(), 1);
  EXPECT_EQ(SavedRuns(), "\"EQ x{\"[begin]{SYMBOL 97}[end]\"}\"");
}

}  // namespace
}  // namespace word::docx
