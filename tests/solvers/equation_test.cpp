// The equation solvers' worked solutions, read back from the document.
#include "solvers/equation.h"

#include "solvers/worked_text.h"

#include "solver_fixture.h"
#include "toolkit/solve.h"

namespace lp {
namespace {

using testing::SolverDocument;

class Equation : public SolverDocument {
 protected:
  std::string Quadratic(const std::u16string& text, bool withSteps = true) {
    std::optional<QuadraticSolution> q = SolveQuadratic(text, prompt);
    EXPECT_TRUE(q);
    TypeQuadraticSolution(*session, text, *q, withSteps);
    return Text();
  }
  std::string Linear(const std::u16string& text, bool withSteps = true) {
    TypeLinearSolution(app->Selection(), text, SolveLinear(text), withSteps);
    return Text();
  }
};

TEST_F(Equation, QuadraticWorkedSolutionsOfTheStatedCases) {
  struct Row {
    const char* name;
    const char16_t* text;
    const char* typed;
  } rows[] = {
      {"three signs", u"x^2-2x-3+0=0",
       "x^(2)-2x-3+0=0\n解：\n合并同类项可得：\nx^(2)-2x-3=0\n∵ <Symbol:F044>=(-2)^(2)-4·1·(-3)= "
       "16\n即： "
       "(x+1)(x-3)=0\n x_(1)= -1 x_(2)= 3\n"},
      {"two whole roots", u"x^2-5x+6=0",
       "x^(2)-5x+6=0\n解：\nx^(2)-5x+6=0\n∵ <Symbol:F044>=(-5)^(2)-4·1·6= 1\n即： (x-2)(x-3)=0\n "
       "x_(1)= 2 x_(2)= 3\n"},
      {"no real root", u"x^2+1=0",
       "x^(2)+1=0\n解：\nx^(2)+1=0\n∵ <Symbol:F044>=0^(2)-4·1·1= -4<0\n∴ 方程无实根\n即 "
       "x∈<Symbol:F0C6>\n"},
      {"double root", u"x^2-2x+1=0",
       "x^(2)-2x+1=0\n解：\nx^(2)-2x+1=0\n∵ <Symbol:F044>=(-2)^(2)-4·1·1= 0\n即 (x-1)^(2)=0\n∴ "
       "x=1\n"},
      {"root fields", u"x^2-2=0",
       "x^(2)-2=0\n解：\nx^(2)-2=0\n∵ <Symbol:F044>=0^(2)-4·1·(-2)= 8\n由求根公式可得：\n "
       "x_(1)= { EQ -\\r(,2) } x_(2)= { EQ \\r(,2) }\n"},
      {"fraction roots", u"2x^2-3x+1=0",
       "2x^(2)-3x+1=0\n解：\n2x^(2)-3x+1=0\n∵ <Symbol:F044>=(-3)^(2)-4·2·1= 1\n即： "
       "(2x-1)(x-1)=0\n x_(1)= { EQ \\F(1,2) } x_(2)= 1\n"},
      {"moved terms", u"x^2=2x+1",
       "x^(2)=2x+1\n解：\n移项、合并同类项可得：\nx^(2)-2x-1=0\n∵ <Symbol:F044>=(-2)^(2)-4·1·(-1)= "
       "8\n由求根公式可得：\n x_(1)= { EQ 1-\\r(,2) } x_(2)= { EQ 1+\\r(,2) }\n"},
      {"double fraction root", u"4x^2+4x+1=0",
       "4x^(2)+4x+1=0\n解：\n4x^(2)+4x+1=0\n∵ <Symbol:F044>=4^(2)-4·4·1= 0\n即 "
       "(2x+1)^(2)=0\n∴ x= { EQ \\F(-1,2) }\n"},
      {"root over a denominator", u"x^2+x-1=0",
       "x^(2)+x-1=0\n解：\nx^(2)+x-1=0\n∵ <Symbol:F044>=1^(2)-4·1·(-1)= 5\n"
       "由求根公式可得：\n x_(1)= { EQ \\F(-1-\\r(,5),2) } x_(2)= { EQ \\F(-1+\\r(,5),2) }\n"},
  };
  for (const Row& r : rows) {
    Reopen();
    EXPECT_EQ(Quadratic(r.text), r.typed) << r.name;
  }
}

TEST_F(Equation, AnyPowerIsTypedAsTwo) {
  Insert_Quadratic_Equation_To_Word(app->Selection(), u"x^3+2*x");
  EXPECT_EQ(Text(), "x^(2)+2x\n");
}

TEST_F(Equation, QuadraticKeyOnlyTypesTheRoots) {
  EXPECT_EQ(Quadratic(u"x^2-1=0", false), "\n x_(1)= -1 x_(2)= 1\n");
  Reopen();
  EXPECT_EQ(Quadratic(u"x^2+1=0", false), "方程无实根\n");
}

TEST_F(Equation, ListShowsExactAndDecimalRoots) {
  std::vector<std::u16string> list = QuadraticList(*SolveQuadratic(u"x^2-2=0", prompt));
  EXPECT_EQ(list, (std::vector<std::u16string>{u"x1=-sqr(2)=-1.4142", u"x2=sqr(2)=1.4142"}));
  EXPECT_EQ(QuadraticList(*SolveQuadratic(u"x^2+1=0", prompt)),
            std::vector<std::u16string>{u"方程无实根"});
}

TEST_F(Equation, LinearReducedLineMovesTheConstant) {
  struct Row {
    const char16_t* text;
    const char* typed;
  } rows[] = {
      {u"2x+3=0", "2x+3=0\n解：\n移项、合并同类项可得：\n2x=-3\n∴ x= { EQ \\F(-3,2) }\n"},
      {u"2x-3=0", "2x-3=0\n解：\n移项、合并同类项可得：\n2x= 3\n∴ x= { EQ \\F(3,2) }\n"},
      {u"2x=0", "2x=0\n解：\n移项、合并同类项可得：\n2x=0\n∴ x=0\n"},
      {u"3(x-1)=x+1", "3(x-1)=x+1\n解：\n去括号、移项、合并同类项可得：\n2x= 4\n∴ x=2\n"},
  };
  for (const Row& r : rows) {
    Reopen();
    EXPECT_EQ(Linear(r.text), r.typed);
  }
  Reopen();
  EXPECT_EQ(Linear(u"-x+5=0", false), "-x=-5\n∴ x=5\n");
  EXPECT_EQ(LinearLabel(SolveLinear(u"2x=3")), u"方程的解为：x=3/2");
}

}  // namespace
}  // namespace lp
