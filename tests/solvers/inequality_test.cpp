// The inequality solver's worked solutions, read back from the document.
#include "solvers/inequality.h"

#include "solver_fixture.h"
#include "toolkit/solve.h"

namespace lp {
namespace {

using testing::SolverDocument;

class Inequality : public SolverDocument {
 protected:
  std::string Solve(const std::u16string& text, InequalityChoices choices) {
    std::optional<InequalitySolution> s = ParseInequality(text, prompt);
    EXPECT_TRUE(s);
    TypeInequalitySolution(*session, *s, choices);
    return Text();
  }
};

TEST_F(Inequality, WorkedSolutionsOfTheStatedCases) {
  struct Row {
    const char* name;
    const char16_t* text;
    const char* typed;
  } rows[] = {
      {"default", u"3x+1>2x-1",
       "3x+1>2x-1\n解：\n移项、合并同类项可得：\nx>-2\n x>-2\n∴ 原不等式的解集为：\n x∈ "
       "(-2，+∞)\n"},
      {"reduced line keeps the typed sign", u"-2x<4",
       "-2x<4\n解：\n移项、合并同类项可得：\n-2x<4\n x>-2\n∴ 原不等式的解集为：\n x∈ (-2，+∞)\n"},
      {"brackets", u"2(x+1)>=3",
       "2(x+1)≥3\n解：\n去括号、移项、合并同类项可得：\n2x≥1\n x≥{ EQ \\F(1,2) }\n"
       "∴ 原不等式的解集为：\n x∈ [{ EQ \\F(1,2) }，+∞)\n"},
      {"no solution", u"0x>1",
       "0x>1\n解：\n移项、合并同类项可得：\n0x>1\n∴ 原不等式无解\n∴ 原不等式的解集为：\n x∈ "
       "<Symbol:F0C6>\n"},
      {"every number", u"0x<1",
       "0x<1\n解：\n移项、合并同类项可得：\n0x<1\n∴ 原不等式的解为任意实数\n∴ 原不等式的解集为：\n "
       "x∈ R\n"},
      {"unequal", u"x<>3",
       "x≠3\n解：\n移项、合并同类项可得：\nx≠3\n x≠3\n∴ 原不等式的解集为：\n x∈ "
       "(-∞，3)∪(3，+∞)\n"},
      {"a third", u"3x<=1",
       "3x≤1\n解：\n移项、合并同类项可得：\n3x≤1\n x≤{ EQ \\F(1,3) }\n∴ 原不等式的解集为：\n x∈ "
       "(-∞，{ EQ \\F(1,3) }]\n"},
      {"negative fraction", u"-3x>2",
       "-3x>2\n解：\n移项、合并同类项可得：\n-3x>2\n x<{ EQ \\F(-2,3) }\n∴ 原不等式的解集为：\n x∈ "
       "(-∞，{ EQ \\F(-2,3) })\n"},
  };
  for (const Row& r : rows) {
    Reopen();
    EXPECT_EQ(Solve(r.text, {true, true}), r.typed) << r.name;
  }
}

TEST_F(Inequality, KeyOnlyTypesTheAnswerAlone) {
  EXPECT_EQ(Solve(u"2x-4>0", {false, false}), " x>2\n");
}

TEST_F(Inequality, LabelShowsTheSolution) {
  EXPECT_EQ(InequalityLabel(*ParseInequality(u"-2x<4", prompt)), u"不等式的解为：x>-2");
  EXPECT_EQ(InequalityLabel(*ParseInequality(u"0x<1", prompt)), u"不等式的解为： x ∈R");
}

}  // namespace
}  // namespace lp
