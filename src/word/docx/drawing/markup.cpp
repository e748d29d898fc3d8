#include "word/docx/drawing/markup.h"

#include <algorithm>
#include <utility>

#include "runtime/utf8.h"
#include "word/docx/drawing/anchor.h"
#include "word/docx/drawing/z_order.h"

namespace word::docx::drawing {

namespace {

std::string Num(std::int64_t value) {
  return std::to_string(value);
}

std::string Transform(const Frame& frame, const std::string& flips = {}) {
  return "<a:xfrm" + flips + "><a:off x=\"0\" y=\"0\"/><a:ext cx=\"" + Num(frame.cx) + "\" cy=\"" +
         Num(frame.cy) + "\"/></a:xfrm>";
}

constexpr const char* kWhiteFill = "<a:solidFill><a:srgbClr val=\"FFFFFF\"/></a:solidFill>";
constexpr const char* kThinBlackLine =
    "<a:ln w=\"9525\"><a:solidFill><a:srgbClr val=\"000000\"/></a:solidFill></a:ln>";
constexpr const char* kTextBody =
    "<wps:bodyPr rot=\"0\" vert=\"horz\" wrap=\"square\" lIns=\"91440\" tIns=\"45720\" "
    "rIns=\"91440\" bIns=\"45720\" anchor=\"t\" anchorCtr=\"0\" upright=\"1\">"
    "<a:noAutofit/></wps:bodyPr>";

std::string Wsp(const std::string& nonVisual, const std::string& properties,
                const std::string& body) {
  return "<wps:wsp>" + nonVisual + "<wps:spPr>" + properties + "</wps:spPr>" + body + "</wps:wsp>";
}

const std::pair<const char*, const char*> kNamespaces[] = {
    {"xmlns:mc", "http://schemas.openxmlformats.org/markup-compatibility/2006"},
    {"xmlns:wp", "http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing"},
    {"xmlns:wps", "http://schemas.microsoft.com/office/word/2010/wordprocessingShape"},
    {"xmlns:wpg", "http://schemas.microsoft.com/office/word/2010/wordprocessingGroup"},
};

// Where the caret has no paragraph of its own (the end of a table row, an
// empty story) the body's first paragraph takes the anchor.
pugi::xml_node AnchorParagraph(DocxHost& host) {
  if (pugi::xml_node caret = host.CaretParagraph()) return caret;
  pugi::xml_node body = host.DocumentXml().document_element().child("w:body");
  if (pugi::xml_node first = body.child("w:p")) return first;
  const pugi::xml_node section = body.child("w:sectPr");
  return section ? body.insert_child_before("w:p", section) : body.append_child("w:p");
}

}  // namespace

std::string PresetWsp(const char* preset, const Frame& frame) {
  return Wsp("<wps:cNvSpPr/>",
             Transform(frame) + "<a:prstGeom prst=\"" + preset + "\"><a:avLst/></a:prstGeom>" +
                 kWhiteFill + kThinBlackLine,
             kTextBody);
}

std::string LineWsp(const Frame& frame, bool flipH, bool flipV) {
  std::string flips;
  if (flipH) flips += " flipH=\"1\"";
  if (flipV) flips += " flipV=\"1\"";
  return Wsp("<wps:cNvSpPr/>",
             Transform(frame, flips) + "<a:prstGeom prst=\"line\"><a:avLst/></a:prstGeom>" +
                 kThinBlackLine,
             "<wps:bodyPr/>");
}

std::string TextboxWsp(const Frame& frame) {
  return Wsp("<wps:cNvSpPr txBox=\"1\"/>",
             Transform(frame) + "<a:prstGeom prst=\"rect\"><a:avLst/></a:prstGeom>" + kWhiteFill +
                 kThinBlackLine,
             std::string("<wps:txbx><w:txbxContent><w:p/></w:txbxContent></wps:txbx>") + kTextBody);
}

std::string PathWsp(const Frame& frame, const std::string& pathCommands, bool closed) {
  // An open path would be filled across its chord; Word leaves it unfilled.
  // A flat path still needs a non-zero scale.
  const std::string path = std::string("<a:path w=\"") + Num(std::max<std::int64_t>(frame.cx, 1)) +
                           "\" h=\"" + Num(std::max<std::int64_t>(frame.cy, 1)) + "\"" +
                           (closed ? "" : " fill=\"none\"") + ">" + pathCommands + "</a:path>";
  const std::string geometry =
      "<a:custGeom><a:avLst/><a:gdLst/><a:ahLst/><a:cxnLst/>"
      "<a:rect l=\"l\" t=\"t\" r=\"r\" b=\"b\"/><a:pathLst>" +
      path + "</a:pathLst></a:custGeom>";
  return Wsp("<wps:cNvSpPr/>", Transform(frame) + geometry + kWhiteFill + kThinBlackLine,
             kTextBody);
}

std::string AnchorXml(const Frame& frame, unsigned id, unsigned relativeHeight, GraphicKind kind,
                      const std::string& graphic) {
  const char* uri = kind == GraphicKind::kGroup
                        ? "http://schemas.microsoft.com/office/word/2010/wordprocessingGroup"
                        : "http://schemas.microsoft.com/office/word/2010/wordprocessingShape";
  return "<wp:anchor distT=\"0\" distB=\"0\" distL=\"114300\" distR=\"114300\" simplePos=\"0\" "
         "relativeHeight=\"" +
         Num(relativeHeight) +
         "\" behindDoc=\"0\" locked=\"0\" layoutInCell=\"1\" allowOverlap=\"1\">"
         "<wp:simplePos x=\"0\" y=\"0\"/>"
         "<wp:positionH relativeFrom=\"page\"><wp:posOffset>" +
         Num(frame.x) +
         "</wp:posOffset></wp:positionH>"
         "<wp:positionV relativeFrom=\"page\"><wp:posOffset>" +
         Num(frame.y) + "</wp:posOffset></wp:positionV><wp:extent cx=\"" + Num(frame.cx) +
         "\" cy=\"" + Num(frame.cy) +
         "\"/><wp:effectExtent l=\"0\" t=\"0\" r=\"0\" b=\"0\"/><wp:wrapNone/><wp:docPr id=\"" +
         Num(id) +
         "\" name=\"\"/><wp:cNvGraphicFramePr/>"
         "<a:graphic xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\">"
         "<a:graphicData uri=\"" +
         uri + "\">" + graphic + "</a:graphicData></a:graphic></wp:anchor>";
}

pugi::xml_node InsertAnchor(DocxHost& host, const Frame& frame, GraphicKind kind,
                            const std::string& graphic, const Text& namePrefix) {
  pugi::xml_document& document = host.DocumentXml();
  DeclareNamespaces(document);
  const unsigned id = host.NextDrawingId();
  const std::string required = kind == GraphicKind::kGroup ? "wpg" : "wps";
  const std::string run = "<w:r><mc:AlternateContent><mc:Choice Requires=\"" + required +
                          "\"><w:drawing>" +
                          AnchorXml(frame, id, NextRelativeHeight(document), kind, graphic) +
                          "</w:drawing></mc:Choice></mc:AlternateContent></w:r>";
  pugi::xml_document parsed;
  parsed.load_string(run.c_str());
  // At the end of the paragraph the anchor shifts no text before it, and the
  // shapes keep the order in which they were added.
  const pugi::xml_node inserted = host.InsertAnchorRun(AnchorParagraph(host), parsed.first_child());
  pugi::xml_node anchor =
      inserted.first_element_by_path("mc:AlternateContent/mc:Choice/w:drawing/wp:anchor");
  NameByPrefix(anchor, namePrefix);
  host.MarkChanged();
  return anchor;
}

void NameByPrefix(pugi::xml_node anchor, const Text& prefix) {
  SetNameOf(anchor, prefix + u" " + lp::FromUtf8(anchor.child("wp:docPr").attribute("id").value()));
}

void DeclareNamespaces(pugi::xml_document& document) {
  pugi::xml_node root = document.document_element();
  for (const auto& [attribute, uri] : kNamespaces) {
    if (!root.attribute(attribute)) root.append_attribute(attribute) = uri;
  }
}

}  // namespace word::docx::drawing
