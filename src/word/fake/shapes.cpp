#include "word/fake/shapes.h"
#include "word/errors.h"

#include <algorithm>
#include <cmath>

namespace word::fake {

namespace {

ComError NoSuchShape() {
  return ShapeArgument("未找到具有指定名称的项目。");
}

std::string NameList(const std::vector<Text>& names) {
  std::string out;
  for (const Text& name : names) out += (out.empty() ? "" : ",") + Arg(name);
  return out;
}

}  // namespace

void RemoveShape(State& state, const ShapeState& shape) {
  for (auto& document : state.documents) {
    std::erase_if(document->shapes, [&](const auto& s) { return s.get() == &shape; });
  }
  std::erase_if(state.selection.shapes, [&](const auto& s) { return s.get() == &shape; });
}

template <class Base>
ShapeImpl<Base>::ShapeImpl(State& state, std::string path, ShapeList targets)
    : Node(state, path),
      targets_(std::move(targets)),
      line_(state, path + ".Line"),
      fill_(state, path + ".Fill"),
      textFrame_(state, path + ".TextFrame",
                 targets_.empty() ? std::make_shared<Text>() : targets_.front()->text),
      wrap_(state, path + ".WrapFormat"),
      connector_(state, path + ".ConnectorFormat") {}

template <class Base>
const ShapeState& ShapeImpl<Base>::First() const {
  if (targets_.empty()) throw ShapeArgument("指定集合的索引越界。");
  return *targets_.front();
}

template <class Base>
void ShapeImpl<Base>::SetName(const word::Text& name) {
  Record(path_ + ".Name=" + Arg(name));
  for (auto& shape : targets_) shape->name = name;
}

template <class Base>
void ShapeImpl<Base>::SetAlternativeText(const word::Text& text) {
  Record(path_ + ".AlternativeText=" + Arg(text));
  for (auto& shape : targets_) shape->alternativeText = text;
}

template <class Base>
void ShapeImpl<Base>::SetEach(const std::string& member, float points, float ShapeState::*field) {
  Record(path_ + "." + member + "=" + Arg(points));
  for (auto& shape : targets_) (*shape).*field = points;
}

template <class Base>
void ShapeImpl<Base>::Select(bool replace) {
  Call("Select", replace);
  if (replace) st_.selection.shapes.clear();
  for (auto& shape : targets_) st_.selection.shapes.push_back(shape);
  st_.selection.text->clear();
}

template <class Base>
void ShapeImpl<Base>::Delete() {
  Call("Delete");
  for (auto& shape : targets_) RemoveShape(st_, *shape);
}

template class ShapeImpl<Shape>;
template class ShapeImpl<ShapeRange>;

std::unique_ptr<Shape> FakeShapeRange::Item(long index) {
  if (index < 1 || index > Count()) throw NoSuchShape();
  return std::make_unique<FakeShape>(st_, targets_[index - 1]);
}

std::unique_ptr<Shape> FakeShapeRange::Group() {
  Call("Group");
  DocumentState& document = st_.ActiveDocument();
  float left = First().left, top = First().top, right = left, bottom = top;
  for (const auto& shape : targets_) {
    left = std::min(left, shape->left);
    top = std::min(top, shape->top);
    right = std::max(right, shape->left + shape->width);
    bottom = std::max(bottom, shape->top + shape->height);
  }
  for (const auto& shape : targets_) RemoveShape(st_, *shape);
  auto group = st_.NewShape(document, msoGroup, left, top, right - left, bottom - top);
  group->members = targets_;
  return std::make_unique<FakeShape>(st_, group);
}

void FakeFreeformBuilder::AddNodes(MsoSegmentType segment, MsoEditingType editing, float x1,
                                   float y1, float x2, float y2, float x3, float y3) {
  Call("AddNodes", static_cast<long>(segment), static_cast<long>(editing), x1, y1, x2, y2, x3, y3);
  float xs[] = {x1, x2, x3}, ys[] = {y1, y2, y3};
  int used = segment == msoSegmentCurve ? 3 : 1;
  for (int i = 0; i < used; ++i) {
    minX_ = std::min(minX_, xs[i]), maxX_ = std::max(maxX_, xs[i]);
    minY_ = std::min(minY_, ys[i]), maxY_ = std::max(maxY_, ys[i]);
  }
}

std::unique_ptr<Shape> FakeFreeformBuilder::ConvertToShape() {
  Call("ConvertToShape");
  auto shape = st_.NewShape(doc_, msoFreeform, minX_, minY_, maxX_ - minX_, maxY_ - minY_);
  return std::make_unique<FakeShape>(st_, shape);
}

std::shared_ptr<ShapeState> FakeShapes::Find(const word::Text& name) const {
  for (const auto& shape : doc_.shapes) {
    if (shape->name == name) return shape;
  }
  throw NoSuchShape();
}

std::unique_ptr<Shape> FakeShapes::Item(long index) {
  if (index < 1 || index > Count()) throw NoSuchShape();
  return std::make_unique<FakeShape>(st_, doc_.shapes[index - 1]);
}

std::unique_ptr<Shape> FakeShapes::Item(const word::Text& name) {
  return std::make_unique<FakeShape>(st_, Find(name));
}

std::unique_ptr<ShapeRange> FakeShapes::Range(const std::vector<word::Text>& names) {
  ShapeList shapes;
  for (const Text& name : names) shapes.push_back(Find(name));
  return std::make_unique<FakeShapeRange>(st_, path_ + ".Range(" + NameList(names) + ")",
                                          std::move(shapes));
}

std::unique_ptr<Shape> FakeShapes::AddLine(float beginX, float beginY, float endX, float endY) {
  Call("AddLine", beginX, beginY, endX, endY);
  auto shape = st_.NewShape(doc_, msoLine, std::min(beginX, endX), std::min(beginY, endY),
                            std::abs(endX - beginX), std::abs(endY - beginY));
  return std::make_unique<FakeShape>(st_, shape);
}

std::unique_ptr<Shape> FakeShapes::AddConnector(MsoConnectorType type, float beginX, float beginY,
                                                float endX, float endY) {
  Call("AddConnector", static_cast<long>(type), beginX, beginY, endX, endY);
  auto shape = st_.NewShape(doc_, msoAutoShape, std::min(beginX, endX), std::min(beginY, endY),
                            std::abs(endX - beginX), std::abs(endY - beginY));
  return std::make_unique<FakeShape>(st_, shape);
}

std::unique_ptr<Shape> FakeShapes::AddShape(MsoAutoShapeType type, float left, float top,
                                            float width, float height) {
  Call("AddShape", static_cast<long>(type), left, top, width, height);
  return std::make_unique<FakeShape>(st_,
                                     st_.NewShape(doc_, msoAutoShape, left, top, width, height));
}

std::unique_ptr<Shape> FakeShapes::AddTextbox(MsoTextOrientation orientation, float left, float top,
                                              float width, float height) {
  Call("AddTextbox", static_cast<long>(orientation), left, top, width, height);
  return std::make_unique<FakeShape>(st_, st_.NewShape(doc_, msoTextBox, left, top, width, height));
}

std::unique_ptr<Shape> FakeShapes::AddCurve(const std::vector<PointF>& points) {
  std::string list;
  float minX = 0, minY = 0, maxX = 0, maxY = 0;
  for (size_t i = 0; i < points.size(); ++i) {
    const PointF& p = points[i];
    list += (i ? ",(" : "(") + Arg(p.x) + "," + Arg(p.y) + ")";
    minX = i ? std::min(minX, p.x) : p.x, maxX = i ? std::max(maxX, p.x) : p.x;
    minY = i ? std::min(minY, p.y) : p.y, maxY = i ? std::max(maxY, p.y) : p.y;
  }
  Call("AddCurve", list);
  return std::make_unique<FakeShape>(
      st_, st_.NewShape(doc_, msoFreeform, minX, minY, maxX - minX, maxY - minY));
}

std::unique_ptr<FreeformBuilder> FakeShapes::BuildFreeform(MsoEditingType editing, float x1,
                                                           float y1) {
  Call("BuildFreeform", static_cast<long>(editing), x1, y1);
  return std::make_unique<FakeFreeformBuilder>(st_, doc_, x1, y1);
}

}  // namespace word::fake
