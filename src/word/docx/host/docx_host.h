#pragma once
// What the shape layer (drawing/) needs of the text engine, and what it gives
// back. The text engine owns the package and document.xml; the shape layer
// reads and writes the DrawingML anchors inside it.

#include <memory>
#include <optional>
#include <vector>

#include <pugixml.hpp>

#include "word/api.h"
#include "word/docx/host/live_anchors.h"

namespace word::docx {

// The two edges a shape kept beside its paragraph is measured from.
enum class OriginEdge { kColumnLeft, kParagraphTop };

class DocxHost {
 public:
  virtual ~DocxHost() = default;
  virtual pugi::xml_document& DocumentXml() = 0;
  // The w:p holding the selection: new floating shapes are anchored in it.
  virtual pugi::xml_node CaretParagraph() = 0;
  // A fresh id for wp:docPr, unique in the document.
  virtual unsigned NextDrawingId() = 0;
  virtual void MarkChanged() = 0;
  // Every run holding an anchor comes and goes through these two, so that the
  // text engine moves its ranges and the selection over the position it holds.
  // Appends a copy of `run` (a run holding one anchor) to the paragraph and
  // returns the copy.
  virtual pugi::xml_node InsertAnchorRun(pugi::xml_node paragraph, const pugi::xml_node& run) = 0;
  // Takes out a run holding an anchor, or the anchor's element inside a run
  // that holds more.
  virtual void RemoveAnchorRun(pugi::xml_node node) = 0;
  // The handles Shape objects hold; the host empties those of the anchors
  // that leave the document, whichever way they go.
  virtual LiveAnchors& Live() = 0;
  // The whole story of a text box (a w:txbxContent element) as a range.
  virtual std::unique_ptr<word::Range> StoryRange(pugi::xml_node txbxContent) = 0;
  // Shape.Select: the selection becomes these shapes (the wp:anchor elements).
  virtual void SelectShapes(const std::vector<pugi::xml_node>& anchors, bool replace) = 0;
  virtual std::vector<pugi::xml_node> SelectedShapes() = 0;
  // Where the text engine estimates the body paragraph holding `anchor`
  // stands, in points from the page's corner: the left edge of its text
  // column, or its top. Nothing for an anchor outside the body's paragraphs.
  virtual std::optional<float> OriginOf(pugi::xml_node anchor, OriginEdge edge) = 0;
};

// Implemented by the shape layer.
std::unique_ptr<word::Shapes> MakeShapes(DocxHost& host);
std::unique_ptr<word::ShapeRange> MakeShapeRange(DocxHost& host,
                                                 const std::vector<pugi::xml_node>& anchors);

}  // namespace word::docx
