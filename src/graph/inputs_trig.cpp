#include <cmath>

#include "graph/axes.h"
#include "graph/drawers.h"
#include "graph/inputs.h"
#include "runtime/convert.h"
#include "runtime/text.h"
#include "toolkit/answer_text.h"

namespace lp::graph {
namespace {

constexpr double kPi = 3.14159265358979;

struct TrigRange {
  double from = 0, to = 0;
  int firstMark = 0, lastMark = -1;  // mark i has phase (i + phaseStart) * pi / 2
  int phaseStart = 0;
};

// The range by a period count N and a start, as the option chosen says.
TrigRange PeriodRange(const TrigParams& p, int n, double start, int how) {
  double F = p.F, W = p.w, N = n;
  bool wave = p.kind < 2;
  if (wave && how == 0) return {-(F + N * kPi) / W, (N * kPi - F) / W, 0, 4 * n, -2 * n};
  if (wave && how == 2) return {-F / W, (2 * N * kPi - F) / W, 0, 4, 0};
  if (wave) return {start, start + 2 * N * kPi / W};
  if (how == 0) return {(2 * F - N * kPi) / (2 * W), (N * kPi - 2 * F) / (2 * W)};
  return {start, start + N * kPi};
}

// "3*pi/2" style text of a phase i * pi / 2.
std::u16string PhaseText(int quarter) {
  return Trim(Str(quarter)) + u"*pi/2";
}

std::vector<TrigMark> Marks(const TrigParams& p, const TrigRange& r, const TabInput& in) {
  std::vector<TrigMark> marks;
  Sampler f = TrigSampler(p);
  std::u16string wText = LCase(Trim(in.Text(u"txtW_sin")));
  std::u16string fText = LCase(Trim(in.Text(u"txtF_sin")));
  for (int i = r.firstMark; i <= r.lastMark; ++i) {
    int quarter = i + r.phaseStart;
    double t = quarter * kPi / 2, x = (t - p.F) / p.w, y = 0;
    f(std::span<const double>(&x, 1), std::span<double>(&y, 1));
    y = Val(Format(y, u"#.##"));
    std::u16string xText = p.F == 0 ? PiFractionText(u"0", PhaseText(quarter), wText)
                                    : PiFractionText(PhaseText(quarter), u"-" + fText, wText);
    marks.push_back({{x, y}, xText, y == 0 ? u"0" : NumberLabel(y)});
  }
  return marks;
}

}  // namespace

std::optional<Params> ReadTrig(const TabInput& in) {
  TrigParams p;
  p.kind = static_cast<int16_t>(in.Option(u"optType_SJ", 8));
  if (p.kind < 0) return in.Refuse(kNoForm);
  std::optional<double> A = in.Value(u"txtA_sin"), W = in.Value(u"txtW_sin"),
                        F = in.Value(u"txtF_sin"), K = in.Value(u"txtK_sin");
  if (!A || !W || !F || !K || *W == 0 || *A == 0)
    return in.Refuse(u"您输入的函数参数有误，请检查！");
  bool radians = in.Checked(u"chkHD_SJ");
  double toRadians = radians ? 1 : kPi / 180;
  p.A = *A, p.w = *W, p.F = *F * toRadians, p.K = *K;
  std::optional<double> a = in.Value(u"txtXmin_SJ"), b = in.Value(u"txtXmax_SJ");
  if (!a || !b) return in.Refuse(kBadRange);
  TrigRange r;
  if (in.Checked(u"optFW_0")) {
    if (*a < 1 || *a != Int(*a)) return in.Refuse(kBadRange);
    r = PeriodRange(p, CInt(*a), *b * toRadians, std::max(0, in.Option(u"optFS", 3)));
  } else {
    r = {*a * toRadians, *b * toRadians};
  }
  if (r.from >= r.to) return in.Refuse(kBadRange);
  double reach = std::fabs(p.A);
  bool wave = p.kind < 2;
  if (!in.AcceptExtents(r.from, r.to, wave ? p.K - reach : in.Range().ymin,
                        wave ? p.K + reach : in.Range().ymax))
    return std::nullopt;
  p.rxmin = r.from;
  p.rxmax = r.to;
  p.segments = ScanSegments(TrigSampler(p), r.from, r.to, in.Range(), true);
  if (wave) p.marks = Marks(p, r, in);
  return p;
}

}  // namespace lp::graph
