#include "word/docx/drawing/anchor.h"
#include "word/docx/drawing/formats.h"
#include "word/docx/drawing/z_order.h"
#include "word/docx/host/units.h"
#include "word/docx/host/xml_order.h"
#include "word/errors.h"

namespace word::docx::drawing {

namespace {

const Order kBodyOrder = {"a:prstTxWarp", "a:noAutofit", "a:normAutofit", "a:spAutoFit",
                          "a:scene3d",    "a:sp3d",      "a:flatTx",      "a:extLst"};

// The story of a shape's text, made when the shape has none yet: Word lets
// any shape but a line or a group hold text.
pugi::xml_node TextStoryOf(pugi::xml_node anchor) {
  const MsoShapeType type = TypeOf(anchor);
  if (type != msoTextBox && type != msoAutoShape && type != msoFreeform) {
    throw ShapeArgument("此形状不支持附加文本。");
  }
  const pugi::xml_node wsp = GraphicOf(anchor);
  pugi::xml_node box = EnsureChild(wsp, "wps:txbx", kWspOrder);
  pugi::xml_node story = box.child("w:txbxContent");
  if (!story) {
    story = box.append_child("w:txbxContent");
    story.append_child("w:p");
  }
  return story;
}

}  // namespace

std::unique_ptr<Range> DocxTextFrame::TextRange() {
  const pugi::xml_node story = TextStoryOf(shapes_.First());
  shapes_.Changed();
  return shapes_.Host().StoryRange(story);
}

void DocxTextFrame::SetInset(const char* attribute, float points) {
  for (pugi::xml_node body : shapes_.BodyProperties()) SetAttr(body, attribute, ToEmu(points));
  shapes_.Changed();
}

void DocxTextFrame::SetAutoSize(bool on) {
  for (pugi::xml_node body : shapes_.BodyProperties()) {
    ReplaceChoice(body, {"a:noAutofit", "a:normAutofit", "a:spAutoFit"},
                  on ? "a:spAutoFit" : "a:noAutofit", kBodyOrder);
  }
  shapes_.Changed();
}

WdWrapType DocxWrapFormat::Type() const {
  return WrapTypeOf(shapes_.First());
}

void DocxWrapFormat::SetType(WdWrapType type) {
  for (pugi::xml_node anchor : shapes_.Anchors()) SetWrapType(anchor, type);
  shapes_.Changed();
}

}  // namespace word::docx::drawing
