#pragma once
// Floating shapes of the recording back end. A shape is written Shape<n> in
// the records, n counting the shapes made in the run; its name, kind, place
// and size are kept, other properties are kept under their path.

#include "word/fake/range.h"

namespace word::fake {

class FakeColorFormat : public ColorFormat, public Node {
 public:
  using Node::Node;
  long RGB() const override { return static_cast<long>(Number("RGB", 0)); }
  void SetRGB(long rgb) override { Put("RGB", rgb); }
};

class FakeLineFormat : public LineFormat, public Node {
 public:
  FakeLineFormat(State& state, std::string path)
      : Node(state, path), foreColor_(state, path + ".ForeColor") {}
  bool Visible() const override { return Number("Visible", -1) != 0; }
  void SetVisible(bool visible) override { Put("Visible", visible); }
  ColorFormat& ForeColor() override { return foreColor_; }
  float Weight() const override { return static_cast<float>(Number("Weight", 0.75)); }
  void SetWeight(float points) override { Put("Weight", points); }
  MsoLineDashStyle DashStyle() const override {
    return static_cast<MsoLineDashStyle>(Number("DashStyle", msoLineSolid));
  }
  void SetDashStyle(MsoLineDashStyle style) override { Put("DashStyle", static_cast<long>(style)); }
  void SetBeginArrowheadStyle(MsoArrowheadStyle style) override {
    Put("BeginArrowheadStyle", static_cast<long>(style));
  }
  void SetEndArrowheadStyle(MsoArrowheadStyle style) override {
    Put("EndArrowheadStyle", static_cast<long>(style));
  }
  void SetBeginArrowheadLength(MsoArrowheadLength length) override {
    Put("BeginArrowheadLength", static_cast<long>(length));
  }
  void SetBeginArrowheadWidth(MsoArrowheadWidth width) override {
    Put("BeginArrowheadWidth", static_cast<long>(width));
  }
  void SetEndArrowheadLength(MsoArrowheadLength length) override {
    Put("EndArrowheadLength", static_cast<long>(length));
  }
  void SetEndArrowheadWidth(MsoArrowheadWidth width) override {
    Put("EndArrowheadWidth", static_cast<long>(width));
  }

 private:
  FakeColorFormat foreColor_;
};

class FakeFillFormat : public FillFormat, public Node {
 public:
  FakeFillFormat(State& state, std::string path)
      : Node(state, path),
        foreColor_(state, path + ".ForeColor"),
        backColor_(state, path + ".BackColor") {}
  bool Visible() const override { return Number("Visible", -1) != 0; }
  void SetVisible(bool visible) override { Put("Visible", visible); }
  ColorFormat& ForeColor() override { return foreColor_; }
  ColorFormat& BackColor() override { return backColor_; }
  void Solid() override { Call("Solid"); }
  void Patterned(long pattern) override { Call("Patterned", pattern); }
  float Transparency() const override { return static_cast<float>(Number("Transparency", 0)); }
  void SetTransparency(float fraction) override { Put("Transparency", fraction); }

 private:
  FakeColorFormat foreColor_;
  FakeColorFormat backColor_;
};

class FakeTextFrame : public TextFrame, public Node {
 public:
  FakeTextFrame(State& state, std::string path, SharedText story)
      : Node(state, std::move(path)), story_(std::move(story)) {}
  std::unique_ptr<word::Range> TextRange() override {
    return std::make_unique<FakeRange>(st_, path_ + ".TextRange", story_);
  }
  void SetMarginLeft(float points) override { Put("MarginLeft", points); }
  void SetMarginRight(float points) override { Put("MarginRight", points); }
  void SetMarginTop(float points) override { Put("MarginTop", points); }
  void SetMarginBottom(float points) override { Put("MarginBottom", points); }
  void SetAutoSize(bool on) override { Put("AutoSize", on); }

 private:
  SharedText story_;
};

class FakeWrapFormat : public WrapFormat, public Node {
 public:
  using Node::Node;
  WdWrapType Type() const override { return static_cast<WdWrapType>(Number("Type", wdWrapNone)); }
  void SetType(WdWrapType type) override { Put("Type", static_cast<long>(type)); }
};

// Records the connections by the connected shape as the records write it.
class FakeConnectorFormat : public ConnectorFormat, public Node {
 public:
  using Node::Node;
  void BeginConnect(Shape& connectedShape, long connectionSite) override {
    Call("BeginConnect", Written(connectedShape), connectionSite);
  }
  void EndConnect(Shape& connectedShape, long connectionSite) override {
    Call("EndConnect", Written(connectedShape), connectionSite);
  }

