#include <cmath>

#include "graph/drawers.h"

namespace lp::graph {
namespace {

LineItem Bar(const std::u16string& prefix, double x1, double y1, double x2, double y2) {
  return LineItem{prefix, {x1, y1}, {x2, y2}};
}

// The prefixes of one orientation of a conic, in the order of the fields.
struct ConicNames {
  const char16_t *first, *second, *firstFocus, *secondFocus, *firstDirectrix, *secondDirectrix;
};

}  // namespace

std::vector<Item> DrawCircle(const CircleParams& p) {
  double r = std::sqrt(p.r2);
  std::vector<Item> items{OvalItem{u"圆", {p.cx, p.cy}, r, r}};
  if (p.drawCentre) items.push_back(DotItem{u"圆心", {p.cx, p.cy}});
  return items;
}

std::vector<Item> DrawEllipse(const ConicParams& p) {
  double a = std::sqrt(p.a2), b = std::sqrt(p.b2), c = std::sqrt(p.a2 - p.b2), d = p.a2 / c;
  double rx = p.horizontal ? a : b, ry = p.horizontal ? b : a;
  std::vector<Item> items{OvalItem{u"椭圆", {p.cx, p.cy}, rx, ry}};
  if (p.horizontal) {
    if (p.focus) {
      items.push_back(DotItem{u"椭圆左焦点", {p.cx - c, p.cy}});
      items.push_back(DotItem{u"椭圆右焦点", {p.cx + c, p.cy}});
    }
    if (p.directrix) {
      items.push_back(Bar(u"椭圆左准线", p.cx - d, p.cy - 1.5 * b, p.cx - d, p.cy + 1.5 * b));
      items.push_back(Bar(u"椭圆右准线", p.cx + d, p.cy - 1.5 * b, p.cx + d, p.cy + 1.5 * b));
    }
  } else {
    // These two foci sit at the point itself, their boxes not centred.
    if (p.focus) {
      items.push_back(DotItem{u"椭圆上焦点", {p.cx, p.cy + c}, 0, 0});
      items.push_back(DotItem{u"椭圆下焦点", {p.cx, p.cy - c}, 0, 0});
    }
    if (p.directrix) {
      items.push_back(Bar(u"椭圆上准线", p.cx - 1.5 * b, p.cy + d, p.cx + 1.5 * b, p.cy + d));
      items.push_back(Bar(u"椭圆下准线", p.cx - 1.5 * b, p.cy - d, p.cx + 1.5 * b, p.cy - d));
    }
  }
  if (p.axis) {
    items.push_back(Bar(u"椭圆对称轴", p.cx - 1.5 * rx, p.cy, p.cx + 1.5 * rx, p.cy));
    items.push_back(Bar(u"椭圆对称轴", p.cx, p.cy - 1.5 * ry, p.cx, p.cy + 1.5 * ry));
  }
  return items;
}

std::vector<Item> DrawHyperbola(const ConicParams& p) {
  static constexpr ConicNames kHorizontal{u"双曲线左支", u"双曲线右支", u"左焦点",
                                          u"右焦点",     u"左准线",     u"右准线"};
  static constexpr ConicNames kVertical{u"双曲线下半支", u"双曲线上半支", u"双曲线下焦点",
                                        u"双曲线上焦点", u"双曲线下准线", u"双曲线上准线"};
  const ConicNames& names = p.horizontal ? kHorizontal : kVertical;
  double a = std::sqrt(p.a2), b = std::sqrt(p.b2), c = std::sqrt(p.a2 + p.b2), d = p.a2 / c;
  // Along the branches runs t (y of a horizontal hyperbola, x of a vertical
  // one); across them the root gives the other coordinate about the centre.
  double along = p.horizontal ? p.cy : p.cx, across = p.horizontal ? p.cx : p.cy;
  auto branch = [&](double sign) {
    return [=](std::span<const double> ts, std::span<double> values) {
      for (size_t i = 0; i < ts.size(); ++i) {
        double u = ts[i] - along;
        values[i] = across + sign * std::sqrt(p.a2 * (1 + u * u / p.b2));
      }
    };
  };
  // World point from (along, across) coordinates.
  auto at = [&](double t, double s) { return p.horizontal ? WorldPoint{s, t} : WorldPoint{t, s}; };
  std::vector<Item> items;
  for (double sign : {-1.0, 1.0}) {
    std::vector<WorldPoint> nodes = SampleNodes(branch(sign), p.from, p.to, p.horizontal);
    if (!nodes.empty()) items.push_back(CurveItem{sign < 0 ? names.first : names.second, nodes});
  }
  if (p.focus) {
    // The first focus box is centred, the second moved along the axis only.
    items.push_back(DotItem{names.firstFocus, at(along, across - c)});
    DotItem second{names.secondFocus, at(along, across + c)};
    (p.horizontal ? second.offsetY : second.offsetX) = 0;
    items.push_back(second);
  }
  auto lineAcross = [&](const std::u16string& prefix, double s) {
    WorldPoint from = at(p.from, s), to = at(p.to, s);
    items.push_back(LineItem{prefix, from, to});
  };
  if (p.directrix) {
    lineAcross(names.firstDirectrix, across - d);
    lineAcross(names.secondDirectrix, across + d);
  }
  double reach = std::max(std::fabs(p.from - along), std::fabs(p.to - along));
  double spread = std::sqrt(p.a2 * (1 + reach * reach / p.b2));
  if (p.asymptotes) {
    double slope = a / b;  // across per along
    for (double sign : {1.0, -1.0}) {
      // The asymptotes run as far as the branches reach across.
      double t = spread / slope;
      items.push_back(LineItem{u"渐近线", at(along - t, across - sign * spread),
                               at(along + t, across + sign * spread)});
    }
  }
  if (p.axis) {
    items.push_back(
        LineItem{u"双曲线对称轴", at(along, across - 1.5 * a), at(along, across + 1.5 * a)});
    items.push_back(LineItem{u"双曲线对称轴", at(p.from, across), at(p.to, across)});
  }
  return items;
}

std::vector<Item> DrawParabola(const ParabolaParams& p) {
  double h = p.verticalAxis ? p.h : p.k, k = p.verticalAxis ? p.k : p.h;
  auto at = [&](double t, double s) {
    return p.verticalAxis ? WorldPoint{t, s} : WorldPoint{s, t};
  };
  Sampler f = [h, k, q = p.q](std::span<const double> ts, std::span<double> values) {
    for (size_t i = 0; i < ts.size(); ++i) values[i] = (ts[i] - h) * (ts[i] - h) / q + k;
  };
  std::vector<Item> items;
  std::vector<WorldPoint> nodes = SampleNodes(f, p.from, p.to, !p.verticalAxis);
  if (!nodes.empty()) items.push_back(CurveItem{u"抛物线", nodes});
  if (p.focus) items.push_back(DotItem{u"抛物线焦点", at(h, k + p.q / 4)});
  if (p.directrix)
    items.push_back(LineItem{u"抛物线准线", at(p.from, k - p.q / 4), at(p.to, k - p.q / 4)});
  if (p.axis) {
    double reach = std::max(std::fabs(p.from - h), std::fabs(p.to - h));
    items.push_back(LineItem{u"抛物线对称轴", at(h, k - p.q / 4), at(h, k + reach * reach / p.q)});
  }
  return items;
}

}  // namespace lp::graph
