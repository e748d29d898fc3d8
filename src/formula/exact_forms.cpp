#include "formula/exact_forms.h"

#include <optional>

#include "formula/exact_number.h"
#include "formula/insert.h"
#include "toolkit/exact.h"

namespace lp {
namespace {

std::u16string FractionNotation(Rational r) {
  if (r.den == 1) return Digits(r.num);
  return Digits(r.num) + u"/" + Digits(r.den);
}

int64_t PowerOfTen(size_t digits) {
  int64_t p = 1;
  while (digits-- > 0) p *= 10;
  return p;
}

// The digits of text, which must all be digits; nothing when there are none
// or too many.
std::optional<int64_t> WholeDigits(const std::u16string& text, bool allowEmpty) {
  if (text.empty()) return allowEmpty ? std::optional<int64_t>(0) : std::nullopt;
  if (text.size() > 9) return std::nullopt;
  int64_t n = 0;
  for (char16_t c : text) {
    if (c < u'0' || c > u'9') return std::nullopt;
    n = n * 10 + (c - u'0');
  }
  return n;
}

constexpr char16_t kNotDecimal[] = u"请输入有限小数或循环小数，循环节写在括号里，例如 0.1(6)。";

}  // namespace

ExactForm ReduceFractionForm(const std::u16string& numerator, const std::u16string& denominator) {
  const std::optional<Rational> a = ParseDecimal(numerator), b = ParseDecimal(denominator);
  if (!a || !b) return {{}, u"分子和分母只能填整数或有限小数，请检查您的输入。"};
  if (b->num == 0) return {{}, u"分母不能为 0。"};
  const std::optional<Rational> r = ReducedExactly(a->num * b->den, a->den * b->num);
  if (!r) return {{}, u"数值太大，无法约分。"};
  return {FractionNotation(*r), {}};
}

ExactForm DecimalToFractionForm(const std::u16string& decimal) {
  std::u16string text;
  for (char16_t c : decimal)
    if (c != u' ') text += c == u'（' ? u'(' : c == u'）' ? u')' : c;
  const bool negative = !text.empty() && text[0] == u'-';
  if (negative) text.erase(0, 1);
  const size_t dot = text.find(u'.'), open = text.find(u'(');
  const size_t close = text.find(u')');
  const bool recurring = open != std::u16string::npos;
  if (dot == std::u16string::npos || (recurring && (open < dot || close != text.size() - 1)) ||
      (!recurring && close != std::u16string::npos))
    return {{}, kNotDecimal};
  const std::u16string fixedText = text.substr(dot + 1, (recurring ? open : text.size()) - dot - 1);
  const auto whole = WholeDigits(text.substr(0, dot), true);
  const auto fixed = WholeDigits(fixedText, true);
  const auto repeat = recurring ? WholeDigits(text.substr(open + 1, close - open - 1), false)
                                : std::optional<int64_t>(0);
  if (!whole || !fixed || !repeat || (!recurring && fixedText.empty())) return {{}, kNotDecimal};
  const size_t repeatLength = recurring ? close - open - 1 : 0;
  if (fixedText.size() + repeatLength > 9) return {{}, u"小数位太多，无法精确化为分数。"};
  // x = whole.fixed(repeat): 10^f (10^r - 1) x = the digits' difference.
  const int64_t nines = recurring ? PowerOfTen(repeatLength) - 1 : 1;
  const int64_t den = PowerOfTen(fixedText.size()) * nines;
  const int64_t num = *whole * den + *fixed * nines + *repeat;
  const std::optional<Rational> r = ReducedExactly(negative ? -num : num, den);
  if (!r) return {{}, u"数值太大，无法精确化为分数。"};
  return {FractionNotation(*r), {}};
}

ExactForm SimplifyRadicalForm(const std::u16string& coefficient, const std::u16string& index,
                              const std::u16string& radicand, Prompt& prompt) {
  const std::optional<Rational> k = ParseDecimal(coefficient.empty() ? u"1" : coefficient);
  const std::optional<Rational> n = ParseDecimal(index.empty() ? u"2" : index);
  const std::optional<Rational> m = ParseDecimal(radicand);
  if (!k || !n || !m || k->den != 1 || k->num == 0)
    return {{}, u"系数、根指数和被开方数只能填整数，系数不能为 0。"};
  if (n->den != 1 || n->num < 2 || n->num > 99) return {{}, u"根指数应是 2 到 99 之间的整数。"};
  if (m->den == 1 && m->num == 0) return {u"0", {}};
  const std::optional<Radical> r =
      SimplifyRadical(static_cast<double>(n->num), static_cast<double>(m->num) / m->den, prompt);
  if (!r) return {};
  const int64_t outer = k->num * r->RootOuter;
  if (r->RootInner == 1) return {Digits(outer), {}};
  std::u16string text = outer == 1 ? u"" : outer == -1 ? u"-" : Digits(outer);
  text += u"g(";
  if (r->RootIndex != 2) text += Digits(r->RootIndex) + u",";
  return {text + Digits(r->RootInner) + u")", {}};
}

bool InsertExactForm(Session& session, const ExactForm& form) {
  if (!form.error.empty()) session.prompt.MsgBox(form.error);
  if (form.notation.empty()) return false;
  InsertOwnFormulaAsField(session, form.notation);
  return true;
}

std::u16string ReadableForm(const std::u16string& notation) {
  std::u16string text;
  for (size_t i = 0; i < notation.size(); ++i) {
    if (notation.compare(i, 2, u"@p") == 0) {
      text += u'π';
      ++i;
    } else if (notation.compare(i, 2, u"g(") == 0) {
      // The root sign carries its index: ∛2, ∜2, 5√2.
      const size_t comma = notation.find(u',', i), close = notation.find(u')', i);
      const std::u16string index =
          comma < close ? notation.substr(i + 2, comma - i - 2) : std::u16string();
      text += index.empty() ? u"√" : index == u"3" ? u"∛" : index == u"4" ? u"∜" : index + u"√";
      i = comma < close ? comma : i + 1;
    } else if (notation[i] != u'(' && notation[i] != u')') {
      text += notation[i];
    }
  }
  return text;
}

}  // namespace lp
