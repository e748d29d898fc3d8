#include <array>
#include <cmath>

#include "graph/inputs.h"
#include "runtime/text.h"

namespace lp::graph {
namespace {

constexpr std::array<const char16_t*, 5> kConicForms = {u"bx", u"by", u"pyx", u"pyy", u"general"};

std::u16string Box(const std::u16string& array, int i) {
  return array + u"_" + std::u16string(1, char16_t(u'0' + i));
}

// The boxes of a tab's coefficient array, all evaluated, or nothing.
std::optional<std::vector<double>> Values(const TabInput& in, const std::u16string& array, int n) {
  std::vector<double> values;
  for (int i = 0; i < n; ++i) {
    std::optional<double> v = in.Value(Box(array, i));
    if (!v) return std::nullopt;
    values.push_back(*v);
  }
  return values;
}

// A x^2 + B y^2 + C x + D y + E = 0 with the squares completed: the centre
// and the right side R of A (x - cx)^2 + B (y - cy)^2 = R.
struct Completed {
  double cx, cy, R;
};
Completed CompleteSquares(const std::vector<double>& c) {
  double cx = -c[2] / (2 * c[0]), cy = -c[3] / (2 * c[1]);
  return {cx, cy, c[2] * c[2] / (4 * c[0]) + c[3] * c[3] / (4 * c[1]) - c[4]};
}

// Centre, squared semi-axes and orientation of an ellipse or hyperbola typed
// in one of the five forms; a2 is along x when horizontal.
struct ConicShape {
  double cx = 0, cy = 0, a2 = 0, b2 = 0;
  bool horizontal = true;
};

std::optional<ConicShape> StandardShape(const TabInput& in, const std::u16string& array, int form,
                                        const std::u16string& refusal) {
  bool translated = form == 2 || form == 3;
  auto v = Values(in, array, translated ? 4 : 2);
  if (!v) return in.Refuse(refusal);
  ConicShape s;
  s.horizontal = form == 0 || form == 2;
  if (translated) s.cx = (*v)[0], s.cy = (*v)[1];
  s.a2 = (*v)[translated ? 2 : 0];
  s.b2 = (*v)[translated ? 3 : 1];
  return s;
}

std::optional<ConicParams> ReadConic(const TabInput& in, const std::u16string& suffix) {
  ConicParams p;
  int form = in.Option(u"optType_" + suffix, 5);
  if (form < 0) return in.Refuse(kNoForm);
  p.form = kConicForms[form];
  p.focus = in.Checked(u"chkFocus_" + suffix);
  p.directrix = in.Checked(u"chkDirectrix_" + suffix);
  p.axis = in.Checked(u"chkAxis_" + suffix);
  return p;
}

}  // namespace

std::optional<Params> ReadCircle(const TabInput& in) {
  int form = in.Option(u"optType_Y", 3);
  if (form < 0) return in.Refuse(kNoForm);
  auto v = Values(in, u"txtY", form == 0 ? 1 : 3);
  if (!v) return in.Refuse(u"圆的半径不能为负或者零，请检查后重新输入。");
  CircleParams p;
  p.drawCentre = in.Checked(u"chkCentreOfCircle");
  const std::vector<double>& c = *v;
  if (form == 0) {
    p.r2 = c[0] > 0 ? c[0] * c[0] : -1;
  } else if (form == 1) {
    p = {c[0], c[1], c[2] > 0 ? c[2] * c[2] : -1, p.drawCentre};
  } else {
    p = {-c[0] / 2, -c[1] / 2, c[0] * c[0] / 4 + c[1] * c[1] / 4 - c[2], p.drawCentre};
  }
  if (p.r2 <= 0) return in.Refuse(u"圆的半径不能为负或者零，请检查后重新输入。");
  return p;
}

std::optional<Params> ReadEllipse(const TabInput& in) {
  std::optional<ConicParams> p = ReadConic(in, u"TY");
  if (!p) return std::nullopt;
  int form = in.Option(u"optType_TY", 5);
  ConicShape s;
  if (form == 4) {
    constexpr char16_t kGeneral[] = u"在椭圆的一般式方程中应保证A,B同号且不相等。";
    auto c = Values(in, u"txtTY", 5);
    if (!c || (*c)[0] * (*c)[1] <= 0 || (*c)[0] == (*c)[1]) return in.Refuse(kGeneral);
    Completed q = CompleteSquares(*c);
    double alongX = q.R / (*c)[0], alongY = q.R / (*c)[1];
    if (alongX <= 0 || alongY <= 0) return in.Refuse(kGeneral);
    s = {q.cx, q.cy, std::max(alongX, alongY), std::min(alongX, alongY), alongX > alongY};
  } else {
    bool translated = form >= 2;
    std::optional<ConicShape> typed = StandardShape(
        in, u"txtTY", form, translated ? u"椭圆中,a,b应均为正数。" : u"椭圆中a,b均为正数且a>b");
    if (!typed) return std::nullopt;
    s = *typed;
    if (s.a2 <= 0 || s.b2 <= 0)
      return in.Refuse(translated ? u"椭圆中,a,b应均为正数。" : u"椭圆中a,b均为正数且a>b");
    if (s.a2 <= s.b2) return in.Refuse(u"椭圆中a要大于b，请检查你的数据！");
  }
  p->cx = s.cx, p->cy = s.cy, p->a2 = s.a2, p->b2 = s.b2, p->horizontal = s.horizontal;
  return *p;
}

std::optional<Params> ReadHyperbola(const TabInput& in) {
  std::optional<ConicParams> p = ReadConic(in, u"SQX");
  if (!p) return std::nullopt;
  p->hyperbola = true;
  p->asymptotes = in.Checked(u"chkJJX_SQX");
  int form = in.Option(u"optType_SQX", 5);
  ConicShape s;
  if (form == 4) {
    auto c = Values(in, u"txtSQX", 5);
    if (!c || (*c)[0] * (*c)[1] >= 0) return in.Refuse(u"在双曲线的一般式方程中，A,B不能同号");
    Completed q = CompleteSquares(*c);
    double alongX = q.R / (*c)[0], alongY = q.R / (*c)[1];
    if (q.R == 0) return in.Refuse(u"a^2或b^2必须是正数");
    s = alongX > 0 ? ConicShape{q.cx, q.cy, alongX, -alongY, true}
                   : ConicShape{q.cx, q.cy, alongY, -alongX, false};
  } else {
    std::optional<ConicShape> typed = StandardShape(in, u"txtSQX", form, u"a^2或b^2必须是正数");
    if (!typed) return std::nullopt;
    s = *typed;
    if (s.a2 <= 0 || s.b2 <= 0) return in.Refuse(u"a^2或b^2必须是正数");
  }
  std::optional<double> from = in.Value(u"txtXmin_SQX"), to = in.Value(u"txtXmax_SQX");
  if (!from || !to || *from >= *to) return in.Refuse(kBadRange);
  p->cx = s.cx, p->cy = s.cy, p->a2 = s.a2, p->b2 = s.b2, p->horizontal = s.horizontal;
  p->from = *from, p->to = *to;
  return *p;
}

std::optional<Params> ReadParabola(const TabInput& in) {
  static constexpr std::array<const char16_t*, 9> kForms = {
      u"2px", u"-2px", u"2py", u"-2py", u"2px0", u"-2px0", u"2py0", u"-2py0", u"ax2"};
  int form = in.Option(u"optType_PWX", 9);
  if (form < 0) return in.Refuse(kNoForm);
  constexpr char16_t kBadData[] = u"您所输入的数据范围有误，请检查后重新输入！";
  auto c = Values(in, u"txtPWX", form < 4 ? 1 : 3);
  std::optional<double> from = in.Value(u"txtXmin_PWX"), to = in.Value(u"txtXmax_PWX");
  if (!c || !from || !to || *from >= *to || (*c)[0] == 0) return in.Refuse(kBadData);
  ParabolaParams p;
  p.form = kForms[form];
  p.focus = in.Checked(u"chkFocus_PWX");
  p.directrix = in.Checked(u"chkDirectrix_PWX");
  p.axis = in.Checked(u"chkAxis_PWX");
  p.from = *from, p.to = *to;
  if (form == 8) {  // y = a x^2 + b x + c
    double a = (*c)[0], b = (*c)[1], k = (*c)[2];
    p.q = 1 / a, p.h = -b / (2 * a), p.k = k - b * b / (4 * a);
    return p;
  }
  // y^2 = ±2p x opens along x, x^2 = ±2p y along y; the translated forms
  // move the vertex to (h, k).
  int base = form % 4;
  p.verticalAxis = base >= 2;
  p.q = (base % 2 == 0 ? 2 : -2) * (*c)[0];
  if (form >= 4) p.h = (*c)[1], p.k = (*c)[2];
  return p;
}

}  // namespace lp::graph
