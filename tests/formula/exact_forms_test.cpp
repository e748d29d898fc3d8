#include <gtest/gtest.h>

#include "formula/exact_forms.h"
#include "formula/generators.h"
#include "runtime/recording_prompt.h"

namespace lp {
namespace {

std::string Show(const std::u16string& s) {
  return std::string(s.begin(), s.end());  // the notations are ASCII
}

TEST(FractionForm, DecimalsBecomeExactFractions) {
  struct Row {
    const char* name;
    const char16_t* in;
    const char* out;
  } rows[] = {
      {"TwelveAndAHalf", u"12.5", "25/2"},  {"QuarterPast", u"1.25", "5/4"},
      {"OneSixth", u"0.1(6)", "1/6"},       {"OneThird", u"0.(3)", "1/3"},
      {"Seventh", u"0.(142857)", "1/7"},    {"AllNines", u"0.(9)", "1"},
      {"Negative", u"-2.75", "-11/4"},      {"WholeRecurring", u"3.(12)", "103/33"},
      {"WideBrackets", u"0.1（6）", "1/6"}, {"NoWhole", u".5", "1/2"},
  };
  for (const Row& row : rows) {
    ExactForm f = DecimalToFractionForm(row.in);
    EXPECT_TRUE(f.error.empty()) << row.name;
    EXPECT_EQ(Show(f.notation), row.out) << row.name;
  }
  for (const char16_t* bad :
       {u"", u"12", u"1.2.3", u"0.(", u"0.()", u"0.(3)4", u"a.5", u"0.12345678(90)"})
    EXPECT_FALSE(DecimalToFractionForm(bad).error.empty()) << Show(bad);
}

TEST(FractionForm, FractionsAreReduced) {
  EXPECT_EQ(Show(ReduceFractionForm(u"12", u"18").notation), "2/3");
  EXPECT_EQ(Show(ReduceFractionForm(u"-6", u"4").notation), "-3/2");
  EXPECT_EQ(Show(ReduceFractionForm(u"6", u"-4").notation), "-3/2");
  EXPECT_EQ(Show(ReduceFractionForm(u"1.5", u"2.5").notation), "3/5");
  EXPECT_EQ(Show(ReduceFractionForm(u"24", u"8").notation), "3");
  EXPECT_EQ(Show(ReduceFractionForm(u"０", u"5").notation), "0");
  EXPECT_FALSE(ReduceFractionForm(u"1", u"0").error.empty());
  EXPECT_FALSE(ReduceFractionForm(u"x", u"2").error.empty());
}

TEST(RadicalForm, WholePowersComeOut) {
  RecordingPrompt prompt;
  struct Row {
    const char* name;
    const char16_t *k, *n, *m;
    const char* out;
  } rows[] = {
      {"Twelve", u"", u"", u"12", "2g(3)"},        {"CubeOf54", u"1", u"3", u"54", "3g(3,2)"},
      {"Seventy-two", u"1", u"2", u"72", "6g(2)"}, {"Coefficient", u"3", u"2", u"12", "6g(3)"},
      {"Perfect", u"1", u"2", u"1024", "32"},      {"Negative", u"-1", u"2", u"8", "-2g(2)"},
      {"Prime", u"1", u"2", u"7", "g(7)"},         {"Zero", u"1", u"2", u"0", "0"},
  };
  for (const Row& row : rows) {
    ExactForm f = SimplifyRadicalForm(row.k, row.n, row.m, prompt);
    EXPECT_TRUE(f.error.empty()) << row.name;
    EXPECT_EQ(Show(f.notation), row.out) << row.name;
  }
  EXPECT_TRUE(prompt.Shown().empty());
  EXPECT_FALSE(SimplifyRadicalForm(u"1", u"1", u"4", prompt).error.empty());
  EXPECT_FALSE(SimplifyRadicalForm(u"1", u"2", u"x", prompt).error.empty());
  EXPECT_TRUE(SimplifyRadicalForm(u"1", u"2", u"-4", prompt).notation.empty());
  EXPECT_EQ(prompt.Shown().size(), 1u);  // SimplifyRadical told the teacher
}

TEST(ExactForms, TheEqFieldsAreFractionsAndRoots) {
  const auto eq = [](const char16_t* text) {
    return Show(FormulaToEq(text, FormulaSettings{}, DriverControl{}));
  };
  EXPECT_EQ(eq(u"25/2"), "\\F(25,2)");
  EXPECT_EQ(eq(u"-11/4"), "-\\F(11,4)");
  EXPECT_EQ(eq(u"2g(3)"), "2\\R(,3)");
  EXPECT_EQ(eq(u"3g(3,2)"), "3\\R(\\S\\DO(3),2)");
  EXPECT_EQ(ReadableForm(u"(3@p)/4"), u"3π/4");
  EXPECT_EQ(ReadableForm(u"-6g(2)"), u"-6√2");
  EXPECT_EQ(ReadableForm(u"3g(3,2)"), u"3∛2");
  EXPECT_EQ(ReadableForm(u"g(5,7)"), u"5√7");
}

}  // namespace
}  // namespace lp
