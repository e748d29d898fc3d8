// Numeric patterns of Format: "0" is a digit always written, "#" a digit
// written only when significant, "." the decimal point. Other characters are
// written as they stand, after the number.

#include <algorithm>
#include <cmath>
#include <string>

#include "runtime/convert.h"
#include "runtime/decimal_digits.h"

namespace lp {
namespace {

struct NumberPattern {
  int minInteger = 0;   // "0"s before the point
  int minFraction = 0;  // up to the last "0" after the point
  int maxFraction = 0;  // placeholders after the point
  bool hasPoint = false;
  std::u16string literal;
};

NumberPattern ParsePattern(const std::u16string& pattern) {
  NumberPattern p;
  for (char16_t c : pattern) {
    if (c == u'.' && !p.hasPoint) {
      p.hasPoint = true;
    } else if (c == u'0' || c == u'#') {
      if (!p.hasPoint) {
        p.minInteger += c == u'0';
      } else {
        ++p.maxFraction;
        if (c == u'0') p.minFraction = p.maxFraction;
      }
    } else {
      p.literal += c;
    }
  }
  return p;
}

// The digit of d at the given power of ten.
char DigitAt(const DecimalDigits& d, int power) {
  int index = d.exponent - power;
  if (d.digits == "0" || index < 0 || index >= static_cast<int>(d.digits.size())) return '0';
  return d.digits[index];
}

}  // namespace

std::u16string Format(double value, const std::u16string& pattern) {
  NumberPattern p = ParsePattern(pattern);
  DecimalDigits d = RoundToDecimals(ToDecimalDigits(value, 15), p.maxFraction);
  bool isZero = d.digits == "0";

  std::string out = d.negative ? "-" : "";
  int topPower = isZero ? -1 : std::max(d.exponent, -1);
  for (int power = std::max(topPower, p.minInteger - 1); power >= 0; --power)
    out += DigitAt(d, power);

  std::string fraction;
  for (int power = -1; power >= -p.maxFraction; --power) fraction += DigitAt(d, power);
  size_t used = fraction.find_last_not_of('0');
  used = used == std::string::npos ? 0 : used + 1;
  fraction.resize(std::max<size_t>(used, p.minFraction));
  if (p.hasPoint) out += "." + fraction;

  std::u16string result(out.begin(), out.end());
  return result + p.literal;
}

}  // namespace lp
