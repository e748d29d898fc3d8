#include <gtest/gtest.h>

#include <sstream>

#include "formula/formula_mode.h"

namespace lp {
namespace {

TEST(FormulaMode, OneResultPerLineAndTimeoutsAsErrorLines) {
  FormulaSettings settings;
  FormulaGenerator eq = [&](const std::u16string& text, const DriverControl& control) {
    return FormulaToEq(text, settings, control);
  };
  const auto limit = std::chrono::milliseconds(30);
  std::istringstream in("x^2/2\r\nxl\n(a+b)/(c+d)\n");
  std::ostringstream out, err;
  EXPECT_EQ(RunFormulaMode({"-"}, eq, limit, in, out, err), 0);
  EXPECT_EQ(out.str(), "\\F(x\\S(2),2)\nerror: timeout\n\\F(a+b,c+d)\n");

  std::ostringstream single;
  EXPECT_EQ(RunFormulaMode({"hu"}, eq, limit, in, single, err), 3);
  EXPECT_EQ(single.str(), "error: timeout\n");
  EXPECT_EQ(RunFormulaMode({}, eq, limit, in, single, err), 2);
}

}  // namespace
}  // namespace lp
