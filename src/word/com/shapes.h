#pragma once
// Floating shapes over IDispatch.

#include "word/com/range.h"

namespace word::com {

class ComColorFormat : public ColorFormat, public ComNode {
 public:
  using ComNode::ComNode;
  long RGB() const override { return Get(L"RGB").ToLong(); }
  void SetRGB(long rgb) override { Put(L"RGB", rgb); }
};

class ComLineFormat : public LineFormat, public ComNode {
 public:
  explicit ComLineFormat(Ref ref) : ComNode(ref), foreColor_(Member(L"ForeColor")) {}
  bool Visible() const override { return Get(L"Visible").ToLong() != 0; }
  void SetVisible(bool visible) override { Put(L"Visible", visible); }
  ColorFormat& ForeColor() override { return foreColor_; }
  float Weight() const override { return Get(L"Weight").ToFloat(); }
  void SetWeight(float points) override { Put(L"Weight", points); }
  MsoLineDashStyle DashStyle() const override {
    return static_cast<MsoLineDashStyle>(Get(L"DashStyle").ToLong());
  }
  void SetDashStyle(MsoLineDashStyle style) override {
    Put(L"DashStyle", static_cast<long>(style));
  }
  void SetBeginArrowheadStyle(MsoArrowheadStyle style) override {
    Put(L"BeginArrowheadStyle", static_cast<long>(style));
  }
  void SetEndArrowheadStyle(MsoArrowheadStyle style) override {
    Put(L"EndArrowheadStyle", static_cast<long>(style));
  }
  void SetBeginArrowheadLength(MsoArrowheadLength length) override {
    Put(L"BeginArrowheadLength", static_cast<long>(length));
  }
  void SetBeginArrowheadWidth(MsoArrowheadWidth width) override {
    Put(L"BeginArrowheadWidth", static_cast<long>(width));
  }
  void SetEndArrowheadLength(MsoArrowheadLength length) override {
    Put(L"EndArrowheadLength", static_cast<long>(length));
  }
  void SetEndArrowheadWidth(MsoArrowheadWidth width) override {
    Put(L"EndArrowheadWidth", static_cast<long>(width));
  }

 private:
  ComColorFormat foreColor_;
};

class ComFillFormat : public FillFormat, public ComNode {
 public:
  explicit ComFillFormat(Ref ref)
      : ComNode(ref), foreColor_(Member(L"ForeColor")), backColor_(Member(L"BackColor")) {}
  bool Visible() const override { return Get(L"Visible").ToLong() != 0; }
  void SetVisible(bool visible) override { Put(L"Visible", visible); }
  ColorFormat& ForeColor() override { return foreColor_; }
  ColorFormat& BackColor() override { return backColor_; }
  void Solid() override { Call(L"Solid"); }
  void Patterned(long pattern) override { Call(L"Patterned", {pattern}); }
  float Transparency() const override { return Get(L"Transparency").ToFloat(); }
  void SetTransparency(float fraction) override { Put(L"Transparency", fraction); }

 private:
  ComColorFormat foreColor_;
  ComColorFormat backColor_;
};

class ComTextFrame : public TextFrame, public ComNode {
 public:
  using ComNode::ComNode;
  std::unique_ptr<word::Range> TextRange() override {
    return std::make_unique<ComRange>(Fixed(L"TextRange"));
  }
  void SetMarginLeft(float points) override { Put(L"MarginLeft", points); }
  void SetMarginRight(float points) override { Put(L"MarginRight", points); }
  void SetMarginTop(float points) override { Put(L"MarginTop", points); }
  void SetMarginBottom(float points) override { Put(L"MarginBottom", points); }
  void SetAutoSize(bool on) override { Put(L"AutoSize", on); }
};

class ComWrapFormat : public WrapFormat, public ComNode {
 public:
  using ComNode::ComNode;
  WdWrapType Type() const override { return static_cast<WdWrapType>(Get(L"Type").ToLong()); }
  void SetType(WdWrapType type) override { Put(L"Type", static_cast<long>(type)); }
};

class ComConnectorFormat : public ConnectorFormat, public ComNode {
 public:
  using ComNode::ComNode;
  void BeginConnect(Shape& connectedShape, long connectionSite) override {
    Call(L"BeginConnect", {DispatchOf(connectedShape).get(), connectionSite});
  }
  void EndConnect(Shape& connectedShape, long connectionSite) override {
    Call(L"EndConnect", {DispatchOf(connectedShape).get(), connectionSite});
  }
};

template <class Base>
class ShapeImpl : public Base, public ComNode {
 public:
  explicit ShapeImpl(Ref ref)
      : ComNode(ref),
        line_(Member(L"Line")),
        fill_(Member(L"Fill")),
        textFrame_(Member(L"TextFrame")),
        wrap_(Member(L"WrapFormat")),
        connector_(Member(L"ConnectorFormat")) {}

