#pragma once
// A double as decimal digits, the way numbers are seen before they are
// written as text: rounded to a number of significant digits first.

#include <optional>
#include <string>
#include <string_view>

namespace lp {

struct DecimalDigits {
  bool negative = false;
  std::string digits = "0";  // no trailing zeros; "0" for zero
  int exponent = 0;          // power of ten of the first digit
};

DecimalDigits ToDecimalDigits(double value, int significant);

// Rounds half away from zero to the given number of digits after the point.
DecimalDigits RoundToDecimals(const DecimalDigits& d, int decimals);

// Reads a plain decimal number ("-1.5e3", ".5"), independent of the C
// locale. Nothing for a value beyond the double range; 0 below it.
std::optional<double> ReadDecimal(std::string_view text);

}  // namespace lp
