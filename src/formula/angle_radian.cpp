#include "formula/angle_radian.h"

#include <cmath>
#include <numbers>
#include <cstdint>
#include <optional>

#include "formula/exact_number.h"
#include "runtime/text.h"

namespace lp {
namespace {

constexpr int64_t kSecondsPerHalfTurn = 180 * 3600;
// k pi as the formula notation writes it: "@p", "2@p", "(3@p)/4".
std::u16string PiNotation(Rational r) {
  if (r.num == 0) return u"0";
  std::u16string sign = r.num < 0 ? u"-" : u"";
  int64_t k = std::abs(r.num);
  std::u16string top = (k == 1 ? u"" : Digits(k)) + u"@p";
  if (r.den == 1) return sign + top;
  return sign + u"(" + top + u")/" + Digits(r.den);
}

std::u16string Clean(const std::u16string& text) {
  std::u16string out;
  for (char16_t c : StrConvNarrow(text))
    if (c != u' ' && c != u'\t') out += c;
  return out;
}

// Seconds as degrees, minutes and seconds: "135°", "1°30′", "0°0′7.5″".
std::u16string DmsNotation(double seconds, bool approximate) {
  std::u16string sign = seconds < 0 ? u"-" : u"";
  seconds = std::round(std::abs(seconds) * 100) / 100;
  const auto whole = static_cast<int64_t>(seconds);
  std::u16string text = sign + Digits(whole / 3600) + u"°";
  const int64_t m = whole / 60 % 60;
  const double s = seconds - static_cast<double>(whole / 60 * 60);
  if (m != 0 || s != 0) text += Digits(m) + u"′";
  if (s != 0) {
    std::string digits = std::to_string(s);  // trailing zeros of two places go
    digits = digits.substr(0, digits.find('.') + 3);
    while (digits.back() == '0') digits.pop_back();
    if (digits.back() == '.') digits.pop_back();
    text += std::u16string(digits.begin(), digits.end()) + u"″";
  }
  return approximate ? u"≈" + text : text;
}

}  // namespace

AngleConversion DegreesToRadians(const std::u16string& degrees, const std::u16string& minutes,
                                 const std::u16string& seconds) {
  const std::u16string parts[] = {Clean(degrees), Clean(minutes), Clean(seconds)};
  if (parts[0].empty() && parts[1].empty() && parts[2].empty())
    return {{}, u"请输入角的度数、分数或秒数。"};
  // The whole angle in seconds, over one common denominator.
  Rational total{0, 1};
  const int64_t scale[] = {3600, 60, 1};
  for (int i = 0; i < 3; ++i) {
    if (parts[i].empty()) continue;
    std::optional<Rational> v = ParseDecimal(parts[i]);
    if (!v) return {{}, u"度、分、秒只能填整数或有限小数，请检查您的输入。"};
    if (i > 0 && (v->num < 0 || v->num >= 60 * v->den))
      return {{}, u"分和秒应在 0 到 60 之间（不含 60）。"};
    total = Normal(total.num * v->den + v->num * scale[i] * total.den, total.den * v->den);
  }
  if (parts[0].size() && parts[0][0] == u'-' && total.num > 0) total.num = -total.num;
  const int64_t num = total.num, den = total.den * kSecondsPerHalfTurn;
  const std::optional<Rational> turns = ReducedExactly(num, den);
  if (!turns) return {{}, u"角度的数值太大或小数位太多，无法精确换算。"};
  return {PiNotation(*turns), {}};
}

AngleConversion RadiansToDegrees(const std::u16string& radians) {
  std::u16string text;
  bool hasPi = false;
  const std::u16string clean = Clean(radians);
  for (size_t i = 0; i < clean.size(); ++i) {
    if (clean[i] == u'π' || clean.compare(i, 2, u"pi") == 0 || clean.compare(i, 2, u"@p") == 0) {
      if (hasPi) return {{}, u"弧度里只能出现一个 π。"};
      hasPi = true;
      if (clean[i] != u'π') ++i;
      text += u'π';
    } else if (clean[i] != u'(' && clean[i] != u')') {
      text += clean[i];
    }
  }
  const size_t slash = text.find(u'/');
  std::u16string top = text.substr(0, slash), bottom;
  if (slash != std::u16string::npos) bottom = text.substr(slash + 1);
  const size_t pi = top.find(u'π');
  if (pi != std::u16string::npos) {
    if (pi + 1 != top.size()) return {{}, u"请把弧度写成 kπ/n 的形式，例如 3π/4。"};
    top.pop_back();
    if (top.empty() || top == u"-" || top == u"+") top += u'1';
  }
  std::optional<Rational> k = ParseDecimal(top);
  std::optional<Rational> n = bottom.empty() ? Rational{1, 1} : ParseDecimal(bottom);
  if (!k || !n || n->num == 0) return {{}, u"请把弧度写成 kπ/n 的形式，例如 3π/4。"};
  const Rational r = Normal(k->num * n->den, k->den * n->num);
  const double seconds =
      static_cast<double>(r.num * kSecondsPerHalfTurn) / static_cast<double>(r.den);
  if (hasPi) return {DmsNotation(seconds, false), {}};
  return {DmsNotation(std::round(seconds / std::numbers::pi), true), {}};
}

}  // namespace lp
