#include <gtest/gtest.h>

#include "formula/angle_radian.h"
#include "formula/generators.h"

namespace lp {
namespace {

std::string Show(const std::u16string& s) {
  std::string out;
  for (char16_t c : s) out += c < 128 ? static_cast<char>(c) : '?';
  return out;
}

// The exact multiple of pi: k/n written by hand.
std::u16string Pi(int k, int n) {
  auto digits = [](int v) {
    std::string s = std::to_string(v);
    return std::u16string(s.begin(), s.end());
  };
  std::u16string sign = k < 0 ? u"-" : u"";
  std::u16string top = (std::abs(k) == 1 ? u"" : digits(std::abs(k))) + u"@p";
  return n == 1 ? sign + top : sign + u"(" + top + u")/" + digits(n);
}

TEST(AngleToRadian, ThirteenAnglesAreExactMultiplesOfPi) {
  struct Row {
    const char* name;
    const char16_t *d, *m, *s;
    int k, n;  // the angle is k pi / n
  } rows[] = {
      {"30", u"30", u"", u"", 1, 6},
      {"45", u"45", u"", u"", 1, 4},
      {"60", u"60", u"", u"", 1, 3},
      {"90", u"90", u"", u"", 1, 2},
      {"135", u"135", u"", u"", 3, 4},
      {"180", u"180", u"", u"", 1, 1},
      {"270", u"270", u"", u"", 3, 2},
      {"720", u"720", u"", u"", 4, 1},
      {"1d30m", u"1", u"30", u"", 1, 120},
      {"22.5", u"22.5", u"", u"", 1, 8},
      {"-150", u"-150", u"", u"", -5, 6},
      {"0d0m36s", u"0", u"0", u"36", 1, 18000},
      {"10d30m18s", u"10", u"30", u"18", 2101, 36000},
  };
  for (const Row& row : rows) {
    AngleConversion c = DegreesToRadians(row.d, row.m, row.s);
    EXPECT_EQ(Show(c.error), "") << row.name;
    EXPECT_EQ(Show(c.notation), Show(Pi(row.k, row.n))) << row.name;
  }
}

TEST(RadianToAngle, MultiplesOfPiComeBackAsDegreesMinutesSeconds) {
  struct Row {
    const char* name;
    const char16_t* in;
    const char16_t* out;
  } rows[] = {
      {"ThreeQuarters", u"3π/4", u"135°"},
      {"SixthSpelt", u"pi/6", u"30°"},
      {"Bracketed", u"(5π)/6", u"150°"},
      {"Negative", u"-π/3", u"-60°"},
      {"Whole", u"2π", u"360°"},
      {"HundredTwentieth", u"π/120", u"1°30′"},
      {"Decimal", u"0.1π", u"18°"},
      {"Seconds", u"π/18000", u"0°0′36″"},
      {"Seventh", u"π/7", u"25°42′51.43″"},
      {"OneRadian", u"1", u"≈57°17′45″"},
  };
  for (const Row& row : rows) {
    AngleConversion c = RadiansToDegrees(row.in);
    EXPECT_EQ(Show(c.error), "") << row.name;
    EXPECT_EQ(c.notation, std::u16string(row.out)) << row.name;
  }
}

TEST(AngleConversion, RefusedInputsSayWhy) {
  EXPECT_FALSE(DegreesToRadians(u"", u"", u"").error.empty());
  EXPECT_FALSE(DegreesToRadians(u"3a", u"", u"").error.empty());
  EXPECT_FALSE(DegreesToRadians(u"1", u"60", u"").error.empty());
  EXPECT_FALSE(DegreesToRadians(u"1", u"", u"-5").error.empty());
  EXPECT_FALSE(RadiansToDegrees(u"π/0").error.empty());
  EXPECT_FALSE(RadiansToDegrees(u"π/6π").error.empty());
  EXPECT_FALSE(RadiansToDegrees(u"3π4").error.empty());
}

TEST(AngleConversion, TheEqFieldIsAFractionOfPi) {
  const auto eq = [](const std::u16string& text) {
    return Show(FormulaToEq(text, FormulaSettings{}, DriverControl{}));
  };
  EXPECT_EQ(eq(DegreesToRadians(u"135", u"", u"").notation), "\\F(3@p,4)");
  EXPECT_EQ(eq(DegreesToRadians(u"30", u"", u"").notation), "\\F(@p,6)");
  EXPECT_EQ(eq(DegreesToRadians(u"-150", u"", u"").notation), "-\\F(5@p,6)");
  EXPECT_EQ(eq(DegreesToRadians(u"360", u"", u"").notation), "2@p");
}

}  // namespace
}  // namespace lp
