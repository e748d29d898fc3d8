#pragma once
#include <memory>
#include <vector>

#include "word/errors.h"
#include "word/range.h"

namespace word {

[[noreturn]] inline void NotSupported() {
  throw UnsupportedMember();
}

class ColorFormat {
 public:
  virtual ~ColorFormat() = default;
  virtual long RGB() const = 0;
  virtual void SetRGB(long rgb) = 0;
};

class LineFormat {
 public:
  virtual ~LineFormat() = default;
  virtual bool Visible() const = 0;
  virtual void SetVisible(bool visible) = 0;
  virtual ColorFormat& ForeColor() = 0;
  virtual float Weight() const = 0;
  virtual void SetWeight(float points) = 0;
  virtual MsoLineDashStyle DashStyle() const = 0;
  virtual void SetDashStyle(MsoLineDashStyle style) = 0;
  virtual void SetBeginArrowheadStyle(MsoArrowheadStyle style) = 0;
  virtual void SetEndArrowheadStyle(MsoArrowheadStyle style) = 0;
  // Added later than the members above: back ends that lack them answer as
  // Word does for a member an object does not have.
  virtual void SetBeginArrowheadLength(MsoArrowheadLength) { NotSupported(); }
  virtual void SetBeginArrowheadWidth(MsoArrowheadWidth) { NotSupported(); }
  virtual void SetEndArrowheadLength(MsoArrowheadLength) { NotSupported(); }
  virtual void SetEndArrowheadWidth(MsoArrowheadWidth) { NotSupported(); }
};

class FillFormat {
 public:
  virtual ~FillFormat() = default;
  virtual bool Visible() const = 0;
  virtual void SetVisible(bool visible) = 0;
  virtual ColorFormat& ForeColor() = 0;
  virtual ColorFormat& BackColor() = 0;
  virtual void Solid() = 0;
  virtual void Patterned(long pattern) = 0;  // one of the 48 msoPattern values, 1-48
  virtual float Transparency() const = 0;
  virtual void SetTransparency(float fraction) = 0;
};

class TextFrame {
 public:
  virtual ~TextFrame() = default;
  virtual std::unique_ptr<Range> TextRange() = 0;
  virtual void SetMarginLeft(float points) = 0;
  virtual void SetMarginRight(float points) = 0;
  virtual void SetMarginTop(float points) = 0;
  virtual void SetMarginBottom(float points) = 0;
  // Whether the shape grows to fit its text (Word's AutoSize, 0 or -1).
  virtual void SetAutoSize(bool) { NotSupported(); }
};

class WrapFormat {
 public:
  virtual ~WrapFormat() = default;
  virtual WdWrapType Type() const = 0;
  virtual void SetType(WdWrapType type) = 0;
};

class Shapes;
class Shape;

// The ends of a connector: each can be attached to a connection site of a
// shape (1-based, counter-clockwise from the top for the rectangle and the
// flow-chart shapes: 1 top, 2 left, 3 bottom, 4 right) and moves there, and
// stays attached when that shape moves.
class ConnectorFormat {
 public:
  virtual ~ConnectorFormat() = default;
  virtual void BeginConnect(Shape& connectedShape, long connectionSite) = 0;
  virtual void EndConnect(Shape& connectedShape, long connectionSite) = 0;
};

// One shape, or with ShapeRange several at once: properties set on a range
// apply to each of its shapes.
class Shape {
 public:
  virtual ~Shape() = default;
  virtual Text Name() const = 0;
  virtual void SetName(const Text& name) = 0;
  virtual MsoShapeType Type() const = 0;
  virtual float Left() const = 0;
  virtual void SetLeft(float points) = 0;
  virtual float Top() const = 0;
  virtual void SetTop(float points) = 0;
  virtual float Width() const = 0;
  virtual void SetWidth(float points) = 0;
  virtual float Height() const = 0;
  virtual void SetHeight(float points) = 0;
  virtual LineFormat& Line() = 0;
  virtual FillFormat& Fill() = 0;
  virtual word::TextFrame& TextFrame() = 0;
  virtual word::WrapFormat& WrapFormat() = 0;
  virtual void ZOrder(MsoZOrderCmd command) = 0;
  virtual void Select(bool replace = true) = 0;
  virtual void SetRelativeHorizontalPosition(WdRelativeHorizontalPosition to) = 0;
  virtual void SetRelativeVerticalPosition(WdRelativeVerticalPosition to) = 0;
  virtual void Delete() = 0;
  // The shape's alternative text (Word's AlternativeText). Added later than
  // the members above: back ends that lack it answer as Word does for a
  // member an object does not have.
  virtual Text AlternativeText() const { NotSupported(); }
  virtual void SetAlternativeText(const Text&) { NotSupported(); }
  // The shapes of a drawing canvas, where new ones can be added. Added later
  // than the members above: a back end without canvases answers as Word does
  // for a member an object does not have.
  virtual std::unique_ptr<Shapes> CanvasItems() { NotSupported(); }
  // A connector's ends. Added later than the members above: a back end
  // without connectors answers as Word does for a member an object does not
  // have.
  virtual word::ConnectorFormat& ConnectorFormat() { NotSupported(); }
};

class ShapeRange : public Shape {
 public:
  virtual long Count() const = 0;
  virtual std::unique_ptr<Shape> Item(long index) = 0;  // 1-based
  virtual std::unique_ptr<Shape> Group() = 0;
};

class FreeformBuilder {
 public:
  virtual ~FreeformBuilder() = default;
  // A line segment uses x1, y1; a curve segment takes two control points and its end.
  virtual void AddNodes(MsoSegmentType segment, MsoEditingType editing, float x1, float y1,
                        float x2 = 0, float y2 = 0, float x3 = 0, float y3 = 0) = 0;
  virtual std::unique_ptr<Shape> ConvertToShape() = 0;
};

struct PointF {
  float x = 0;
  float y = 0;
};

// The floating shapes of the main story; positions in points from the page corner.
class Shapes {
 public:
  virtual ~Shapes() = default;
  virtual long Count() const = 0;
  virtual std::unique_ptr<Shape> Item(long index) = 0;  // 1-based
  virtual std::unique_ptr<Shape> Item(const Text& name) = 0;
  virtual std::unique_ptr<ShapeRange> Range(const std::vector<Text>& names) = 0;
  virtual std::unique_ptr<Shape> AddLine(float beginX, float beginY, float endX, float endY) = 0;
  virtual std::unique_ptr<Shape> AddShape(MsoAutoShapeType type, float left, float top, float width,
                                          float height) = 0;
  virtual std::unique_ptr<Shape> AddTextbox(MsoTextOrientation orientation, float left, float top,
                                            float width, float height) = 0;
  // Bezier curve through 3n+1 points: start, then two controls and an end per segment.
  virtual std::unique_ptr<Shape> AddCurve(const std::vector<PointF>& points) = 0;
  virtual std::unique_ptr<FreeformBuilder> BuildFreeform(MsoEditingType editing, float x1,
                                                         float y1) = 0;
  // A connector from begin to end, attached to nothing until its
  // ConnectorFormat connects it. Added later than the members above.
  virtual std::unique_ptr<Shape> AddConnector(MsoConnectorType, float, float, float, float) {
    NotSupported();
  }
};

}  // namespace word
