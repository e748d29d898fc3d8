#include <gtest/gtest.h>

#include "runtime/error.h"
#include "runtime/recording_prompt.h"
#include "solvers/factoring.h"
#include "word/fake/fake_word.h"

namespace lp {
namespace {

struct LabelCase {
  const char* name;
  std::u16string input;
  std::u16string label;
};

TEST(Factoring, LabelShowsTheFactorisation) {
  const LabelCase cases[] = {
      {"several primes", u"360", u"运算结果： 360=  2^ 3· 3^ 2· 5"},
      {"exponents one", u"6", u"运算结果： 6=  2· 3"},
      {"power of two", u"8", u"运算结果： 8=  2^ 3"},
      {"prime shows exponent one", u"7", u"运算结果： 7=  7^ 1"},
      {"two", u"2", u"运算结果： 2=  2^ 1"},
      {"square found by the loop", u"49", u"运算结果： 49=  7^ 2"},
      {"two times a large prime", u"2147483646",
       u"运算结果： 2147483646=  2· 3^ 2· 7· 11· 31· 151· 331"},
      {"largest accepted is prime", u"2147483647", u"运算结果： 2147483647=  2147483647^ 1"},
      {"leading number and blanks", u" 12abc", u"运算结果： 12=  2^ 2· 3"},
      {"two point zero", u"2.0", u"运算结果： 2=  2^ 1"},
      {"power of two alone", u"1024", u"运算结果： 1024=  2^ 10"},
      {"large prime after the loop", u"2000006", u"运算结果： 2000006=  2· 1000003"},
  };
  for (const auto& c : cases) {
    Factorisation f;
    RecordingPrompt prompt;
    Decompose(f, c.input, prompt);
    EXPECT_EQ(f.label, c.label) << c.name;
    EXPECT_TRUE(prompt.Shown().empty()) << c.name;
  }
}

TEST(Factoring, RefusedInputsLeaveTheResult) {
  const std::pair<std::u16string, std::u16string> cases[] = {
      {u"", u"请输入您想要分解的整数！"},
      {u"2147483648", u"您输入的数据过大，请确认该整数不大于 2147483647 "},
      {u"0", u"您输入的数据过小，请确认该整数大于 0 "},
      {u"-4", u"您输入的数据过小，请确认该整数大于 0 "},
      {u"   ", u"您输入的数据过小，请确认该整数大于 0 "},
      {u"2.5", u"您输入的不是整数！请检查后重新输入！"},
  };
  for (const auto& [input, message] : cases) {
    Factorisation f;
    RecordingPrompt prompt;
    Decompose(f, u"6", prompt);
    Decompose(f, input, prompt);
    ASSERT_EQ(prompt.Shown().size(), 1u);
    EXPECT_EQ(prompt.Shown()[0].prompt, message);
    EXPECT_EQ(prompt.Shown()[0].style, vbOKOnly);
    EXPECT_EQ(f.label, u"运算结果： 6=  2· 3");
    EXPECT_EQ(f.FactorCount, 2);
  }
}

TEST(Factoring, OneOnlyGrowsTheLabel) {
  Factorisation f;
  RecordingPrompt prompt;
  Decompose(f, u"1", prompt);
  EXPECT_EQ(f.label, u"运算结果：1=1");
  Decompose(f, u"1", prompt);
  EXPECT_EQ(f.label, u"运算结果：1=11=1");
  Decompose(f, u"10", prompt);
  Decompose(f, u"1", prompt);
  EXPECT_EQ(f.label, u"运算结果： 10=  2· 51=1");
  EXPECT_EQ(f.Factor, (std::vector<int32_t>{2, 5}));
}

}  // namespace
}  // namespace lp

namespace lp {
namespace {

TEST(Factoring, InsertTypesRealSuperscript) {
  word::fake::FakeWord word;
  Factorisation f;
  RecordingPrompt prompt;
  Decompose(f, u"360", prompt);
  InsertFactorisation(f, word.Selection());
  EXPECT_EQ(word::fake::CallDiff(word.Calls(),
                                 {
                                     "Selection.TypeText(\" 360= \")",
                                     "Selection.TypeText(\" 2\")",
                                     "Selection.Font.Superscript=9999998",
                                     "Selection.TypeText(\" 3\")",
                                     "Selection.Font.Superscript=9999998",
                                     "Selection.TypeText(\"·\")",
                                     "Selection.TypeText(\" 3\")",
                                     "Selection.Font.Superscript=9999998",
                                     "Selection.TypeText(\" 2\")",
                                     "Selection.Font.Superscript=9999998",
                                     "Selection.TypeText(\"·\")",
                                     "Selection.TypeText(\" 5\")",
                                 }),
            "");
}

TEST(Factoring, InsertAfterRefusalTypesTheNewNumberAndOldFactors) {
  word::fake::FakeWord word;
  Factorisation f;
  RecordingPrompt prompt;
  Decompose(f, u"7", prompt);
  Decompose(f, u"-2", prompt);
  InsertFactorisation(f, word.Selection());
  EXPECT_EQ(word.Typed(), u"-2=  7 1");

  Factorisation fresh;
  word::fake::FakeWord other;
  EXPECT_THROW(InsertFactorisation(fresh, other.Selection()), RuntimeError);
  EXPECT_EQ(other.Typed(), u" 0= ");
}

}  // namespace
}  // namespace lp
