#include "toolkit/answer_text.h"

#include <array>

#include "runtime/convert.h"
#include "runtime/text.h"
#include "toolkit/equation_sides.h"
#include "toolkit/exact.h"
#include "toolkit/quotient.h"

namespace lp {
namespace {

struct Ratio {
  std::u16string numerator;
  std::u16string denominator = u"1";
};

Ratio SplitAtSlash(const std::u16string& text) {
  std::u16string t = Replace(text, u"--", u"");
  int32_t slash = InStr(t, u"/");
  if (slash == 0) return {t};
  return {Left(t, slash - 1), Mid(t, slash + 1)};
}

std::u16string PiText(double n, double d) {
  std::u16string nt = NumberText(n), dt = NumberText(d);
  if (d == 1) return n == 1 ? u"@p" : n == -1 ? u"-@p" : nt + u"@p";
  if (n == 1) return u"(@p)/" + dt;
  if (n == -1) return u"-(@p)/" + dt;
  return u"(" + nt + u"@p)/" + dt;
}

struct SizeName {
  const char16_t* name;
  float points;
};

constexpr std::array<SizeName, 19> kSizeNames = {{
    {u"大特号", 63}, {u"特号", 54},    {u"初号", 42},   {u"小初", 36},   {u"大一号", 31.5},
    {u"一号", 28},   {u"小一", 24},    {u"二号", 21},   {u"小二", 18},   {u"三号", 16},
    {u"小三", 15},   {u"四号", 14},    {u"小四", 12},   {u"五号", 10.5}, {u"小五", 9},
    {u"六号", 8},    {u"小六", 6.875}, {u"七号", 5.25}, {u"八号", 4.5},
}};

}  // namespace

std::u16string PiFractionText(const std::u16string& t1, const std::u16string& t2,
                              const std::u16string& t3) {
  Ratio r1 = SplitAtSlash(t1), r2 = SplitAtSlash(t2), r3 = SplitAtSlash(t3);
  bool pi1 = InStr(r1.numerator, u"pi") > 0, pi2 = InStr(r2.numerator, u"pi") > 0;
  bool carriesPi =
      (pi1 && pi2) || (pi1 && Val(r2.numerator) == 0) || (pi2 && Val(r1.numerator) == 0);
  double n1 = Val(Replace(r1.numerator, u"pi", u"1"));
  double n2 = Val(Replace(r2.numerator, u"pi", u"1"));
  double d1 = Val(r1.denominator), d2 = Val(r2.denominator);
  double n = (n1 * d2 + d1 * n2) * Val(r3.denominator);
  double d = d1 * d2 * Val(r3.numerator);
  int32_t g = Gcd(CLng(n), CLng(d));
  if (g != 1) {
    n = Quotient(n, g);
    d = Quotient(d, g);
  }
  if (carriesPi) return PiText(n, d);
  return u"(" + NumberText(n) + u")/" + NumberText(d);
}

float FontSizeToPoints(const std::u16string& text) {
  double value = Val(text);
  if (value != 0) return CSng(value);
  for (const SizeName& size : kSizeNames)
    if (text == size.name) return size.points;
  return 0;
}

bool CurveOutsideAxes(const Extents& axes, const Extents& curve) {
  return axes.xmin > curve.xmin || axes.xmax < curve.xmax || axes.ymin > curve.ymin ||
         axes.ymax < curve.ymax;
}

bool CurveExceedsAxes(const Extents& axes, const Extents& curve, Prompt& prompt) {
  if (!CurveOutsideAxes(axes, curve)) return false;
  return prompt.MsgBox(u"您所要绘制的函数图像将有部分超出当前坐标范围，您还要继续作图吗？",
                       vbOKCancel) == vbCancel;
}

}  // namespace lp
