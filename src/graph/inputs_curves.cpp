#include <algorithm>
#include <cmath>

#include "graph/drawers.h"
#include "graph/inputs.h"
#include "runtime/convert.h"
#include "runtime/text.h"
#include "toolkit/eval_error.h"
#include "toolkit/expression.h"
#include "toolkit/normalise.h"

namespace lp::graph {
namespace {

struct Range {
  double from = 0, to = 0;
};

std::optional<Range> ReadRange(const TabInput& in, const std::u16string& fromName,
                               const std::u16string& toName) {
  std::optional<double> from = in.Value(fromName), to = in.Value(toName);
  if (!from || !to || *from >= *to) return in.Refuse(kBadRange);
  return Range{*from, *to};
}

// The smallest and largest value of a sampled function over the range.
Range Extremes(const Sampler& f, double from, double to) {
  std::vector<double> xs, ys;
  for (int i = 0; i <= 200; ++i) xs.push_back(from + (to - from) * i / 200);
  ys.resize(xs.size());
  f(xs, ys);
  Range r{INFINITY, -INFINITY};
  for (double y : ys)
    if (!std::isnan(y)) r = {std::min(r.from, y), std::max(r.to, y)};
  return r.from <= r.to ? r : Range{0, 0};
}

}  // namespace

std::optional<Params> ReadAny(const TabInput& in) {
  AnyParams p;
  p.mode = in.Checked(u"optFY") ? 1 : 0;
  std::u16string typed = LCase(Trim(in.Text(u"txtExp")));
  if (p.mode == 1) typed = Replace(typed, u"y", u"x");
  p.expr = NormaliseExpression(typed);
  std::optional<Range> r = ReadRange(in, u"txtXmin_Any", u"txtXmax_Any");
  if (!r) return std::nullopt;
  try {
    Sampler f = ExpressionSampler(p.expr);
    p.segments = ScanSegments(f, r->from, r->to, in.Range(), p.mode == 0);
  } catch (const EvalError&) {
    return in.Refuse(kBadExpression);
  }
  return p;
}

std::optional<Params> ReadPower(const TabInput& in) {
  PowerParams p;
  p.kind = in.Checked(u"optXmn_Power") ? 1 : 0;
  std::optional<double> n = in.Value(u"txtN_Power"), m = in.Value(u"txtM_Power");
  if (!n || *n != Int(*n) || (p.kind == 1 && (!m || *m != Int(*m) || *m == 0)))
    return in.Refuse(u"幂函数的指数必须是整数或分数，请检查！");
  p.n = CInt(*n);
  p.m = p.kind == 1 ? CInt(*m) : 1;
  std::optional<Range> r = ReadRange(in, u"txtXmin_Power", u"txtXmax_Power");
  if (!r) return std::nullopt;
  p.xmin = r->from;
  p.xmax = r->to;
  Range y = Extremes(PowerSampler(p.n, p.m), p.xmin, p.xmax);
  if (!in.AcceptExtents(p.xmin, p.xmax, y.from, y.to)) return std::nullopt;
  return p;
}

std::optional<Params> ReadExponent(const TabInput& in) {
  ExponentParams p;
  std::optional<double> a = in.Value(u"txtA_Exponent"), h = in.Value(u"txtH_Exponent"),
                        k = in.Value(u"txtK_Exponent");
  if (!a || !h || !k || *a <= 0 || *a == 1)
    return in.Refuse(u"指数函数的底数a必须大于0且不等于1！");
  std::optional<Range> r = ReadRange(in, u"txtXmin_Exponent", u"txtXmax_Exponent");
  if (!r) return std::nullopt;
  p = {*a, *h, *k, r->from, r->to};
  double y1 = std::pow(p.a, p.xmin + p.h) + p.k, y2 = std::pow(p.a, p.xmax + p.h) + p.k;
  if (!in.AcceptExtents(p.xmin, p.xmax, std::min(y1, y2), std::max(y1, y2))) return std::nullopt;
  return p;
}

std::optional<Params> ReadLog(const TabInput& in) {
  LogParams p;
  p.form = static_cast<int16_t>(in.Checked(u"optLogAbsX") ? 1 : in.Checked(u"optAbsLogX") ? 2 : 0);
  std::optional<double> a = in.Value(u"txtA_Log"), h = in.Value(u"txtH_Log"),
                        k = in.Value(u"txtK_Log");
  if (!a || !h || !k || *a <= 0 || *a == 1)
    return in.Refuse(u"对数函数的底数a必须大于0且不等于1！");
  std::optional<double> from = in.Value(u"txtXmin_Log"), to = in.Value(u"txtXmax_Log");
  if (!from || !to) return in.Refuse(kBadRange);
  if (*from >= *to) return in.Refuse(u"自变量x的最小值大于或等于最大值！请检查后重新输入。");
  p = {p.form, *a, *h, *k, *from, *to};
  // The ends of the rising or falling curve, on the side right of its asymptote.
  double left = std::max(p.xmin, -p.h + 0.1);
  double y1 = std::log(left + p.h) / std::log(p.a) + p.k;
  double y2 = std::log(p.xmax + p.h) / std::log(p.a) + p.k;
  if (p.a < 1) std::swap(y1, y2);
  if (!in.AcceptExtents(p.xmin, p.xmax, y1, y2)) return std::nullopt;
  return p;
}

std::optional<Params> ReadReciprocal(const TabInput& in) {
  std::optional<double> lower = in.Value(u"txtFBL_0"), upper = in.Value(u"txtFBL_1"),
                        k = in.Value(u"txtFBL_2");
  if (!lower || !upper || *lower >= *upper) return in.Refuse(kBadRange);
  if (!k || *k == 0) return in.Refuse(u"反比例函数的系数k不能为0！");
  ReciprocalParams p{*k, 0.01, *lower, *upper};
  // Step out from the pole until the curve comes inside the view.
  double reach = std::min(in.Range().ymax, -in.Range().ymin);
  while (std::fabs(p.k / p.d) > reach && p.d < 1000) p.d += 0.01;
  return p;
}

}  // namespace lp::graph
