#include "runtime/decimal_digits.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>

namespace lp {
namespace {

void StripTrailingZeros(DecimalDigits& d) {
  size_t end = d.digits.find_last_not_of('0');
  if (end == std::string::npos) {
    d.digits = "0";
    d.exponent = 0;
  } else {
    d.digits.resize(end + 1);
  }
}

// The power of ten of the first significant digit of a text that doesn't fit
// a double, to tell overflow from underflow.
long MagnitudeOf(std::string_view text) {
  size_t e = text.find_first_of("eE");
  std::string_view mantissa = text.substr(0, e);
  long exponent = 0;
  if (e != std::string_view::npos) {
    std::string_view digits = text.substr(e + 1);
    if (!digits.empty() && digits[0] == '+') digits.remove_prefix(1);
    std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
  }
  size_t point = mantissa.find('.');
  if (point == std::string_view::npos) point = mantissa.size();
  size_t first = mantissa.find_first_of("123456789");
  long place =
      first < point ? static_cast<long>(point - first) - 1 : -static_cast<long>(first - point);
  return place + exponent;
}

}  // namespace

std::optional<double> ReadDecimal(std::string_view text) {
  std::string_view body = text;
  if (!body.empty() && body[0] == '+') body.remove_prefix(1);
  double value = 0;
  auto [end, error] = std::from_chars(body.data(), body.data() + body.size(), value);
  if (error == std::errc::result_out_of_range) {
    if (MagnitudeOf(body) > 0) return std::nullopt;
    return 0.0;
  }
  return value;
}

DecimalDigits ToDecimalDigits(double value, int significant) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.*e", significant - 1, value);
  DecimalDigits d;
  const char* p = buffer;
  if (*p == '-') {
    d.negative = true;
    ++p;
  }
  d.digits.clear();
  for (; *p && *p != 'e'; ++p)
    if (*p != '.') d.digits += *p;
  d.exponent = *p == 'e' ? std::atoi(p + 1) : 0;
  StripTrailingZeros(d);
  if (value == 0) d.negative = false;  // the runtime knows no negative zero
  return d;
}

DecimalDigits RoundToDecimals(const DecimalDigits& d, int decimals) {
  // Digits kept: those with a power of ten of at least -decimals.
  int keep = d.exponent + decimals + 1;
  if (keep >= static_cast<int>(d.digits.size())) return d;
  DecimalDigits r = d;
  if (keep < 0) {
    r.digits = "0";
    r.exponent = 0;
    return r;
  }
  bool up = d.digits[keep] >= '5';
  r.digits.resize(keep);
  if (up) {
    int i = keep - 1;
    while (i >= 0 && r.digits[i] == '9') r.digits[i--] = '0';
    if (i >= 0) {
      ++r.digits[i];
    } else {
      r.digits.insert(r.digits.begin(), '1');
      ++r.exponent;
    }
  }
  StripTrailingZeros(r);
  return r;
}

}  // namespace lp
