#include "figures/draw_list.h"

#include "session/figure.h"

namespace lp::figures {
namespace {

std::u16string ShapeName(Session& s, const FigureShape& shape) {
  ++s.ShapeCounter;
  if (shape.naming == Naming::kFigure) return MakeShapeName(s, shape.name);
  std::u16string name =
      shape.naming == Naming::kUniqueName ? strGetShapeName(shape.name) : shape.name;
  s.ShapeNames.resize(static_cast<size_t>(s.ShapeCounter));
  s.ShapeNames.back() = name;
  return name;
}

std::unique_ptr<word::Shape> AddFreeform(word::Shapes& shapes, const FigureShape& f) {
  auto builder = shapes.BuildFreeform(word::msoEditingAuto, f.points[0].x, f.points[0].y);
  if (f.curvedSegments) {
    for (size_t i = 1; i + 2 < f.points.size(); i += 3) {
      builder->AddNodes(word::msoSegmentCurve, word::msoEditingCorner, f.points[i].x, f.points[i].y,
                        f.points[i + 1].x, f.points[i + 1].y, f.points[i + 2].x, f.points[i + 2].y);
    }
  } else {
    for (size_t i = 1; i < f.points.size(); ++i)
      builder->AddNodes(word::msoSegmentLine, word::msoEditingAuto, f.points[i].x, f.points[i].y);
  }
  return builder->ConvertToShape();
}

std::unique_ptr<word::Shape> AddShape(word::Shapes& shapes, const FigureShape& f) {
  switch (f.kind) {
    case ShapeKind::kLine:
      return shapes.AddLine(f.points[0].x, f.points[0].y, f.points[1].x, f.points[1].y);
    case ShapeKind::kRectangle:
      return shapes.AddShape(word::msoShapeRectangle, f.left, f.top, f.width, f.height);
    case ShapeKind::kOval:
      return shapes.AddShape(word::msoShapeOval, f.left, f.top, f.width, f.height);
    case ShapeKind::kTextBox:
      return shapes.AddTextbox(word::msoTextOrientationHorizontal, f.left, f.top, f.width,
                               f.height);
    case ShapeKind::kFlowShape:
      return shapes.AddShape(f.flowShape, f.left, f.top, f.width, f.height);
    case ShapeKind::kConnector:
      return shapes.AddConnector(f.elbow ? word::msoConnectorElbow : word::msoConnectorStraight,
                                 f.points[0].x, f.points[0].y, f.points[1].x, f.points[1].y);
    case ShapeKind::kCurve: {
      std::vector<word::PointF> points;
      for (const Point& p : f.points) points.push_back({p.x, p.y});
      return shapes.AddCurve(points);
    }
    case ShapeKind::kFreeform:
      break;
  }
  return AddFreeform(shapes, f);
}

// The arrow at the far end of an axis, none at the origin.
void AxisArrows(word::LineFormat& line) {
  line.SetBeginArrowheadLength(word::msoArrowheadLong);
  line.SetBeginArrowheadWidth(word::msoArrowheadWidthMedium);
  line.SetBeginArrowheadStyle(word::msoArrowheadNone);
  line.SetEndArrowheadLength(word::msoArrowheadLengthMedium);
  line.SetEndArrowheadWidth(word::msoArrowheadNarrow);
  line.SetEndArrowheadStyle(word::msoArrowheadStealth);
}

void ApplyFill(word::FillFormat& fill, const FigureShape& f) {
  switch (f.fill) {
    case FillKind::kNone:
      fill.SetVisible(false);
      break;
    case FillKind::kDefault:
      break;
    case FillKind::kColor:
      fill.ForeColor().SetRGB(f.rgb);
      break;
    case FillKind::kPattern:
      fill.ForeColor().SetRGB(0);
      fill.SetTransparency(0);
      fill.Patterned(f.pattern);
      break;
  }
}

void ApplyText(word::Shape& shape, const FigureShape& f) {
  word::TextFrame& frame = shape.TextFrame();
  frame.SetMarginLeft(0);
  frame.SetMarginRight(0);
  frame.SetMarginTop(f.textMarginTop);
  frame.SetMarginBottom(0);
  std::unique_ptr<word::Range> text = frame.TextRange();
  if (f.textIsEqField) {
    text->Fields().Add(*text, word::wdFieldEmpty, f.text, false);
    text = frame.TextRange();
  } else if (!f.text.empty()) {
    text->SetText(f.text);
  }
  word::Font& font = text->Font();
  if (!f.textStyle.latinFont.empty()) font.SetName(f.textStyle.latinFont);
  if (!f.textStyle.eastAsianFont.empty()) font.SetNameFarEast(f.textStyle.eastAsianFont);
  font.SetSize(f.textStyle.size);
  font.SetBold(f.textStyle.bold ? word::wdTrue : word::wdFalse);
  if (f.textStyle.italic) font.SetItalic(word::wdTrue);
  for (long at : f.textStyle.subscripts)
    text->Characters().Item(at)->Font().SetSubscript(word::wdTrue);
  if (f.textStyle.centred) text->ParagraphFormat().SetAlignment(word::wdAlignParagraphCenter);
}

void ApplyFormat(word::Shape& shape, const FigureShape& f) {
  if (f.dashed) shape.Line().SetDashStyle(word::msoLineDash);
  if (f.axisArrows) AxisArrows(shape.Line());
  if (!f.lineVisible) shape.Line().SetVisible(false);
  // An open freeform is never filled; a closed one keeps Word's default
  // fill unless the figure asks for one.
  const bool freeformFill = f.kind == ShapeKind::kFreeform && f.fill != FillKind::kNone;
  const bool lineLike = f.kind == ShapeKind::kLine || f.kind == ShapeKind::kConnector;
  if ((!lineLike && f.kind != ShapeKind::kFreeform) || freeformFill) ApplyFill(shape.Fill(), f);
  if (f.kind == ShapeKind::kTextBox) shape.WrapFormat().SetType(word::wdWrapNone);
  if (f.kind == ShapeKind::kTextBox || !f.text.empty() || f.naming == Naming::kExact)
    ApplyText(shape, f);
}

// Screen updating comes back on however the drawing ends.
class ScreenUpdatingOff {
 public:
  explicit ScreenUpdatingOff(word::Application& app) : app_(app) { app_.SetScreenUpdating(false); }
  ~ScreenUpdatingOff() {
    try {
      app_.SetScreenUpdating(true);
    } catch (const std::exception&) {
      // Word has gone; nothing is left to update.
    }
  }
  ScreenUpdatingOff(const ScreenUpdatingOff&) = delete;
  ScreenUpdatingOff& operator=(const ScreenUpdatingOff&) = delete;

