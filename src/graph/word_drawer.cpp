#include "graph/word_drawer.h"

#include <algorithm>

#include "formula/driver.h"
#include "formula/font_pass.h"
#include "formula/generators.h"
#include "formula/insert.h"
#include "graph/canvas.h"
#include "session/figure.h"
#include "word/api.h"

namespace lp::graph {
namespace {

using word::Shape;

class SceneWriter {
 public:
  SceneWriter(Session& s, const PageTransform& t, const AxisOptions& o)
      : s_(s), shapes_(s.WordApp->ActiveDocument().Shapes()), t_(t), o_(o) {}

  void Axes(const AxesDrawing& a);
  void Object(const DrawnObject& object);
  void TickLabels(const graph::TickLabels& labels);

 private:
  // Names the shape the moment it is made, as every figure's shapes are.
  Shape& Named(std::unique_ptr<Shape> shape, const std::u16string& prefix) {
    ++s_.ShapeCounter;
    shape->SetName(MakeShapeName(s_, prefix));
    made_ = std::move(shape);
    return *made_;
  }
  void Draw(const Item& item, const Look& look);
  void Stroke(Shape& shape, const Look& look, bool dashed);
  Shape& Line(const std::u16string& prefix, double x1, double y1, double x2, double y2) {
    return Named(shapes_.AddLine(float(x1), float(y1), float(x2), float(y2)), prefix);
  }
  Shape& TextBox(const std::u16string& prefix, double left, double top, double height,
                 const std::u16string& text, bool italic);
  void Arrow(Shape& axis, word::MsoArrowheadLength beginLength, const Look& look);

