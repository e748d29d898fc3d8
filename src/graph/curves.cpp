#include "graph/drawers.h"

#include <cmath>
#include <numeric>

#include "toolkit/eval_error.h"

namespace lp::graph {
namespace {

Sampler Pointwise(std::function<double(double)> f) {
  return [f = std::move(f)](std::span<const double> xs, std::span<double> values) {
    for (size_t i = 0; i < xs.size(); ++i) {
      double v = f(xs[i]);
      values[i] = std::isfinite(v) ? v : std::nan("");
    }
  };
}

void AddPiece(std::vector<Item>& items, const std::u16string& prefix, const Sampler& f, double from,
              double to, bool swapAxes = false) {
  if (!(to > from)) return;
  std::vector<WorldPoint> nodes = SampleNodes(f, from, to, swapAxes);
  if (!nodes.empty()) items.push_back(CurveItem{prefix, std::move(nodes)});
}

}  // namespace

std::vector<Item> DrawAny(const AnyParams& p) {
  std::vector<Item> items;
  try {
    Sampler f = ExpressionSampler(p.expr);
    for (const Segment& s : p.segments)
      AddPiece(items, u"任意函数", f, s.start, s.end, p.mode == 1);
  } catch (const EvalError&) {
    items.clear();
  }
  return items;
}

Sampler PowerSampler(int16_t n, int16_t m) {
  int g = std::gcd(static_cast<int>(n), static_cast<int>(m == 0 ? 1 : m));
  int num = n / (g == 0 ? 1 : g), den = (m == 0 ? 1 : m) / (g == 0 ? 1 : g);
  if (den < 0) num = -num, den = -den;
  double e = static_cast<double>(num) / den;
  return Pointwise([num, den, e](double x) {
    if (x >= 0) return std::pow(x, e);
    // The evaluator can't raise a negative base; the reduced exponent says
    // whether the value is that of -x, its negative, or none.
    if (num % 2 == 0) return std::pow(-x, e);
    if (den % 2 == 1) return -std::pow(-x, e);
    return std::nan("");
  });
}

std::vector<Item> DrawPower(const PowerParams& p, const View& view) {
  std::vector<Item> items;
  Sampler f = PowerSampler(p.n, p.kind == 1 ? p.m : 1);
  bool pole = (p.n < 0) != (p.kind == 1 && p.m < 0);
  auto piece = [&](double from, double to) {
    if (!pole) return AddPiece(items, u"幂函数", f, from, to);
    // A negative exponent has its pole at 0: cut the piece where it leaves the view.
    if (!(to > from)) return;
    for (const Segment& s : ScanSegments(f, from, to, view, true))
      AddPiece(items, u"幂函数", f, s.start, s.end);
  };
  if (p.xmin >= 0 || p.xmax <= 0) {
    piece(p.xmin, p.xmax);
  } else {
    piece(p.xmin, 0);
    piece(0, p.xmax);
  }
  return items;
}

std::vector<Item> DrawExponent(const ExponentParams& p) {
  std::vector<Item> items;
  AddPiece(items, u"指数函数", Pointwise([p](double x) { return std::pow(p.a, x + p.h) + p.k; }),
           p.xmin, p.xmax);
  return items;
}

std::vector<Item> DrawLog(const LogParams& p) {
  std::vector<Item> items;
  Sampler f = Pointwise([p](double x) {
    double arg = p.form == 1 ? std::fabs(x + p.h) : x + p.h;
    double v = std::log(arg) / std::log(p.a);
    return (p.form == 2 ? std::fabs(v) : v) + p.k;
  });
  double asymptote = -p.h;
  AddPiece(items, u"对数函数", f, std::max(p.xmin, asymptote + 0.1), p.xmax);
  if (p.form == 1) AddPiece(items, u"对数函数", f, p.xmin, std::min(p.xmax, asymptote - 0.1));
  return items;
}

std::vector<Item> DrawReciprocal(const ReciprocalParams& p) {
  std::vector<Item> items;
  Sampler f = Pointwise([k = p.k](double x) { return k / x; });
  AddPiece(items, u"反比例函数", f, p.lower, std::min(p.upper, -p.d));
  AddPiece(items, u"反比例函数", f, std::max(p.lower, p.d), p.upper);
  return items;
}

Sampler TrigSampler(const TrigParams& p) {
  constexpr double kPi = 3.14159265358979;
  return Pointwise([p](double x) {
    double u = p.w * x + p.F;
    switch (p.kind) {
      case 0:
        return p.A * std::sin(u) + p.K;
      case 1:
        return p.A * std::cos(u) + p.K;
      case 2:
        return p.A * std::tan(u) + p.K;
      case 3:
        return 1 / (std::tan(u) * p.A) + p.K;  // A divides here
      case 4:
        return p.A * std::asin(u) + p.K;
      case 5:
        return p.A * std::acos(u) + p.K;
      case 6:
        return p.A * std::atan(u) + p.K;
      case 7:
        return p.A * (kPi / 2 - std::atan(u)) + p.K;
      default:
        return std::nan("");
    }
  });
}

std::vector<Item> DrawTrig(const TrigParams& p, Labels& labels) {
  static const char16_t* const kCaptions[] = {u"正弦函数",   u"余弦函数",   u"正切函数",
                                              u"余切函数",   u"反正弦函数", u"反余弦函数",
                                              u"反正切函数", u"反余切函数"};
  std::vector<Item> items;
  if (p.kind < 0 || p.kind > 7) return items;
  Sampler f = TrigSampler(p);
  for (const Segment& s : p.segments) AddPiece(items, kCaptions[p.kind], f, s.start, s.end);
  for (const TrigMark& m : p.marks) {
    items.push_back(LineItem{m.xText + u"竖线", m.at, {m.at.x, 0}, true});
    if (m.at.y != 0) items.push_back(LineItem{m.xText + u"横线", m.at, {0, m.at.y}, true});
    labels.x.push_back({static_cast<float>(m.at.x), m.xText, u"sj_x"});
    labels.y.push_back({static_cast<float>(m.at.y), m.yText, u"sj_y"});
  }
  return items;
}

}  // namespace lp::graph