 private:
  word::Application& app_;
};

// Both ends attached, so the connector follows its shapes when they move.
void Connect(word::Shape& connector, const FigureShape& f,
             const std::vector<std::unique_ptr<word::Shape>>& made) {
  word::ConnectorFormat& ends = connector.ConnectorFormat();
  ends.BeginConnect(*made.at(f.from), f.fromSite);
  ends.EndConnect(*made.at(f.to), f.toSite);
  word::LineFormat& line = connector.Line();
  if (f.arrowAtFrom) {
    line.SetBeginArrowheadLength(word::msoArrowheadLengthMedium);
    line.SetBeginArrowheadWidth(word::msoArrowheadWidthMedium);
    line.SetBeginArrowheadStyle(word::msoArrowheadTriangle);
  } else {
    line.SetEndArrowheadLength(word::msoArrowheadLengthMedium);
    line.SetEndArrowheadWidth(word::msoArrowheadWidthMedium);
    line.SetEndArrowheadStyle(word::msoArrowheadTriangle);
  }
}

}  // namespace

void DrawShapeList(Session& s, const ShapeList& shapes) {
  word::Shapes& target = s.WordApp->ActiveDocument().Shapes();
  std::vector<std::unique_ptr<word::Shape>> made;
  for (const FigureShape& f : shapes) {
    std::unique_ptr<word::Shape> shape = AddShape(target, f);
    shape->SetName(ShapeName(s, f));
    ApplyFormat(*shape, f);
    if (f.kind == ShapeKind::kConnector) Connect(*shape, f, made);
    made.push_back(std::move(shape));
  }
}

bool DrawFigure(Session& s, const ShapeList& shapes, const std::u16string& kindBase) {
  if (shapes.empty()) return false;
  ScreenUpdatingOff quiet(*s.WordApp);
  s.ShapeCounter = 0;
  s.ShapeNames.clear();
  DrawShapeList(s, shapes);
  CloseFigure(s, kindBase);
  s.ShapeCounter = 0;
  s.ShapeNames.clear();
  return true;
}

}  // namespace lp::figures
