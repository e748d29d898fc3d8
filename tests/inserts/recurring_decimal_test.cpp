// Dots over the recurring digits, read back from document.xml.
#include <gtest/gtest.h>

#include "inserts/inserts.h"
#include "inserts_fixture.h"
#include "runtime/utf8.h"

namespace lp {
namespace {

using testing::DocxSession;

constexpr char16_t kDot[] = u"\\o(\\s\\up 3(˙),";

TEST(RecurringDecimal, DotsOverOneTwoOrTheEndsOfTheTail) {
  struct Row {
    std::u16string selected;
    std::u16string code;
  };
  const std::u16string d = kDot;
  const Row rows[] = {
      {u"0.1/23", u" eq 0.1" + d + u"2)" + d + u"3)"},
      {u"0.1/234", u" eq 0.1" + d + u"2)3" + d + u"4)"},
      {u"0./3", u" eq 0." + d + u"3)"},
      {u"0.1/2345", u" eq 0.1" + d + u"2)34" + d + u"5)"},
  };
  for (const Row& row : rows) {
    DocxSession doc;
    doc.TypeSelected({{row.selected}});
    InsertRecurringDecimal(doc.Run());
    EXPECT_EQ(doc.SavedCode(), row.code) << ToUtf8(row.selected);
    EXPECT_TRUE(doc.prompt.Shown().empty());
    // The field is set in 宋体 (its east Asian and its ASCII font).
    EXPECT_NE(doc.DocumentXml().find("宋体"), std::string::npos);
  }
}

TEST(RecurringDecimal, MarkAfterTheDecimalStays) {
  DocxSession doc;
  doc.TypeSelected({{u"0.1/23"}}, true);
  InsertRecurringDecimal(doc.Run());
  EXPECT_TRUE(doc.FieldEndsItsParagraph());
}

TEST(RecurringDecimal, RefusalsAndTheQuestion) {
  struct Row {
    const char* name;
    std::u16string selected;
    std::u16string answer;  // to the question about the point
    std::vector<std::u16string> told;
    bool changed;
  };
  const Row rows[] = {
      {"no slash", u"0.12", u"", {kNoSlashForDecimal}, false},
      {"empty tail", u"0.5/", u"", {kNoRecurringPart}, false},
      {"no point, cancel", u"1/3", u"cancel", {kDecimalWithoutPoint}, false},
      {"no point, ok", u"1/3", u"ok", {kDecimalWithoutPoint}, true},
      {"nothing selected", u"", u"", {kNoSlashForDecimal}, false},
  };
  for (const Row& row : rows) {
    DocxSession doc;
    doc.TypeSelected({{row.selected}});
    if (!row.answer.empty()) doc.prompt.Answer(row.answer);
    const std::string before = doc.DocumentXml();
    InsertRecurringDecimal(doc.Run());
    std::vector<std::u16string> told;
    for (const ShownBox& box : doc.prompt.Shown()) told.push_back(box.prompt);
    EXPECT_EQ(told, row.told) << row.name;
    EXPECT_EQ(doc.DocumentXml() != before, row.changed) << row.name;
  }
  DocxSession doc;
  doc.TypeSelected({{u"1/3"}});
  doc.prompt.Answer(u"ok");
  InsertRecurringDecimal(doc.Run());
  EXPECT_EQ(doc.SavedCode(), u" eq 1" + std::u16string(kDot) + u"3)");
}

}  // namespace
}  // namespace lp
