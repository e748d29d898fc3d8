// The field inserts on a real .docx: what lands in document.xml.
#include <gtest/gtest.h>

#include "inserts/inserts.h"
#include "inserts_fixture.h"
#include "runtime/utf8.h"

namespace lp {
namespace {

using testing::DocxSession;
using testing::Piece;

class FieldInserts : public ::testing::Test {
 protected:
  // What the teacher was told, in order.
  std::vector<std::u16string> Told() {
    std::vector<std::u16string> told;
    for (const ShownBox& box : doc.prompt.Shown()) told.push_back(box.prompt);
    return told;
  }
  DocxSession doc;
};

TEST_F(FieldInserts, FractionKeepsEachPartsFontAndLeavesTheMarkOutside) {
  doc.TypeSelected({{u"1", u"Arial", 12, 0x0000FF}, {u"/"}, {u"2", u"Courier New", 14}}, true);
  EXPECT_EQ(InsertFractionField(doc.Run()), InsertOutcome::kDone);
  EXPECT_EQ(doc.SavedCode(), u" EQ \\F(1,2)");
  auto one = doc.RunOf(u"1"), two = doc.RunOf(u"2");
  EXPECT_EQ(one.kind, "code");
  EXPECT_EQ(one.font, "Arial");
  EXPECT_EQ(one.color, "FF0000");
  EXPECT_EQ(two.kind, "code");
  EXPECT_EQ(two.font, "Courier New");
  EXPECT_EQ(two.halfPoints, 28);
  EXPECT_TRUE(doc.FieldEndsItsParagraph());
  EXPECT_TRUE(Told().empty());
}

TEST_F(FieldInserts, FractionRefusalsAndHandOvers) {
  struct Row {
    const char* name;
    std::u16string text;
    InsertOutcome outcome;
    std::vector<std::u16string> told;
  };
  const Row rows[] = {
      {"no slash", u"abc", InsertOutcome::kDone, {kNoSlashForFraction}},
      {"too short", u"1/", InsertOutcome::kShowDialog, {}},
      {"nothing", u"", InsertOutcome::kShowDialog, {}},
      {"several", u"a;b/c", InsertOutcome::kToFormula, {}},
  };
  for (const Row& row : rows) {
    DocxSession fresh;
    fresh.TypeSelected({{row.text}});
    const std::string before = fresh.DocumentXml();
    EXPECT_EQ(InsertFractionField(fresh.Run()), row.outcome) << row.name;
    EXPECT_EQ(fresh.DocumentXml(), before) << row.name;
    std::vector<std::u16string> told;
    for (const ShownBox& box : fresh.prompt.Shown()) told.push_back(box.prompt);
    EXPECT_EQ(told, row.told) << row.name;
  }
}

TEST_F(FieldInserts, SecondSlashStaysInTheDenominator) {
  doc.TypeSelected({{u"1/2/3"}});
  InsertFractionField(doc.Run());
  EXPECT_EQ(doc.SavedCode(), u" EQ \\F(1,2/3)");
}

TEST_F(FieldInserts, RadicalOfOnePartHasAnEmptyIndex) {
  doc.TypeSelected({{u"2"}});
  EXPECT_EQ(InsertRadicalField(doc.Run()), InsertOutcome::kDone);
  EXPECT_EQ(doc.SavedCode(), u" EQ \\r(,2)");
}

TEST_F(FieldInserts, RadicalIndexIsThreePointsSmallerInsideTheField) {
  doc.TypeSelected({{u"3/27", u"Times New Roman", 12}});
  InsertRadicalField(doc.Run());
  EXPECT_EQ(doc.SavedCode(), u" EQ \\r(3,27)");
  EXPECT_EQ(doc.RunOf(u"3").kind, "code");
  EXPECT_EQ(doc.RunOf(u"3").halfPoints, 18);
  EXPECT_EQ(doc.RunOf(u"27").halfPoints, 24);
}

TEST_F(FieldInserts, RadicalWithNothingSelectedOpensItsDialog) {
  EXPECT_EQ(InsertRadicalField(doc.Run()), InsertOutcome::kShowDialog);
}

TEST_F(FieldInserts, VectorOverSelectedLettersAsksNothing) {
  doc.TypeSelected({{u"AB"}});
  InsertVectorMark(doc.Run());
  EXPECT_TRUE(Told().empty());
  EXPECT_EQ(doc.SavedCode(), u" EQ \\o\\ac(\\S\\UP7(→),AB) ");
}

TEST_F(FieldInserts, ArcAsksForLettersAndNarrowsThem) {
  doc.prompt.Answer(u"ＡＢ");
  InsertArcMark(doc.Run());
  ASSERT_EQ(Told().size(), 1u);
  EXPECT_EQ(Told()[0], u"请输入需要添加弧符号的字母：");
  EXPECT_EQ(doc.SavedCode(), u" EQ \\o\\ac(\\S\\UP7(⌒),AB) ");
}

TEST_F(FieldInserts, CancelledInputBoxesChangeNothing) {
  const std::string before = doc.DocumentXml();
  InsertArcMark(doc.Run());
  InsertVectorMark(doc.Run());
  doc.prompt.Answer(u"");
  InsertEquationSystem(doc.Run());
  EXPECT_EQ(doc.DocumentXml(), before);
  EXPECT_EQ(Told().size(), 3u);
}

TEST_F(FieldInserts, MarkOverAFieldKeepsTheFieldInside) {
  doc.TypeSelected({{u"1/2"}});
  InsertFractionField(doc.Run());
  doc.App().ActiveDocument().Content()->Select();
  InsertArcMark(doc.Run());
  EXPECT_EQ(doc.SavedCode(), u" EQ \\o\\ac (\\S\\UP7(⌒), EQ \\F(1,2))");
  EXPECT_EQ(doc.App().ActiveDocument().Fields().Count(), 2);
}

TEST_F(FieldInserts, SystemFromTheInputBoxNarrowsTheComma) {
  doc.prompt.Answer(u"x+y=1，x-y=2");
  InsertEquationSystem(doc.Run());
  const std::u16string code = doc.SavedCode();
  EXPECT_NE(code.find(u"\\a\\al("), std::u16string::npos) << ToUtf8(code);
  EXPECT_EQ(code.find(u"，"), std::u16string::npos);
}

TEST_F(FieldInserts, SystemOfFieldsNeedsAComma) {
  doc.TypeSelected({{u"1/2"}});
  InsertFractionField(doc.Run());
  doc.App().ActiveDocument().Content()->Select();
  const std::string before = doc.DocumentXml();
  InsertEquationSystem(doc.Run());
  EXPECT_EQ(Told(), std::vector<std::u16string>{kNoCommaForSystem});
  EXPECT_EQ(doc.DocumentXml(), before);
}

TEST_F(FieldInserts, SystemOfFieldsPutsEachEquationInItsPlace) {
  doc.TypeSelected({{u"1/2"}});
  InsertFractionField(doc.Run());
  word::Selection& selection = doc.Selection();
  selection.TypeText(u"=x，y=");
  doc.TypeSelected({{u"3/4"}});
  InsertFractionField(doc.Run());
  doc.App().ActiveDocument().Content()->Select();
  InsertEquationSystem(doc.Run());
  EXPECT_EQ(doc.SavedCode(), u" EQ \\B\\lc\\{(\\a\\al( EQ \\F(1,2)=x,y= EQ \\F(3,4))) ");
}

}  // namespace
}  // namespace lp
