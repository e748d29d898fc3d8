#include <gtest/gtest.h>

#include "docx_test_util.h"
#include "word/docx/docx_application.h"
#include "word/docx/find_pattern.h"

namespace word::docx {
namespace {

TEST(FindPattern, WordsSpecialCharactersAndWildcards) {
  struct Row {
    const char* name;
    std::u16string pattern;
    bool wildcards;
    std::u16string text;
    size_t at;
    long length;
  };
  const Row rows[] = {
      {"letter", u"^$", false, u"1x", 1, 1},
      {"no letter in Chinese", u"^$", false, u"解", 0, -1},
      {"digit", u"^#", false, u"a7", 1, 1},
      {"case-insensitive", u"\\s(2)", false, u"\\S(2)", 0, 5},
      {"blanks two or more", u" {2,}", true, u"a   b", 1, 3},
      {"single blank is not", u" {2,}", true, u"a b", 1, -1},
      {"star is shortest", u"a*b", true, u"axbxb", 0, 3},
      {"set", u"[0-9]@", true, u"x123y", 1, 3},
      {"wildcards are case-sensitive", u"A", true, u"a", 0, -1},
  };
  for (const Row& r : rows) {
    FindPattern p(r.pattern, PatternOptions{r.wildcards, true});
    EXPECT_EQ(p.MatchAt(r.text, r.at), r.length) << r.name;
  }
  FindPattern wide(u"+", PatternOptions{false, false});
  EXPECT_EQ(wide.MatchAt(u"＋", 0), 1);
}

class FindReplace : public ::testing::Test {
 protected:
  testing::TempDir dir;
  std::unique_ptr<DocxApplication> app = OpenDocx(dir / "find.docx");
  word::Selection& sel = app->Selection();
  word::Document& doc = app->ActiveDocument();
};

TEST_F(FindReplace, BeautifierPassesGiveLettersAndDigitsTheirFonts) {
  sel.TypeText(u"解：2x+y=5");
  doc.Content()->Select();
  word::Find& find = sel.Find();
  find.ClearFormatting();
  find.SetText(u"+");
  find.Replacement().SetText(u"＋");
  find.Replacement().ClearFormatting();
  EXPECT_TRUE(find.Execute(wdReplaceAll));
  find.SetText(u"^$");
  find.Replacement().SetText(u"");
  find.Replacement().Font().SetName(u"Times New Roman");
  find.Replacement().Font().SetItalic(wdTrue);
  EXPECT_TRUE(find.Execute(wdReplaceAll));
  EXPECT_EQ(doc.Content()->Text(), u"解：2x＋y=5\r");
  EXPECT_EQ(doc.Range(3, 4)->Font().Italic(), wdTrue);
  EXPECT_EQ(doc.Range(5, 6)->Font().Italic(), wdTrue);
  EXPECT_EQ(doc.Range(2, 3)->Font().Italic(), wdFalse);
  EXPECT_EQ(doc.Range(0, 1)->Font().Italic(), wdFalse);
}

TEST_F(FindReplace, RunsOfBlanksBecomeOne) {
  sel.TypeText(u"a  b   c d");
  auto all = doc.Content();
  all->Find().SetMatchWildcards(true);
  all->Find().SetText(u" {2,}");
  all->Find().Replacement().SetText(u" ");
  EXPECT_TRUE(all->Find().Execute(wdReplaceAll));
  EXPECT_EQ(doc.Content()->Text(), u"a b c d\r");
}

TEST_F(FindReplace, FindWithoutReplacementSelectsTheHit) {
  sel.TypeText(u"3/4 and 5");
  sel.MoveLeft(wdStory, 1, wdMove);
  sel.MoveRight(wdCharacter, 3, wdExtend);
  sel.Find().SetText(u"/");
  sel.Find().SetWrap(wdFindStop);
  ASSERT_TRUE(sel.Find().Execute(wdReplaceNone));
  EXPECT_EQ(sel.Start(), 1);
  EXPECT_EQ(sel.End(), 2);
  sel.Find().SetText(u"and");
  EXPECT_FALSE(sel.Find().Execute(wdReplaceNone));  // not inside the selection
  EXPECT_FALSE(sel.Find().Found());
}

}  // namespace
}  // namespace word::docx
