#include "formula/exact_number.h"

#include <cstdlib>
#include <numeric>

#include "runtime/text.h"
#include "toolkit/exact.h"

namespace lp {

Rational Normal(int64_t num, int64_t den) {
  if (den < 0) num = -num, den = -den;
  const int64_t g = std::gcd(num, den);
  return g > 1 ? Rational{num / g, den / g} : Rational{num, den};
}

std::optional<Rational> ParseDecimal(const std::u16string& typed) {
  const std::u16string text = StrConvNarrow(typed);
  size_t i = 0;
  const bool signed_ = !text.empty() && (text[0] == u'-' || text[0] == u'+');
  const bool negative = signed_ && text[0] == u'-';
  if (signed_) i = 1;
  int64_t num = 0, den = 1;
  bool digits = false, point = false;
  for (; i < text.size(); ++i) {
    const char16_t c = text[i];
    if (c == u'.' && !point) {
      point = true;
    } else if (c >= u'0' && c <= u'9') {
      num = num * 10 + (c - u'0');
      if (point) den *= 10;
      digits = true;
      if (num >= kDigitLimit || den >= kDigitLimit) return std::nullopt;
    } else {
      return std::nullopt;
    }
  }
  if (!digits) return std::nullopt;
  return Normal(negative ? -num : num, den);
}

std::optional<Rational> ReducedExactly(int64_t num, int64_t den) {
  if (den == 0 || std::llabs(num) > INT32_MAX || std::llabs(den) > INT32_MAX) return std::nullopt;
  if (num == 0) return Rational{0, 1};
  const Fraction f = ReduceFraction(static_cast<int32_t>(num), static_cast<int32_t>(den));
  return Normal(static_cast<int64_t>(f.ReducedNum), f.ReducedDen);
}

std::u16string Digits(int64_t n) {
  const std::string s = std::to_string(n);
  return {s.begin(), s.end()};
}

}  // namespace lp
