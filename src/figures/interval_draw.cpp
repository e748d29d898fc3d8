#include "figures/interval_draw.h"

#include <array>

#include "formula/generators.h"
#include "formula/insert.h"
#include "runtime/convert.h"
#include "runtime/text.h"
#include "session/figure.h"
#include "toolkit/expression.h"
#include "toolkit/normalise.h"

namespace lp {
namespace {

// How a label box gets its centring: on its own text, on the selection while
// the box is selected, or on whatever the document's selection is (the
// letter x never selects its box).
enum class Centring { kOwnText, kSelectedBox, kDocumentSelection };

struct Canvas {
  Session& session;
  const IntervalState& state;
  float X(double v) const { return static_cast<float>(state.Unit * v + session.FigureOriginX); }
  float Oy() const { return session.FigureOriginY; }
  word::Shapes& Shapes() const { return session.WordApp->ActiveDocument().Shapes(); }
};

void Name(Session& session, word::Shape& shape, const std::u16string& base) {
  ++session.ShapeCounter;
  shape.SetName(MakeShapeName(session, base));
}

std::unique_ptr<word::Shape> AddLabelBox(const Canvas& c, float left, float top,
                                         const std::u16string& base) {
  auto box = c.Shapes().AddTextbox(word::msoTextOrientationHorizontal, left, top, 30, 20);
  box->Select();
  Name(c.session, *box, base);
  box->Fill().SetVisible(false);
  box->Line().SetVisible(false);
  box->WrapFormat().SetType(word::wdWrapNone);
  return box;
}

void Centre(Session& session, word::Shape& box, Centring how) {
  if (how == Centring::kOwnText) {
    box.TextFrame().TextRange()->ParagraphFormat().SetAlignment(word::wdAlignParagraphCenter);
    return;
  }
  if (how == Centring::kSelectedBox) box.Select();
  session.WordApp->Selection().ParagraphFormat().SetAlignment(word::wdAlignParagraphCenter);
}

// A formula becomes an EQ field in the box (twice as high for a fraction);
// anything else is plain text.
void FillLabel(Session& session, word::Shape& box, const std::u16string& entry) {
  if (!IsFormulaEntry(entry)) {
    box.TextFrame().TextRange()->SetText(entry);
    return;
  }
  if (InStr(LCase(entry), u"/") > 0) box.SetHeight(40);
  box.TextFrame().TextRange()->Select();
  word::Selection& selection = session.WordApp->Selection();
  std::u16string code = FormulaToEq(entry, SessionFormulaSettings(session), DriverControl{});
  selection.Fields().Add(*selection.Range(), word::wdFieldEmpty, u"EQ " + code, false);
}

void AddTick(const Canvas& c, double v, const std::u16string& base) {
  auto tick = c.Shapes().AddLine(c.X(v), c.Oy(), c.X(v), c.Oy() - 2);
  tick->Select();
  Name(c.session, *tick, base);
}

void DrawAutoTicks(const Canvas& c) {
  for (double i = c.state.XMin; i <= c.state.XMax; i += 1) {
    if (i == 0 || i == 1) continue;
    AddTick(c, i, u"刻度" + Str(i));
    auto box = AddLabelBox(c, static_cast<float>(c.state.Unit * i - 15 + c.session.FigureOriginX),
                           c.Oy() - 2, u"文字" + Str(i));
    box->TextFrame().TextRange()->SetText(Trim(Str(i)));
    Centre(c.session, *box, Centring::kSelectedBox);
  }
}

double EvalNormalised(const std::u16string& normalised) {
  return normalised.empty() ? 0 : EvalAtX(0, normalised);
}

void DrawListedTicks(const Canvas& c, const std::u16string& numberList) {
  if (numberList.empty() || numberList == kNumberListHint) return;
  std::u16string list = StrConvNarrow(numberList);
  for (int32_t start = 1; start <= Len(list) + 1;) {
    int32_t comma = InStr(start, list, u",");
    int32_t end = comma > 0 ? comma : Len(list) + 1;
    std::u16string entry = NormaliseExpression(Mid(list, start, end - start));
    start = end + 1;
    double v = EvalNormalised(entry);
    if (v == 0 || v == 1) continue;
    AddTick(c, v, u"刻度" + entry);
    auto box = AddLabelBox(c, static_cast<float>(c.state.Unit * v - 15 + c.session.FigureOriginX),
                           c.Oy() - 2, u"文字" + entry);
    FillLabel(c.session, *box, entry);
    Centre(c.session, *box, Centring::kSelectedBox);
  }
}

void DrawFixedTick(const Canvas& c, double v, const std::u16string& tickBase,
                   const std::u16string& labelBase, const std::u16string& text) {
  auto tick = c.Shapes().AddLine(c.X(v), c.Oy(), c.X(v), c.Oy() - 2);
  tick->Select();
  Name(c.session, *tick, tickBase);
  auto box = AddLabelBox(c, c.X(v) - 15, c.Oy() - 2, labelBase);
  box->TextFrame().TextRange()->SetText(text);
  Centre(c.session, *box, Centring::kOwnText);
}

// The end's label: at a whole value only where no tick label stands already.
void DrawEndLabel(const Canvas& c, const IntervalSpec& interval, double v,
                  const std::u16string& base, const std::u16string& text, bool twoEnded) {
  bool whole = Int(v) == v;
  if (whole && (interval.chkKD || v == 0 || v == 1)) return;
  auto box = AddLabelBox(c, static_cast<float>(c.state.Unit * v - 16 + c.session.FigureOriginX),
                         c.Oy() - 2, base);
  if (whole)
    box->TextFrame().TextRange()->SetText(twoEnded ? Trim(Str(v)) : text);
  else
    FillLabel(c.session, *box, text);
  Centre(c.session, *box, Centring::kSelectedBox);
}

void DrawDot(const Canvas& c, double v, bool solid, const std::u16string& base) {
  auto dot = c.Shapes().AddShape(word::msoShapeOval, c.X(v) - 2, c.Oy() - 2, 4, 4);
  dot->Select();
  Name(c.session, *dot, base);
  if (!solid) return;
  dot->Fill().ForeColor().SetRGB(0);
  dot->Fill().SetVisible(true);
  dot->Fill().Solid();
}

void DrawPolyline(const Canvas& c, const std::vector<word::PointF>& nodes, long colour) {
  auto builder = c.Shapes().BuildFreeform(word::msoEditingAuto, nodes[0].x, nodes[0].y);
  for (size_t i = 1; i < nodes.size(); ++i)
    builder->AddNodes(word::msoSegmentLine, word::msoEditingAuto, nodes[i].x, nodes[i].y);
  auto line = builder->ConvertToShape();
  line->Select();
  Name(c.session, *line, u"区间曲线");
  line->Line().ForeColor().SetRGB(colour);
}

}  // namespace

bool IsFormulaEntry(const std::u16string& entry) {
  static const std::array<const char16_t*, 11> kMarks = {
      u"/", u"g", u"^", u"ln", u"sin", u"cos", u"tan", u"cot", u"sqr", u"@", u"pi"};
  std::u16string lower = LCase(entry);
  for (const char16_t* mark : kMarks)
    if (InStr(lower, mark) > 0) return true;
  return false;
}

void DrawAxis(Session& session, const IntervalState& state, bool noX,
              const std::u16string& tickMode, const std::u16string& numberList) {
  Canvas c{session, state};
  auto axis = c.Shapes().AddLine(c.X(state.XMin - 1), c.Oy(), c.X(state.XMax + 1.0), c.Oy());
  axis->Select();
  Name(session, *axis, u"数轴");
  word::LineFormat& line = axis->Line();
  line.SetBeginArrowheadLength(word::msoArrowheadLengthMedium);
  line.SetBeginArrowheadWidth(word::msoArrowheadWidthMedium);
  line.SetBeginArrowheadStyle(word::msoArrowheadNone);
  line.SetEndArrowheadLength(word::msoArrowheadLengthMedium);
  line.SetEndArrowheadWidth(word::msoArrowheadNarrow);
  line.SetEndArrowheadStyle(word::msoArrowheadStealth);
  if (!noX) {
    auto x = AddLabelBox(c, c.X(state.XMax + 1.0) - 8, c.Oy() - 2, u"数轴标识x");
    auto text = x->TextFrame().TextRange();
    text->SetText(u"x");
    text->Font().SetItalic(word::wdTrue);
    Centre(session, *x, Centring::kDocumentSelection);
  }
  DrawFixedTick(c, 0, u"原点", u"原点字母O", u"0");
  DrawFixedTick(c, 1, u"刻度线1", u"数字1", u"1");
  if (tickMode == u"auto")
    DrawAutoTicks(c);
  else
    DrawListedTicks(c, numberList);
}

void DrawInterval(Session& session, const IntervalState& state, const IntervalSpec& interval) {
  Canvas c{session, state};
  std::u16string name = IntervalKindName(interval.kind);
  float y = static_cast<float>(c.Oy() - interval.h);
  if (IsTwoEnded(interval.kind)) {
    DrawPolyline(c,
                 {{c.X(interval.a), c.Oy()},
                  {c.X(interval.a), y},
                  {c.X(interval.b), y},
                  {c.X(interval.b), c.Oy()}},
                 interval.colour);
    DrawDot(c, interval.a, InStr(name, u"NLTa") > 0, u"点a");
    DrawDot(c, interval.b, InStr(name, u"NBTb") > 0, u"点b");
    DrawEndLabel(c, interval, interval.a, u"文本a", interval.TextA, true);
    DrawEndLabel(c, interval, interval.b, u"文本b", interval.TextB, true);
  } else {
    bool rightwards = interval.kind == kNoLessThanA || interval.kind == kBigThanA;
    double far = rightwards ? state.XMax * state.Unit + 16.0 : state.XMin * state.Unit - 16;
    float farX = static_cast<float>(far + session.FigureOriginX);
    DrawPolyline(c, {{c.X(interval.a), c.Oy()}, {c.X(interval.a), y}, {farX, y}}, interval.colour);
    DrawDot(c, interval.a, InStr(name, u"No") > 0, u"点");
    DrawEndLabel(c, interval, interval.a, u"文本" + interval.TextA, interval.TextA, false);
  }
  session.WordApp->SetScreenUpdating(true);
}

}  // namespace lp
