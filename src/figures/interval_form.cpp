#include "figures/interval_form.h"

#include <array>
#include <vector>

#include "figures/interval_draw.h"
#include "runtime/convert.h"
#include "runtime/text.h"
#include "session/figure.h"
#include "settings/record_slots.h"
#include "toolkit/expression.h"
#include "toolkit/normalise.h"
#include "toolkit/quotient.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 9;

struct KindRow {
  const char16_t* name;
  const char16_t* option;
};
constexpr std::array<KindRow, 8> kKinds = {{
    {u"BigThanA", u"optBigThanA"},
    {u"NoLessThanA", u"optNoLessThanA"},
    {u"LessThanA", u"optLessThanA"},
    {u"NoBigThanA", u"optNoBigThanA"},
    {u"BTaLTb", u"optBTaLTb"},
    {u"NLTaLTb", u"optNLTaLTb"},
    {u"BTaNBTb", u"optBTaNBTb"},
    {u"NLTaNBTb", u"optNLTaNBTb"},
}};

std::vector<std::u16string> SplitFields(const std::u16string& data) {
  std::vector<std::u16string> fields;
  int32_t start = 1;
  for (int32_t at = InStr(data, u"@@"); at > 0; at = InStr(start, data, u"@@")) {
    fields.push_back(Mid(data, start, at - start));
    start = at + 2;
  }
  fields.push_back(Mid(data, start));
  return fields;
}

// Red, green and blue each from 1 to 255, the generator seeded once a dialog.
long RandomColour(IntervalState& state) {
  if (!state.randomized) {
    state.random.seed(std::random_device{}());
    state.randomized = true;
  }
  std::uniform_real_distribution<double> rnd(0.0, 1.0);
  auto channel = [&] { return static_cast<long>(Int(255 * rnd(state.random) + 1)); };
  long red = channel(), green = channel(), blue = channel();
  return red + green * 256 + blue * 65536;
}

double EvalEnd(const std::u16string& normalised) {
  return normalised.empty() ? 0 : EvalAtX(0, normalised);
}

// Steps 3 to 6 of the click: the first complaint, or nothing.
std::u16string Complaint(const IntervalControls& c, const IntervalState& s, double a, double b) {
  if (s.XMin > 0 || s.XMax < 0)
    return u"为了保证画出数轴的三要素，x的最小值不应大于0且最大值不应小于0！";
  if (c.chkNumberAxisOnly) return {};
  if (a > s.XMax || a < s.XMin || b > s.XMax || b < s.XMin)
    return u"您要画的区间将超出当前数轴的范围！请调整数轴的长度后再试！";
  if (c.kind == kNoKind) return u"您还没有选择所画区间的类型，请检查后再试！";
  return {};
}

void DrawNextInterval(IntervalForm& form, Session& session, double a, double b) {
  IntervalControls& c = form.controls;
  IntervalState& s = form.state;
  IntervalSpec interval{c.kind,
                        a,
                        b,
                        NormaliseExpression(Trim(c.txtA)),
                        NormaliseExpression(Trim(c.txtB)),
                        s.HeightOffset,
                        0,
                        c.chkKD};
  interval.colour = c.randomColour ? RandomColour(s) : c.labIntervalColor;
  s.IntervalType = IntervalKindName(c.kind);
  // A reversed pair swaps the boxes only: the drawing keeps a and b.
  if (IsTwoEnded(c.kind) && a >= b) {
    c.txtA = Str(b);
    c.txtB = Str(a);
  }
  DrawInterval(session, s, interval);
  s.HeightOffset = static_cast<int16_t>(s.HeightOffset + 5);
}

}  // namespace

std::u16string IntervalKindName(IntervalKind kind) {
  return kind == kNoKind ? u"" : kKinds[kind].name;
}

std::u16string IntervalOptionName(IntervalKind kind) {
  return kind == kNoKind ? u"" : kKinds[kind].option;
}

bool IsTwoEnded(IntervalKind kind) {
  return kind >= kBTaLTb;
}

void ApplyAxisOnlyRule(IntervalControls& controls) {
  if (controls.chkNumberAxisOnly) controls.optKD = 0;
}

IntervalForm LoadIntervalForm(Session& session) {
  IntervalForm form;
  IntervalControls& c = form.controls;
  std::vector<std::u16string> fields =
      SplitFields(ReadRecordSlot(session.databasePath, kRecordSlot));
  if (fields.size() == 7) {
    c.txtXmin = fields[0];
    c.txtXmax = fields[1];
    c.txtLengthOfAxis = fields[2];
    c.chkNumberAxisOnly = Val(fields[3]) != 0;
    c.optKD = Val(fields[4]) == 1 ? 1 : 0;
    c.chkNoX = Val(fields[5]) != 0;
    c.chkKD = Val(fields[6]) != 0;
  }
  form.state.AxisLengthPt = CInt(Val(c.txtLengthOfAxis) * 28.4);
  ApplyAxisOnlyRule(c);
  return form;
}

IntervalClick IntervalOK(IntervalForm& form, Session& session) {
  IntervalControls& c = form.controls;
  IntervalState& s = form.state;
  s.AxisLengthPt = CInt(Val(c.txtLengthOfAxis) * 28.4);
  s.XMin = Val(Trim(c.txtXmin));
  s.XMax = CInt(Val(Trim(c.txtXmax)));
  double a = EvalEnd(NormaliseExpression(Trim(c.txtA)));
  double b = EvalEnd(NormaliseExpression(Trim(c.txtB)));
  if (std::u16string why = Complaint(c, s, a, b); !why.empty()) {
    session.prompt.MsgBox(why);
    if (s.XMin > 0 || s.XMax < 0) c.txtXmin = u"0";
    return IntervalClick::kRefused;
  }
  std::u16string tickMode =
      c.chkNumberAxisOnly ? (c.optKD == 0 ? u"auto" : u"define") : (c.chkKD ? u"auto" : u"");
  s.IntervalType = tickMode;
  session.WordApp->SetScreenUpdating(false);
  if (!s.AxisDrawn) {
    s.Unit = CInt(Int(Quotient(s.AxisLengthPt, s.XMax - s.XMin)));
    DrawAxis(session, s, c.chkNoX, tickMode, c.txtNumberList);
  }
  if (!c.chkNumberAxisOnly) DrawNextInterval(form, session, a, b);
  s.AxisDrawn = true;
  c.frame2Enabled = false;
  c.caption = u"在word中绘制当区间成功！";
  session.WordApp->SetScreenUpdating(true);
  return c.chkNumberAxisOnly ? IntervalClick::kDrawnAndClose : IntervalClick::kDrawn;
}

void CloseIntervalForm(IntervalForm& form, Session& session) {
  if (session.ShapeCounter > 0) CloseFigure(session, u"区间");
  WriteRecordSlot(session.databasePath, kRecordSlot, IntervalRecord(form.controls));
}

std::u16string IntervalRecord(const IntervalControls& c) {
  return c.txtXmin + u"@@" + c.txtXmax + u"@@" + c.txtLengthOfAxis + u"@@" +
         Str(c.chkNumberAxisOnly ? 1 : 0) + u"@@" + (c.optKD == 0 ? u"0" : u"1") + u"@@" +
         (c.chkNoX ? u"1" : u"0") + u"@@" + (c.chkKD ? u"1" : u"0");
}

}  // namespace lp
