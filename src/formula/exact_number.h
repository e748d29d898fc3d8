#pragma once
// Exact numbers as the teacher types them: a finite decimal read digit by
// digit into a fraction, never through floating point, so "12.5" is 25/2.

#include <cstdint>
#include <optional>
#include <string>

namespace lp {

struct Rational {
  int64_t num = 0;
  int64_t den = 1;  // positive; num/den in lowest terms
};

// Lowest terms with a positive denominator (den must not be 0).
Rational Normal(int64_t num, int64_t den);

// Numbers past this many digits are refused, so sums of two stay exact.
constexpr int64_t kDigitLimit = 1'000'000'000;

// "12", "-2.25", ".5" and full-width digits; nothing for anything else or
// for more digits than kDigitLimit allows.
std::optional<Rational> ParseDecimal(const std::u16string& text);

// Reduced through the toolkit's fraction arithmetic; nothing when the
// terms do not fit its 32-bit range.
std::optional<Rational> ReducedExactly(int64_t num, int64_t den);

std::u16string Digits(int64_t n);

}  // namespace lp
