#pragma once
// Shape and ShapeRange of the .docx engine: one class over a list of anchors,
// a Shape being a range of one.

#include "word/docx/drawing/connector.h"
#include "word/docx/drawing/formats.h"
#include "word/docx/drawing/shape_set.h"
#include "word/shapes.h"

namespace word::docx::drawing {

class AnchorRange : public ShapeRange {
 public:
  AnchorRange(DocxHost& host, std::vector<pugi::xml_node> anchors);
  // The formats hold on to shapes_.
  AnchorRange(const AnchorRange&) = delete;
  AnchorRange& operator=(const AnchorRange&) = delete;

  Text Name() const override;
  void SetName(const Text& name) override;
  MsoShapeType Type() const override;
  float Left() const override;
  void SetLeft(float points) override;
  float Top() const override;
  void SetTop(float points) override;
  float Width() const override;
  void SetWidth(float points) override;
  float Height() const override;
  void SetHeight(float points) override;
  LineFormat& Line() override { return line_; }
  FillFormat& Fill() override { return fill_; }
  word::TextFrame& TextFrame() override { return textFrame_; }
  word::WrapFormat& WrapFormat() override { return wrapFormat_; }
  word::ConnectorFormat& ConnectorFormat() override { return connector_; }
  void ZOrder(MsoZOrderCmd command) override;
  void Select(bool replace = true) override;
  void SetRelativeHorizontalPosition(WdRelativeHorizontalPosition to) override;
  void SetRelativeVerticalPosition(WdRelativeVerticalPosition to) override;
  void Delete() override;
  Text AlternativeText() const override;
  void SetAlternativeText(const Text& text) override;

  long Count() const override;
  std::unique_ptr<Shape> Item(long index) override;
  std::unique_ptr<Shape> Group() override;

  // The first anchor, for a connector attached to this shape.
  pugi::xml_node FirstAnchor() const { return shapes_.First(); }

 private:
  void EachAnchor(const std::function<void(pugi::xml_node)>& edit);

  ShapeSet shapes_;
  DocxLineFormat line_;
  DocxFillFormat fill_;
  DocxTextFrame textFrame_;
  DocxWrapFormat wrapFormat_;
  DocxConnectorFormat connector_;
};

// Moves the anchors' shapes into one new group anchored where the first one
// was; returns the new wp:anchor.
pugi::xml_node GroupAnchors(DocxHost& host, const std::vector<pugi::xml_node>& anchors);

}  // namespace word::docx::drawing
