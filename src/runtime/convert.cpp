#include "runtime/convert.h"

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "runtime/decimal_digits.h"
#include "runtime/error.h"

namespace lp {
namespace {

std::u16string Widen(const std::string& s) {
  return std::u16string(s.begin(), s.end());
}

bool IsValBlank(char16_t c) {
  return c == u' ' || c == u'\t' || c == u'\n';
}

bool IsAsciiDigit(char16_t c) {
  return c >= u'0' && c <= u'9';
}

// "&H1F", "&O17" or "&17": a 16-bit value when it fits in 16 bits, so that
// "&HFFFF" is -1, else 32-bit; beyond that, overflow.
double RadixValue(const std::u16string& s, size_t i) {
  int base = 8;
  if (i < s.size() && (s[i] == u'H' || s[i] == u'h')) {
    base = 16;
    ++i;
  } else if (i < s.size() && (s[i] == u'O' || s[i] == u'o')) {
    ++i;
  }
  uint64_t v = 0;
  for (; i < s.size(); ++i) {
    char16_t c = s[i];
    int d = IsAsciiDigit(c)            ? c - u'0'
            : (c >= u'a' && c <= u'f') ? c - u'a' + 10
            : (c >= u'A' && c <= u'F') ? c - u'A' + 10
                                       : 99;
    if (d >= base) break;
    v = v * base + d;
    if (v > 0xFFFFFFFFull) RaiseOverflow();
  }
  if (v <= 0xFFFF) return static_cast<int16_t>(static_cast<uint16_t>(v));
  return static_cast<int32_t>(static_cast<uint32_t>(v));
}

// Appends the digits at s[i...] to out; returns the index after them.
size_t TakeDigits(const std::u16string& s, size_t i, std::string& out) {
  while (i < s.size() && IsAsciiDigit(s[i])) out += static_cast<char>(s[i++]);
  return i;
}

}  // namespace

double Val(const std::u16string& text) {
  std::u16string s;
  for (char16_t c : text)
    if (!IsValBlank(c)) s += c;
  if (s.size() >= 2 && s[0] == u'&') return RadixValue(s, 1);

  std::string number;
  size_t i = 0;
  if (i < s.size() && (s[i] == u'-' || s[i] == u'+')) number += static_cast<char>(s[i++]);
  i = TakeDigits(s, i, number);
  if (i < s.size() && s[i] == u'.') {
    number += '.';
    i = TakeDigits(s, i + 1, number);
  }
  bool hasMantissa = number.find_first_of("0123456789") != std::string::npos;
  if (!hasMantissa) return 0;
  if (i < s.size() && (s[i] == u'e' || s[i] == u'E' || s[i] == u'd' || s[i] == u'D')) {
    std::string exponent = "e";
    size_t j = i + 1;
    if (j < s.size() && (s[j] == u'-' || s[j] == u'+')) exponent += static_cast<char>(s[j++]);
    if (TakeDigits(s, j, exponent) > j) number += exponent;
  }
  std::optional<double> v = ReadDecimal(number);
  if (!v) RaiseOverflow();
  return *v;
}

std::u16string Str(double value) {
  if (std::isnan(value)) return u"-1.#IND";
  if (std::isinf(value)) return value > 0 ? u" 1.#INF" : u"-1.#INF";
  DecimalDigits d = ToDecimalDigits(value, 15);
  std::string out = d.negative ? "-" : " ";
  if (d.digits == "0") return Widen(out + "0");
  if (d.exponent >= 15 || d.exponent < -4) {
    out += d.digits.substr(0, 1);
    if (d.digits.size() > 1) out += "." + d.digits.substr(1);
    char e[16];
    std::snprintf(e, sizeof e, "E%c%02d", d.exponent < 0 ? '-' : '+', std::abs(d.exponent));
    return Widen(out + e);
  }
  if (d.exponent < 0) {
    out += "." + std::string(-d.exponent - 1, '0') + d.digits;
  } else {
    std::string digits = d.digits;
    if (digits.size() < static_cast<size_t>(d.exponent) + 1) digits.resize(d.exponent + 1, '0');
    out += digits.substr(0, d.exponent + 1);
    if (digits.size() > static_cast<size_t>(d.exponent) + 1)
      out += "." + digits.substr(d.exponent + 1);
  }
  return Widen(out);
}

int16_t CInt(double value) {
  double r = std::nearbyint(value);
  if (!(r >= -32768.0 && r <= 32767.0)) RaiseOverflow();
  return static_cast<int16_t>(r);
}

int32_t CLng(double value) {
  double r = std::nearbyint(value);
  if (!(r >= -2147483648.0 && r <= 2147483647.0)) RaiseOverflow();
  return static_cast<int32_t>(r);
}

float CSng(double value) {
  if (std::isnan(value)) RaiseOverflow();
  float f = static_cast<float>(value);
  if (std::isinf(f)) RaiseOverflow();
  return f;
}

double Int(double value) {
  return std::floor(value);
}

double Fix(double value) {
  return std::trunc(value);
}

}  // namespace lp