  word::Text Name() const override { return Get(L"Name").ToText(); }
  void SetName(const word::Text& name) override { Put(L"Name", name); }
  word::Text AlternativeText() const override { return Get(L"AlternativeText").ToText(); }
  void SetAlternativeText(const word::Text& text) override { Put(L"AlternativeText", text); }
  MsoShapeType Type() const override { return static_cast<MsoShapeType>(Get(L"Type").ToLong()); }
  float Left() const override { return Get(L"Left").ToFloat(); }
  void SetLeft(float points) override { Put(L"Left", points); }
  float Top() const override { return Get(L"Top").ToFloat(); }
  void SetTop(float points) override { Put(L"Top", points); }
  float Width() const override { return Get(L"Width").ToFloat(); }
  void SetWidth(float points) override { Put(L"Width", points); }
  float Height() const override { return Get(L"Height").ToFloat(); }
  void SetHeight(float points) override { Put(L"Height", points); }
  LineFormat& Line() override { return line_; }
  FillFormat& Fill() override { return fill_; }
  word::TextFrame& TextFrame() override { return textFrame_; }
  word::WrapFormat& WrapFormat() override { return wrap_; }
  word::ConnectorFormat& ConnectorFormat() override { return connector_; }
  void ZOrder(MsoZOrderCmd command) override { Call(L"ZOrder", {static_cast<long>(command)}); }
  void Select(bool replace) override { Call(L"Select", {replace}); }
  void SetRelativeHorizontalPosition(WdRelativeHorizontalPosition to) override {
    Put(L"RelativeHorizontalPosition", static_cast<long>(to));
  }
  void SetRelativeVerticalPosition(WdRelativeVerticalPosition to) override {
    Put(L"RelativeVerticalPosition", static_cast<long>(to));
  }
  void Delete() override { Call(L"Delete"); }
  std::unique_ptr<Shapes> CanvasItems() override;

 private:
  ComLineFormat line_;
  ComFillFormat fill_;
  ComTextFrame textFrame_;
  ComWrapFormat wrap_;
  ComConnectorFormat connector_;
};

class ComShape : public ShapeImpl<Shape> {
 public:
  using ShapeImpl::ShapeImpl;
};

class ComShapeRange : public ShapeImpl<ShapeRange> {
 public:
  using ShapeImpl::ShapeImpl;
  long Count() const override { return Get(L"Count").ToLong(); }
  std::unique_ptr<Shape> Item(long index) override {
    return std::make_unique<ComShape>(Fixed(L"Item", {index}));
  }
  std::unique_ptr<Shape> Group() override { return std::make_unique<ComShape>(Fixed(L"Group")); }
};

class ComFreeformBuilder : public FreeformBuilder, public ComNode {
 public:
  using ComNode::ComNode;
  void AddNodes(MsoSegmentType segment, MsoEditingType editing, float x1, float y1, float x2,
                float y2, float x3, float y3) override;
  std::unique_ptr<Shape> ConvertToShape() override {
    return std::make_unique<ComShape>(Fixed(L"ConvertToShape"));
  }
};

class ComShapes : public Shapes, public ComNode {
 public:
  using ComNode::ComNode;
  long Count() const override { return Get(L"Count").ToLong(); }
  std::unique_ptr<Shape> Item(long index) override {
    return std::make_unique<ComShape>(Fixed(L"Item", {index}));
  }
  std::unique_ptr<Shape> Item(const word::Text& name) override {
    return std::make_unique<ComShape>(Fixed(L"Item", {name}));
  }
  std::unique_ptr<ShapeRange> Range(const std::vector<word::Text>& names) override;
  std::unique_ptr<Shape> AddLine(float beginX, float beginY, float endX, float endY) override {
    return std::make_unique<ComShape>(Fixed(L"AddLine", {beginX, beginY, endX, endY}));
  }
  std::unique_ptr<Shape> AddShape(MsoAutoShapeType type, float left, float top, float width,
                                  float height) override {
    return std::make_unique<ComShape>(
        Fixed(L"AddShape", {static_cast<long>(type), left, top, width, height}));
  }
  std::unique_ptr<Shape> AddTextbox(MsoTextOrientation orientation, float left, float top,
                                    float width, float height) override {
    return std::make_unique<ComShape>(
        Fixed(L"AddTextbox", {static_cast<long>(orientation), left, top, width, height}));
  }
  std::unique_ptr<Shape> AddCurve(const std::vector<PointF>& points) override;
  std::unique_ptr<FreeformBuilder> BuildFreeform(MsoEditingType editing, float x1,
                                                 float y1) override {
    return std::make_unique<ComFreeformBuilder>(
        Fixed(L"BuildFreeform", {static_cast<long>(editing), x1, y1}));
  }
  std::unique_ptr<Shape> AddConnector(MsoConnectorType type, float beginX, float beginY, float endX,
                                      float endY) override {
    return std::make_unique<ComShape>(
        Fixed(L"AddConnector", {static_cast<long>(type), beginX, beginY, endX, endY}));
  }
};

}  // namespace word::com
