#include "graph/inputs.h"
#include "runtime/text.h"

namespace lp::graph {
namespace {

constexpr char16_t kBadPoint[] = u"您输入的点的坐标表达式可能有误，请检查！";
constexpr char16_t kNoCoefficients[] = u"请检查您输入的数据！x,y的系数不能都为0！";

// A line as slope and base point, or vertical at x.
struct LineForm {
  bool vertical = false;
  double x = 0;           // of the vertical line
  double k = 0;           // slope
  WorldPoint base{0, 0};  // a point of the line
};

std::optional<LineForm> FormOf(const TabInput& in, int form) {
  auto value = [&in](int i) { return in.Value(u"txtZX_" + std::u16string(1, char16_t(u'0' + i))); };
  auto point = [&in](int i) {
    return ReadCoordinate(in.Text(u"txtZX_" + std::u16string(1, char16_t(u'0' + i)))).point;
  };
  switch (form) {
    case 0: {  // slope and intercept
      auto k = value(0), b = value(1);
      if (!k || !b) return std::nullopt;
      return LineForm{false, 0, *k, {0, *b}};
    }
    case 1: {  // point and slope
      auto p = point(0);
      auto k = value(1);
      if (!p || !k) return std::nullopt;
      return LineForm{false, 0, *k, *p};
    }
    case 2: {  // two points
      auto p1 = point(0), p2 = point(1);
      if (!p1 || !p2) return std::nullopt;
      if (p1->x == p2->x) return LineForm{true, p1->x};
      return LineForm{false, 0, (p2->y - p1->y) / (p2->x - p1->x), *p1};
    }
    case 3: {  // intercepts a on x, b on y
      auto a = value(0), b = value(1);
      if (!a || !b || *a == 0) return std::nullopt;
      return LineForm{false, 0, -*b / *a, {0, *b}};
    }
    case 4:    // point and direction (u, v)
    case 5: {  // point and normal (A, B)
      auto p = point(0), v = point(1);
      if (!p || !v) return std::nullopt;
      double run = form == 4 ? v->x : v->y, rise = form == 4 ? v->y : -v->x;
      if (run == 0) return LineForm{true, p->x};
      return LineForm{false, 0, rise / run, *p};
    }
    default: {  // A x + B y + C = 0
      auto A = value(0), B = value(1), C = value(2);
      if (!A || !B || !C) return std::nullopt;
      if (*B == 0) return LineForm{true, -*C / *A};
      return LineForm{false, 0, -*A / *B, {0, -*C / *B}};
    }
  }
}

bool NoCoefficients(const TabInput& in, int form) {
  if (form == 6) return in.Value(u"txtZX_0") == 0.0 && in.Value(u"txtZX_1") == 0.0;
  if (form == 4 || form == 5) {
    auto v = ReadCoordinate(in.Text(u"txtZX_1")).point;
    return v && v->x == 0 && v->y == 0;
  }
  return false;
}

}  // namespace

std::optional<Params> ReadLine(const TabInput& in) {
  int form = in.Option(u"optType_ZX", 7);
  if (form < 0) return in.Refuse(kNoForm);
  if (NoCoefficients(in, form)) return in.Refuse(kNoCoefficients);
  std::optional<LineForm> line = FormOf(in, form);
  if (!line) return in.Refuse(u"请检查您输入的数据！");
  std::optional<double> from = in.Value(u"txtXmin_ZX"), to = in.Value(u"txtXmax_ZX");
  if (!from || !to || *from >= *to) return in.Refuse(kBadRange);
  if (line->vertical) return LineParams{line->x, line->x, *from, *to};
  auto y = [&line](double x) { return line->base.y + (x - line->base.x) * line->k; };
  return LineParams{*from, *to, y(*from), y(*to)};
}

std::optional<Params> ReadPoint(const TabInput& in) {
  Coordinate c = ReadCoordinate(in.Text(u"txtPoint"));
  if (c.empty) return in.Refuse(u"您还没有输入点P的坐标值！");
  if (!c.point) return in.Refuse(kBadPoint);
  PointParams p;
  p.x = c.point->x;
  p.y = c.point->y;
  p.letter = Trim(in.Text(u"txtPointName"));
  p.labelled = in.Checked(u"chkPointTxt") && !p.letter.empty();
  p.pointOnly = in.Checked(u"chkPointOnly");
  p.segment = in.Checked(u"chkXD");
  return p;
}

}  // namespace lp::graph
