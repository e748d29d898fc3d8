// Random inequalities and quadratics: the answer typed into the document,
// read back from its XML (fields included), against a solution worked out
// here with whole numbers and the quadratic formula.
#include <cmath>
#include <numeric>
#include <random>
#include <set>

#include "solver_fixture.h"
#include "solvers/equation.h"
#include "solvers/inequality.h"
#include "toolkit/solve.h"

namespace lp {
namespace {

using testing::SolverDocument;

// Reads what the solvers type: numbers, "+" and "-", the roots of EQ fields
// ("\r(,n)") and their fractions ("\F(p,q)"), a number before a root
// multiplying it.
class AnswerReader {
 public:
  explicit AnswerReader(std::string text) : s_(std::move(text)) {}
  double Value() {
    double v = Sum();
    EXPECT_EQ(at_, s_.size()) << s_;
    return v;
  }

 private:
  double Sum() {
    double v = Term();
    while (at_ < s_.size() && (s_[at_] == '+' || s_[at_] == '-')) {
      char sign = s_[at_++];
      v += sign == '+' ? Term() : -Term();
    }
    return v;
  }
  double Term() {
    if (Eat("-")) return -Term();
    if (Eat("\\F(")) {
      double p = Sum();
      EXPECT_TRUE(Eat(","));
      double q = Sum();
      EXPECT_TRUE(Eat(")"));
      return p / q;
    }
    double factor = 1;
    size_t start = at_;
    while (at_ < s_.size() && (std::isdigit(static_cast<unsigned char>(s_[at_])) || s_[at_] == '.'))
      ++at_;
    if (at_ > start) factor = std::stod(s_.substr(start, at_ - start));
    if (Eat("\\r(,")) {
      double radicand = Sum();
      EXPECT_TRUE(Eat(")"));
      return factor * std::sqrt(radicand);
    }
    EXPECT_GT(at_, start) << s_;
    return factor;
  }
  bool Eat(const std::string& token) {
    if (s_.compare(at_, token.size(), token) != 0) return false;
    at_ += token.size();
    return true;
  }
  std::string s_;
  size_t at_ = 0;
};

// A field "{ EQ code }" or a plain number.
double AnswerValue(std::string text) {
  if (text.rfind("{ EQ ", 0) == 0) text = text.substr(5, text.size() - 7);
  return AnswerReader(text).Value();
}

class RandomSolutions : public SolverDocument {};

TEST_F(RandomSolutions, LinearInequalitiesAgreeWithWholeNumberArithmetic) {
  std::mt19937 random(16);
  std::uniform_int_distribution<int> coefficient(-30, 30);
  const char* ops[] = {">", "<", ">=", "<="};
  const char* shown[] = {">", "<", "≥", "≤"};
  for (int round = 0; round < 300; ++round) {
    int a = coefficient(random), b = coefficient(random), c = coefficient(random),
        d = coefficient(random), op = static_cast<int>(random() % 4);
    if (a == c) continue;
    std::string text = std::to_string(a) + "x+(" + std::to_string(b) + ")" + ops[op] +
                       std::to_string(c) + "x+(" + std::to_string(d) + ")";
    Reopen();
    std::optional<InequalitySolution> s = ParseInequality(FromUtf8(text), prompt);
    ASSERT_TRUE(s) << text;
    TypeInequalitySolution(*session, *s, {false, false});
    std::string typed = Text();
    // (a - c) x op d - b: the bound is (d - b) / (a - c), the sign turns with a negative slope.
    int slope = a - c, rest = d - b;
    int turned = slope > 0 ? op : op ^ 1;
    std::string prefix = std::string(" x") + shown[turned];
    ASSERT_EQ(typed.rfind(prefix, 0), 0u) << text << " typed " << typed;
    std::string bound = typed.substr(prefix.size(), typed.size() - prefix.size() - 1);
    EXPECT_DOUBLE_EQ(AnswerValue(bound), static_cast<double>(rest) / slope) << text << " " << bound;
    if (bound.rfind("{ EQ \\F(", 0) == 0) {
      int p = std::stoi(bound.substr(8)), q = std::stoi(bound.substr(bound.find(',') + 1));
      EXPECT_EQ(std::gcd(p, q), 1) << "not reduced: " << bound;
      EXPECT_GT(q, 1) << bound;
    }
  }
}

TEST_F(RandomSolutions, QuadraticRootsAgreeWithTheFormula) {
  std::mt19937 random(6);
  std::uniform_int_distribution<int> coefficient(-15, 15);
  int solved = 0;
  while (solved < 300) {
    int a = coefficient(random), b = coefficient(random), c = coefficient(random);
    if (a <= 0) continue;
    std::string text =
        std::to_string(a) + "x^2+(" + std::to_string(b) + ")x+(" + std::to_string(c) + ")=0";
    Reopen();
    std::optional<QuadraticSolution> q = SolveQuadratic(FromUtf8(text), prompt);
    ASSERT_TRUE(q) << text;
    TypeQuadraticSolution(*session, FromUtf8(text), *q, true);
    std::string typed = Text();
    std::string last = typed.substr(typed.rfind('\n', typed.size() - 2) + 1);
    ++solved;
    int delta = b * b - 4 * a * c;
    if (delta < 0) {
      EXPECT_EQ(last, "即 x∈<Symbol:F0C6>\n") << text;
      continue;
    }
    double root = std::sqrt(static_cast<double>(delta));
    std::multiset<double> expected = {(-b - root) / (2 * a), (-b + root) / (2 * a)};
    if (delta == 0) {
      ASSERT_EQ(last.rfind("∴ x=", 0), 0u) << text << typed;
      size_t start = std::string("∴ x=").size();
      if (last[start] == ' ') ++start;
      EXPECT_NEAR(AnswerValue(last.substr(start, last.size() - start - 1)), *expected.begin(), 1e-9)
          << text;
      continue;
    }
    size_t x1 = last.find(" x_(1)= "), x2 = last.find(" x_(2)= ");
    ASSERT_TRUE(x1 != std::string::npos && x2 != std::string::npos) << text << typed;
    double r1 = AnswerValue(last.substr(x1 + 8, x2 - x1 - 8));
    double r2 = AnswerValue(last.substr(x2 + 8, last.size() - x2 - 9));
    EXPECT_NEAR(std::min(r1, r2), *expected.begin(), 1e-9) << text << " " << last;
    EXPECT_NEAR(std::max(r1, r2), *expected.rbegin(), 1e-9) << text << " " << last;
  }
  EXPECT_TRUE(prompt.Shown().empty());
}

}  // namespace
}  // namespace lp