 private:
  static std::string Written(const Shape& shape) {
    const auto* node = dynamic_cast<const Node*>(&shape);
    return node ? node->Path() : Arg(shape.Name());
  }
};

// A shape or a range of shapes: getters read the first, setters change all.
template <class Base>
class ShapeImpl : public Base, public Node {
 public:
  ShapeImpl(State& state, std::string path, ShapeList targets);

  word::Text Name() const override { return First().name; }
  void SetName(const word::Text& name) override;
  MsoShapeType Type() const override { return First().type; }
  float Left() const override { return First().left; }
  void SetLeft(float points) override { SetEach("Left", points, &ShapeState::left); }
  float Top() const override { return First().top; }
  void SetTop(float points) override { SetEach("Top", points, &ShapeState::top); }
  float Width() const override { return First().width; }
  void SetWidth(float points) override { SetEach("Width", points, &ShapeState::width); }
  float Height() const override { return First().height; }
  void SetHeight(float points) override { SetEach("Height", points, &ShapeState::height); }
  LineFormat& Line() override { return line_; }
  FillFormat& Fill() override { return fill_; }
  word::TextFrame& TextFrame() override { return textFrame_; }
  word::WrapFormat& WrapFormat() override { return wrap_; }
  word::ConnectorFormat& ConnectorFormat() override { return connector_; }
  void ZOrder(MsoZOrderCmd command) override { Call("ZOrder", static_cast<long>(command)); }
  void Select(bool replace) override;
  void SetRelativeHorizontalPosition(WdRelativeHorizontalPosition to) override {
    Put("RelativeHorizontalPosition", static_cast<long>(to));
  }
  void SetRelativeVerticalPosition(WdRelativeVerticalPosition to) override {
    Put("RelativeVerticalPosition", static_cast<long>(to));
  }
  void Delete() override;
  word::Text AlternativeText() const override { return First().alternativeText; }
  void SetAlternativeText(const word::Text& text) override;

 protected:
  const ShapeState& First() const;
  void SetEach(const std::string& member, float points, float ShapeState::*field);

  ShapeList targets_;

 private:
  FakeLineFormat line_;
  FakeFillFormat fill_;
  FakeTextFrame textFrame_;
  FakeWrapFormat wrap_;
  FakeConnectorFormat connector_;
};

class FakeShape : public ShapeImpl<Shape> {
 public:
  FakeShape(State& state, std::shared_ptr<ShapeState> shape)
      : ShapeImpl(state, "Shape" + std::to_string(shape->serial), {shape}) {}
};

class FakeShapeRange : public ShapeImpl<ShapeRange> {
 public:
  using ShapeImpl::ShapeImpl;
  long Count() const override { return static_cast<long>(targets_.size()); }
  std::unique_ptr<Shape> Item(long index) override;
  std::unique_ptr<Shape> Group() override;
};

class FakeFreeformBuilder : public FreeformBuilder, public Node {
 public:
  FakeFreeformBuilder(State& state, DocumentState& document, float x1, float y1)
      : Node(state, "FreeformBuilder"),
        doc_(document),
        minX_(x1),
        minY_(y1),
        maxX_(x1),
        maxY_(y1) {}
  void AddNodes(MsoSegmentType segment, MsoEditingType editing, float x1, float y1, float x2,
                float y2, float x3, float y3) override;
  std::unique_ptr<Shape> ConvertToShape() override;

 private:
  DocumentState& doc_;
  float minX_, minY_, maxX_, maxY_;
};

// The shapes of one document.
class FakeShapes : public Shapes, public Node {
 public:
  FakeShapes(State& state, std::string path, DocumentState& document)
      : Node(state, std::move(path)), doc_(document) {}
  long Count() const override { return static_cast<long>(doc_.shapes.size()); }
  std::unique_ptr<Shape> Item(long index) override;
  std::unique_ptr<Shape> Item(const word::Text& name) override;
  std::unique_ptr<ShapeRange> Range(const std::vector<word::Text>& names) override;
  std::unique_ptr<Shape> AddLine(float beginX, float beginY, float endX, float endY) override;
  std::unique_ptr<Shape> AddShape(MsoAutoShapeType type, float left, float top, float width,
                                  float height) override;
  std::unique_ptr<Shape> AddTextbox(MsoTextOrientation orientation, float left, float top,
                                    float width, float height) override;
  std::unique_ptr<Shape> AddCurve(const std::vector<PointF>& points) override;
  std::unique_ptr<FreeformBuilder> BuildFreeform(MsoEditingType editing, float x1,
                                                 float y1) override;
  std::unique_ptr<Shape> AddConnector(MsoConnectorType type, float beginX, float beginY, float endX,
                                      float endY) override;

 private:
  std::shared_ptr<ShapeState> Find(const word::Text& name) const;
  DocumentState& doc_;
};

// Takes a shape off the top level of its document (deleted or grouped).
void RemoveShape(State& state, const ShapeState& shape);

}  // namespace word::fake