  Session& s_;
  word::Shapes& shapes_;
  PageTransform t_;
  AxisOptions o_;
  std::unique_ptr<Shape> made_;
};

void SceneWriter::Stroke(Shape& shape, const Look& look, bool dashed) {
  word::LineFormat& line = shape.Line();
  line.ForeColor().SetRGB(look.color);
  line.SetDashStyle(dashed ? word::msoLineDash
                           : static_cast<word::MsoLineDashStyle>(DashStyleOf(look.style)));
  line.SetWeight(look.weight);
  line.SetVisible(true);
}

Shape& SceneWriter::TextBox(const std::u16string& prefix, double left, double top, double height,
                            const std::u16string& text, bool italic) {
  Shape& box = Named(shapes_.AddTextbox(word::msoTextOrientationHorizontal, float(left), float(top),
                                        15, float(height)),
                     prefix);
  IgnoringWordErrors([&] {
    word::TextFrame& frame = box.TextFrame();
    for (auto margin : {&word::TextFrame::SetMarginLeft, &word::TextFrame::SetMarginRight,
                        &word::TextFrame::SetMarginTop, &word::TextFrame::SetMarginBottom})
      (frame.*margin)(0);
    auto range = frame.TextRange();
    range->SetText(text);
    range->Font().SetName(u"Times New Roman");
    range->Font().SetSize(10);
    range->Font().SetItalic(italic ? word::wdTrue : word::wdFalse);
    box.Fill().SetVisible(false);
    box.Line().SetVisible(false);
    box.WrapFormat().SetType(word::wdWrapNone);
  });
  return box;
}

void SceneWriter::Arrow(Shape& axis, word::MsoArrowheadLength beginLength, const Look& look) {
  IgnoringWordErrors([&] {
    word::LineFormat& line = axis.Line();
    line.SetBeginArrowheadLength(beginLength);
    line.SetBeginArrowheadWidth(word::msoArrowheadWidthMedium);
    line.SetBeginArrowheadStyle(word::msoArrowheadNone);
    line.SetEndArrowheadLength(word::msoArrowheadLengthMedium);
    line.SetEndArrowheadWidth(word::msoArrowheadNarrow);
    line.SetEndArrowheadStyle(word::msoArrowheadStealth);
  });
  IgnoringWordErrors([&] { Stroke(axis, look, false); });
}

void SceneWriter::Axes(const AxesDrawing& a) {
  const View& v = a.range;
  Arrow(Line(u"x轴", t_.X(v.xmin), t_.orgy, t_.X(v.xmax), t_.orgy), word::msoArrowheadLong, a.look);
  TextBox(u"x轴标记", t_.X(v.xmax) - 4, t_.orgy - 4, 15, u"x", true);
  Arrow(Line(u"y轴", t_.orgx, t_.Y(v.ymin), t_.orgx, t_.Y(v.ymax)), word::msoArrowheadLengthMedium,
        a.look);
  TextBox(u"y轴标记", t_.orgx - 6, t_.Y(v.ymax) - 7, 15, u"y", true);
  TextBox(u"原点", t_.orgx - 8, t_.orgy - 2, 15, u"O", true);
  double tick = t_.scale / o_.intKD;
  for (double x : a.xTicks) {
    double end = o_.xkdUp ? t_.orgy - tick : t_.orgy + tick;
    IgnoringWordErrors([&] {
      Stroke(Line(u"x轴刻度线" + NumberLabel(x), t_.X(x), t_.orgy, t_.X(x), end), a.look, false);
    });
  }
  for (double y : a.yTicks) {
    double from = o_.ykdLeft ? t_.orgx - tick : t_.orgx, to = o_.ykdLeft ? t_.orgx : t_.orgx + tick;
    IgnoringWordErrors([&] {
      Stroke(Line(u"y轴刻度线" + NumberLabel(y), from, t_.Y(y), to, t_.Y(y)), a.look, false);
    });
  }
}

void SceneWriter::Draw(const Item& item, const Look& look) {
  if (auto* c = std::get_if<CurveItem>(&item)) {
    std::vector<word::PointF> points;
    points.reserve(c->nodes.size());
    for (const WorldPoint& n : c->nodes) points.push_back({float(t_.X(n.x)), float(t_.Y(n.y))});
    Shape& curve = Named(shapes_.AddCurve(points), c->prefix);
    Stroke(curve, look, false);
    curve.Fill().SetVisible(false);
  } else if (auto* l = std::get_if<LineItem>(&item)) {
    Stroke(Line(l->prefix, t_.X(l->from.x), t_.Y(l->from.y), t_.X(l->to.x), t_.Y(l->to.y)), look,
           l->dashed);
  } else if (auto* o = std::get_if<OvalItem>(&item)) {
    Shape& oval = Named(shapes_.AddShape(word::msoShapeOval, float(t_.X(o->centre.x - o->rx)),
                                         float(t_.Y(o->centre.y + o->ry)),
                                         float(2 * o->rx * t_.scale), float(2 * o->ry * t_.scale)),
                        o->prefix);
    Stroke(oval, look, false);
    oval.Fill().SetVisible(false);
  } else if (auto* d = std::get_if<DotItem>(&item)) {
    Shape& dot = Named(shapes_.AddShape(word::msoShapeOval, float(t_.X(d->at.x) + d->offsetX),
                                        float(t_.Y(d->at.y) + d->offsetY), 2.4f, 2.4f),
                       d->prefix);
    // A dot is filled with its colour, as a printed point is.
    Stroke(dot, look, false);
    dot.Fill().ForeColor().SetRGB(look.color);
    dot.Fill().Solid();
    dot.Fill().SetVisible(true);
  } else if (auto* t = std::get_if<LabelItem>(&item)) {
    TextBox(t->prefix, t_.X(t->at.x) + t->offsetX, t_.Y(t->at.y) + t->offsetY, 15, t->text, true);
  }
}

void SceneWriter::Object(const DrawnObject& object) {
  for (const Item& item : object.items) IgnoringWordErrors([&] { Draw(item, object.look); });
}

void SceneWriter::TickLabels(const graph::TickLabels& labels) {
  DriverControl control;
  control.prompt = &s_.prompt;
  FormulaSettings settings = SessionFormulaSettings(s_);
  int counter = 0;
  auto place = [&](const Tick& tick, bool onX, bool formula) {
    std::u16string prefix = (onX ? u"x轴上刻度标注" : u"y轴上刻度标注") + NumberLabel(++counter);
    // A label left of the y axis grows leftward by a digit's width per
    // character beyond the first, so that it never runs over the axis.
    double wider = 5.0 * (std::max<size_t>(tick.text.size(), 1) - 1);
    double left = onX ? t_.X(tick.value) - 4 : (o_.ytxtLeft ? t_.orgx - 8 - wider : t_.orgx + 2);
    double top = onX ? (o_.xtxtUp ? t_.orgy - 15 : t_.orgy) : t_.Y(tick.value) - 6;
    std::u16string text = tick.text;
    if (formula) text = u"{EQ " + FormulaToEq(tick.text, settings, control) + u"}";
    Shape& box = TextBox(prefix, left, top, formula ? 30 : 15, text, false);
    if (formula) {
      auto range = box.TextFrame().TextRange();
      ExpandSymbolFields(s_, *range);
    }
  };
  auto each = [&](const std::vector<Tick>& ticks, bool onX, bool formula) {
    for (const Tick& t : ticks) IgnoringWordErrors([&] { place(t, onX, formula); });
  };
  each(labels.plainX, true, false);
  each(labels.formulaX, true, true);
  each(labels.plainY, false, false);
  each(labels.formulaY, false, true);
}

}  // namespace

AxisOptions SessionAxisOptions(const Session& s) {
  const ConfigGlobals& c = s.config;
  AxisOptions o;
  o.intK = c.intK == 0 ? 5 : c.intK;
  o.intKD = c.intKD == 0 ? 8 : c.intKD;
  o.ykdLeft = c.blYkdLeft != 0;
  o.ytxtLeft = c.blYtxtLeft != 0;
  o.xkdUp = c.blXkdUp != 0;
  o.xtxtUp = c.blXtxtUp != 0;
  o.autoKD = c.blAutoKD != 0;
  return o;
}

void InsertScene(Session& s, const Scene& scene, const View& view) {
  AxisOptions options = SessionAxisOptions(s);
  word::PageSetup& page = s.WordApp->ActiveDocument().PageSetup();
  PageTransform t = PageTransformOf(page.PageWidth(), page.PageHeight(), options.intK, view);
  // Formula labels select inside their text boxes; the figure still goes to
  // the caret the teacher left.
  std::unique_ptr<word::Range> caret = s.WordApp->Selection().Range();
  SceneWriter writer(s, t, options);
  for (const SceneEntry& entry : scene.entries) {
    if (auto* axes = std::get_if<AxesDrawing>(&entry))
      writer.Axes(*axes);
    else
      writer.Object(std::get<DrawnObject>(entry));
  }
  // A number needs about 10 points of its own on the page.
  writer.TickLabels(Thinned(scene.labels, 10 / t.scale));
  IgnoringWordErrors([&] { caret->Select(); });
  if (s.ShapeCounter > 0) CloseFigure(s, u"组合");
  s.ShapeNames.clear();
  s.ShapeCounter = 0;
}

}  // namespace lp::graph
