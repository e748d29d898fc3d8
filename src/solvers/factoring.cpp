#include "solvers/factoring.h"

#include <cmath>

#include "runtime/convert.h"
#include "runtime/error.h"
#include "runtime/text.h"
#include "toolkit/exact.h"

namespace lp {
namespace {

void AddFactor(Factorisation& f, int32_t prime, int32_t exponent) {
  f.Factor.resize(f.FactorCount + 1);
  f.Exponent.resize(f.FactorCount + 1);
  f.Factor[f.FactorCount] = prime;
  f.Exponent[f.FactorCount] = exponent;
  f.haveFactors = true;
  ++f.FactorCount;
}

// The refusals of the typed text, in the order they are tested.
std::u16string Refusal(double number) {
  if (number > 2147483647.0) return u"您输入的数据过大，请确认该整数不大于 2147483647 ";
  if (number <= 0) return u"您输入的数据过小，请确认该整数大于 0 ";
  if (number != Int(number)) return u"您输入的不是整数！请检查后重新输入！";
  return {};
}

void Factorise(Factorisation& f) {
  f.FactorCount = 0;
  if (IsDivisible(2, CLng(f.Number))) {
    f.Factor.clear();
    f.Exponent.clear();
    AddFactor(f, 2, Multiplicity(2, CLng(f.Number)));
    f.Number /= std::pow(2.0, f.Exponent[0]);
  }
  // The limit is taken once; the second test alone ends the loop early.
  int32_t limit = static_cast<int32_t>(Int(std::sqrt(f.Number)));
  for (int32_t i = 3; i <= limit; i += 2) {
    if (IsDivisible(i, CLng(f.Number))) {
      AddFactor(f, i, Multiplicity(i, CLng(f.Number)));
      f.Number /= std::pow(static_cast<double>(i), f.Exponent[f.FactorCount - 1]);
    }
    if (i > f.Number) break;
  }
}

std::u16string ResultText(const Factorisation& f) {
  std::u16string text = u"运算结果：" + Str(f.Number) + u"= ";
  if (f.FactorCount == 1) return text + Str(f.Factor[0]) + u"^" + Str(f.Exponent[0]);
  for (int32_t i = 0; i < f.FactorCount; ++i) {
    text += Str(f.Factor[i]);
    if (f.Exponent[i] != 1) text += u"^" + Str(f.Exponent[i]);
    if (i < f.FactorCount - 1) text += u"·";
  }
  return text;
}

void TypeSuperscript(word::Selection& selection, const std::u16string& text) {
  selection.Font().SetSuperscript(word::wdToggle);
  selection.TypeText(text);
  selection.Font().SetSuperscript(word::wdToggle);
}

}  // namespace

void Decompose(Factorisation& f, const std::u16string& text, Prompt& prompt) {
  if (text.empty()) {
    prompt.MsgBox(u"请输入您想要分解的整数！");
    return;
  }
  f.Number = Val(Trim(text));
  if (std::u16string why = Refusal(f.Number); !why.empty()) {
    prompt.MsgBox(why);
    return;
  }
  // 1 has no prime factors: the label only grows, the factors stay.
  if (f.Number == 1) {
    f.label += u"1=1";
    return;
  }
  Factorise(f);
  int32_t product = 1;
  for (int32_t j = 0; j < f.FactorCount; ++j)
    product = CLng(product * std::pow(static_cast<double>(f.Factor[j]), f.Exponent[j]));
  f.Number = Val(Trim(text));
  // What is left above the loop's limit is one further prime.
  if (f.Number / product != 1) AddFactor(f, CLng(Int(f.Number / product)), 1);
  f.label = ResultText(f);
}

void InsertFactorisation(const Factorisation& f, word::Selection& selection) {
  selection.TypeText(Str(f.Number) + u"= ");
  int32_t last = f.FactorCount - 1;
  if (!f.haveFactors || last < 0 || last >= static_cast<int32_t>(f.Factor.size()))
    throw RuntimeError(kSubscriptOutOfRange);
  if (f.FactorCount == 1) {
    selection.TypeText(Str(f.Factor[0]));
    TypeSuperscript(selection, Str(f.Exponent[0]));
    return;
  }
  for (int32_t i = 0; i <= last; ++i) {
    const std::u16string dot = i < last ? u"·" : u"";
    if (f.Exponent[i] == 1) {
      selection.TypeText(Str(f.Factor[i]) + dot);
      continue;
    }
    selection.TypeText(Str(f.Factor[i]));
    TypeSuperscript(selection, Str(f.Exponent[i]));
    if (!dot.empty()) selection.TypeText(dot);
  }
}

}  // namespace lp
