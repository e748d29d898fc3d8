#include "word/docx/drawing/anchor.h"

#include <cstdlib>
#include <optional>
#include <string>

#include "runtime/utf8.h"
#include "word/docx/host/units.h"
#include "word/docx/host/xml_order.h"

namespace word::docx::drawing {

namespace {

void CollectAnchors(pugi::xml_node node, std::vector<pugi::xml_node>& out) {
  for (pugi::xml_node child : node.children()) {
    if (Is(child, "mc:Fallback") || Is(child, "w:txbxContent")) continue;
    if (Is(child, "wp:anchor")) {
      out.push_back(child);
      continue;
    }
    CollectAnchors(child, out);
  }
}

void CollectWsps(pugi::xml_node node, std::vector<pugi::xml_node>& out) {
  for (pugi::xml_node child : node.children()) {
    if (Is(child, "wps:wsp")) out.push_back(child);
    if (Is(child, "wpg:grpSp")) CollectWsps(child, out);
  }
}

const char* AxisElement(Axis axis) {
  return axis == Axis::kHorizontal ? "wp:positionH" : "wp:positionV";
}

const char* ExtentAttr(Axis axis) {
  return axis == Axis::kHorizontal ? "cx" : "cy";
}

bool IsLineGeometry(pugi::xml_node wsp) {
  const std::string prst = wsp.child("wps:spPr").child("a:prstGeom").attribute("prst").value();
  return prst == "line" || prst.rfind("straightConnector", 0) == 0;
}

}  // namespace

std::vector<pugi::xml_node> FindAnchors(const pugi::xml_document& document) {
  std::vector<pugi::xml_node> anchors;
  CollectAnchors(document.document_element().child("w:body"), anchors);
  return anchors;
}

pugi::xml_node FindAnchorByName(const pugi::xml_document& document, const Text& name) {
  for (pugi::xml_node anchor : FindAnchors(document)) {
    if (NameOf(anchor) == name) return anchor;
  }
  return {};
}

pugi::xml_node GraphicOf(pugi::xml_node anchor) {
  return anchor.child("a:graphic").child("a:graphicData").first_child();
}

std::vector<pugi::xml_node> WspsOf(pugi::xml_node anchor) {
  std::vector<pugi::xml_node> wsps;
  const pugi::xml_node graphic = GraphicOf(anchor);
  if (Is(graphic, "wps:wsp")) wsps.push_back(graphic);
  if (Is(graphic, "wpg:wgp")) CollectWsps(graphic, wsps);
  return wsps;
}

MsoShapeType TypeOf(pugi::xml_node anchor) {
  const pugi::xml_node graphic = GraphicOf(anchor);
  if (Is(graphic, "wpg:wgp")) return msoGroup;
  if (Is(graphic, "pic:pic")) return msoPicture;
  if (Is(graphic, "wpc:wpc")) return msoCanvas;
  if (graphic.child("wps:cNvSpPr").attribute("txBox").as_bool()) return msoTextBox;
  if (graphic.child("wps:spPr").child("a:custGeom")) return msoFreeform;
  if (IsLineGeometry(graphic)) return msoLine;
  return msoAutoShape;
}

Text NameOf(pugi::xml_node anchor) {
  return lp::FromUtf8(anchor.child("wp:docPr").attribute("name").value());
}

void SetNameOf(pugi::xml_node anchor, const Text& name) {
  SetAttr(anchor.child("wp:docPr"), "name", lp::ToUtf8(name).c_str());
}

Text DescriptionOf(pugi::xml_node anchor) {
  return lp::FromUtf8(anchor.child("wp:docPr").attribute("descr").value());
}

void SetDescriptionOf(pugi::xml_node anchor, const Text& text) {
  SetAttr(anchor.child("wp:docPr"), "descr", lp::ToUtf8(text).c_str());
}

std::int64_t OffsetOf(pugi::xml_node anchor, Axis axis) {
  return std::strtoll(anchor.child(AxisElement(axis)).child_value("wp:posOffset"), nullptr, 10);
}

void SetOffset(pugi::xml_node anchor, Axis axis, std::int64_t emu) {
  pugi::xml_node position = anchor.child(AxisElement(axis));
  position.remove_child("wp:align");
  pugi::xml_node offset = position.child("wp:posOffset");
  if (!offset) offset = position.append_child("wp:posOffset");
  offset.text().set(std::to_string(emu).c_str());
}

std::string RelativeFromOf(pugi::xml_node anchor, Axis axis) {
  return anchor.child(AxisElement(axis)).attribute("relativeFrom").value();
}

void SetRelativeFrom(pugi::xml_node anchor, Axis axis, const char* from) {
  SetAttr(anchor.child(AxisElement(axis)), "relativeFrom", from);
}

namespace {

// What a page position is kept from: the paragraph's top, and the left edge
// of the column it stands in (a cell's, in a table).
const char* KeptFrom(Axis axis) {
  return axis == Axis::kHorizontal ? "column" : "paragraph";
}

std::optional<std::int64_t> OriginAlong(DocxHost& host, pugi::xml_node anchor, Axis axis) {
  const std::optional<float> origin = host.OriginOf(
      anchor, axis == Axis::kHorizontal ? OriginEdge::kColumnLeft : OriginEdge::kParagraphTop);
  if (!origin) return std::nullopt;
  return ToEmu(*origin);
}

}  // namespace

bool KeptFromParagraph(pugi::xml_node anchor, Axis axis) {
  return RelativeFromOf(anchor, axis) == KeptFrom(axis);
}

std::int64_t PageOffsetOf(DocxHost& host, pugi::xml_node anchor, Axis axis) {
  const std::int64_t offset = OffsetOf(anchor, axis);
  if (!KeptFromParagraph(anchor, axis)) return offset;
  return offset + OriginAlong(host, anchor, axis).value_or(0);
}

void SetPageOffset(DocxHost& host, pugi::xml_node anchor, Axis axis, std::int64_t emu) {
  const std::string from = RelativeFromOf(anchor, axis);
  if (from == "page" || from == KeptFrom(axis)) {
    if (std::optional<std::int64_t> origin = OriginAlong(host, anchor, axis)) {
      SetRelativeFrom(anchor, axis, KeptFrom(axis));
      SetOffset(anchor, axis, emu - *origin);
      return;
    }
  }
  SetOffset(anchor, axis, emu);
}

std::int64_t ExtentOf(pugi::xml_node anchor, Axis axis) {
  return anchor.child("wp:extent").attribute(ExtentAttr(axis)).as_llong();
}

void SetExtent(pugi::xml_node anchor, Axis axis, std::int64_t emu) {
  SetAttr(anchor.child("wp:extent"), ExtentAttr(axis), emu);
  if (pugi::xml_node xfrm = TransformOf(GraphicOf(anchor))) {
    SetAttr(xfrm.child("a:ext"), ExtentAttr(axis), emu);
  }
}

pugi::xml_node TransformOf(pugi::xml_node shape) {
  if (pugi::xml_node sp = shape.child("wps:spPr")) return sp.child("a:xfrm");
  return shape.child("wpg:grpSpPr").child("a:xfrm");
}

pugi::xml_node RunOf(pugi::xml_node anchor) {
  pugi::xml_node node = anchor;
  while (node && !Is(node, "w:r")) node = node.parent();
  return node;
}

void RemoveAnchor(DocxHost& host, pugi::xml_node anchor) {
  pugi::xml_node content = anchor.parent();  // w:drawing
  if (Is(content.parent(), "mc:Choice")) content = content.parent().parent();
  pugi::xml_node run = RunOf(anchor);
  bool alone = true;
  for (pugi::xml_node child : run.children()) {
    if (child != content && !Is(child, "w:rPr")) alone = false;
  }
  host.RemoveAnchorRun(run && alone ? run : content);
}

void DropFallback(pugi::xml_node anchor) {
  const pugi::xml_node choice = anchor.parent().parent();
  if (!Is(choice, "mc:Choice")) return;
  pugi::xml_node alternate = choice.parent();
  while (pugi::xml_node fallback = alternate.child("mc:Fallback")) alternate.remove_child(fallback);
}

}  // namespace word::docx::drawing
