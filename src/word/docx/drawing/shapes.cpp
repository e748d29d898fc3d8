// The Shapes collection of a .docx document and the entry points of the layer.

#include <cmath>

#include "word/docx/drawing/anchor.h"
#include "word/docx/drawing/connector.h"
#include "word/docx/drawing/markup.h"
#include "word/docx/drawing/path_shape.h"
#include "word/docx/drawing/shape_range.h"
#include "word/docx/host/units.h"
#include "word/errors.h"

namespace word::docx {

namespace {

using namespace drawing;

[[noreturn]] void NoSuchShape() {
  throw ShapeArgument("未找到具有指定名称的项目。");
}

Frame FrameOfPoints(float left, float top, float width, float height) {
  return {ToEmu(left), ToEmu(top), ToEmu(width), ToEmu(height)};
}

class DocxShapes : public word::Shapes {
 public:
  explicit DocxShapes(DocxHost& host) : host_(host) {}

  long Count() const override { return static_cast<long>(FindAnchors(host_.DocumentXml()).size()); }

  std::unique_ptr<Shape> Item(long index) override {
    const auto anchors = FindAnchors(host_.DocumentXml());
    if (index < 1 || index > static_cast<long>(anchors.size())) {
      throw ShapeArgument("指定集合的索引越界。");
    }
    return One(anchors[static_cast<size_t>(index - 1)]);
  }

  std::unique_ptr<Shape> Item(const Text& name) override { return One(Named(name)); }

  std::unique_ptr<ShapeRange> Range(const std::vector<Text>& names) override {
    std::vector<pugi::xml_node> anchors;
    for (const Text& name : names) anchors.push_back(Named(name));
    return std::make_unique<AnchorRange>(host_, std::move(anchors));
  }

  std::unique_ptr<Shape> AddLine(float beginX, float beginY, float endX, float endY) override {
    const Frame frame = FrameOfPoints(std::fmin(beginX, endX), std::fmin(beginY, endY),
                                      std::fabs(endX - beginX), std::fabs(endY - beginY));
    return Add(frame, LineWsp(frame, endX < beginX, endY < beginY), u"Line");
  }

  std::unique_ptr<Shape> AddConnector(MsoConnectorType type, float beginX, float beginY, float endX,
                                      float endY) override {
    if (type != msoConnectorStraight && type != msoConnectorElbow) throw InvalidArgument();
    const Frame frame = FrameOfPoints(std::fmin(beginX, endX), std::fmin(beginY, endY),
                                      std::fabs(endX - beginX), std::fabs(endY - beginY));
    return Add(frame, ConnectorWsp(type, frame, endX < beginX, endY < beginY),
               type == msoConnectorElbow ? u"Elbow Connector" : u"Straight Connector");
  }

  std::unique_ptr<Shape> AddShape(MsoAutoShapeType type, float left, float top, float width,
                                  float height) override {
    const PresetOfType* preset = PresetOf(type);
    if (!preset) throw InvalidArgument();
    const Frame frame = FrameOfPoints(left, top, width, height);
    return Add(frame, PresetWsp(preset->preset, frame), preset->namePrefix);
  }

  std::unique_ptr<Shape> AddTextbox(MsoTextOrientation, float left, float top, float width,
                                    float height) override {
    const Frame frame = FrameOfPoints(left, top, width, height);
    return Add(frame, TextboxWsp(frame), u"Text Box");
  }

  std::unique_ptr<Shape> AddCurve(const std::vector<PointF>& points) override {
    return AddPathShape(host_, BezierPath(points), u"Curve");
  }

  std::unique_ptr<FreeformBuilder> BuildFreeform(MsoEditingType, float x1, float y1) override {
    return MakeFreeformBuilder(host_, x1, y1);
  }

 private:
  pugi::xml_node Named(const Text& name) const {
    const pugi::xml_node anchor = FindAnchorByName(host_.DocumentXml(), name);
    if (!anchor) NoSuchShape();
    return anchor;
  }

  std::unique_ptr<Shape> One(pugi::xml_node anchor) {
    return std::make_unique<AnchorRange>(host_, std::vector{anchor});
  }

  std::unique_ptr<Shape> Add(const Frame& frame, const std::string& wsp, const Text& prefix) {
    return One(InsertAnchor(host_, frame, GraphicKind::kShape, wsp, prefix));
  }

  DocxHost& host_;
};

}  // namespace

std::unique_ptr<word::Shapes> MakeShapes(DocxHost& host) {
  return std::make_unique<DocxShapes>(host);
}

std::unique_ptr<word::ShapeRange> MakeShapeRange(DocxHost& host,
                                                 const std::vector<pugi::xml_node>& anchors) {
  return std::make_unique<drawing::AnchorRange>(host, anchors);
}

}  // namespace word::docx
