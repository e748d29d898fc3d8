#include "word/docx/drawing/shape_range.h"

#include "word/docx/drawing/anchor.h"
#include "word/docx/drawing/z_order.h"
#include "word/docx/host/units.h"
#include "word/errors.h"

namespace word::docx::drawing {

namespace {

const char* HorizontalFrom(WdRelativeHorizontalPosition to) {
  switch (to) {
    case wdRelativeHorizontalPositionMargin:
      return "margin";
    case wdRelativeHorizontalPositionColumn:
      return "column";
    case wdRelativeHorizontalPositionCharacter:
      return "character";
    default:
      return "page";
  }
}

const char* VerticalFrom(WdRelativeVerticalPosition to) {
  switch (to) {
    case wdRelativeVerticalPositionMargin:
      return "margin";
    case wdRelativeVerticalPositionParagraph:
      return "paragraph";
    case wdRelativeVerticalPositionLine:
      return "line";
    default:
      return "page";
  }
}

}  // namespace

AnchorRange::AnchorRange(DocxHost& host, std::vector<pugi::xml_node> anchors)
    : shapes_(host, std::move(anchors)),
      line_(shapes_),
      fill_(shapes_),
      textFrame_(shapes_),
      wrapFormat_(shapes_),
      connector_(shapes_) {}

void AnchorRange::EachAnchor(const std::function<void(pugi::xml_node)>& edit) {
  for (pugi::xml_node anchor : shapes_.Anchors()) edit(anchor);
  shapes_.Changed();
}

Text AnchorRange::Name() const {
  return NameOf(shapes_.First());
}
void AnchorRange::SetName(const Text& name) {
  EachAnchor([&name](pugi::xml_node anchor) { SetNameOf(anchor, name); });
}

Text AnchorRange::AlternativeText() const {
  return DescriptionOf(shapes_.First());
}
void AnchorRange::SetAlternativeText(const Text& text) {
  EachAnchor([&text](pugi::xml_node anchor) { SetDescriptionOf(anchor, text); });
}

MsoShapeType AnchorRange::Type() const {
  return TypeOf(shapes_.First());
}

float AnchorRange::Left() const {
  return ToPoints(PageOffsetOf(shapes_.Host(), shapes_.First(), Axis::kHorizontal));
}
void AnchorRange::SetLeft(float points) {
  EachAnchor([&](pugi::xml_node a) {
    SetPageOffset(shapes_.Host(), a, Axis::kHorizontal, ToEmu(points));
  });
}

float AnchorRange::Top() const {
  return ToPoints(PageOffsetOf(shapes_.Host(), shapes_.First(), Axis::kVertical));
}
void AnchorRange::SetTop(float points) {
  EachAnchor(
      [&](pugi::xml_node a) { SetPageOffset(shapes_.Host(), a, Axis::kVertical, ToEmu(points)); });
}

float AnchorRange::Width() const {
  return ToPoints(ExtentOf(shapes_.First(), Axis::kHorizontal));
}
void AnchorRange::SetWidth(float points) {
  EachAnchor([points](pugi::xml_node a) { SetExtent(a, Axis::kHorizontal, ToEmu(points)); });
}

float AnchorRange::Height() const {
  return ToPoints(ExtentOf(shapes_.First(), Axis::kVertical));
}
void AnchorRange::SetHeight(float points) {
  EachAnchor([points](pugi::xml_node a) { SetExtent(a, Axis::kVertical, ToEmu(points)); });
}

void AnchorRange::ZOrder(MsoZOrderCmd command) {
  pugi::xml_document& document = shapes_.Host().DocumentXml();
  EachAnchor([&](pugi::xml_node anchor) { ApplyZOrder(document, anchor, command); });
}

void AnchorRange::Select(bool replace) {
  shapes_.First();
  shapes_.Host().SelectShapes(shapes_.Anchors(), replace);
}

void AnchorRange::SetRelativeHorizontalPosition(WdRelativeHorizontalPosition to) {
  EachAnchor([to](pugi::xml_node a) { SetRelativeFrom(a, Axis::kHorizontal, HorizontalFrom(to)); });
}

void AnchorRange::SetRelativeVerticalPosition(WdRelativeVerticalPosition to) {
  EachAnchor([to](pugi::xml_node a) { SetRelativeFrom(a, Axis::kVertical, VerticalFrom(to)); });
}

void AnchorRange::Delete() {
  shapes_.First();
  for (pugi::xml_node anchor : shapes_.Anchors()) RemoveAnchor(shapes_.Host(), anchor);
  shapes_.Host().MarkChanged();
}

long AnchorRange::Count() const {
  return static_cast<long>(shapes_.Anchors().size());
}

std::unique_ptr<Shape> AnchorRange::Item(long index) {
  if (index < 1 || index > Count()) {
    throw ShapeArgument("指定集合的索引越界。");
  }
  return std::make_unique<AnchorRange>(
      shapes_.Host(), std::vector{shapes_.Anchors()[static_cast<size_t>(index - 1)]});
}

std::unique_ptr<Shape> AnchorRange::Group() {
  if (Count() < 2) throw ShapeArgument("组合至少需要两个形状。");
  const pugi::xml_node group = GroupAnchors(shapes_.Host(), shapes_.Anchors());
  return std::make_unique<AnchorRange>(shapes_.Host(), std::vector{group});
}

}  // namespace word::docx::drawing
