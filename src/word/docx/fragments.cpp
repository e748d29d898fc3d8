// Range.ExportFragment and Range.InsertFile: a stretch of the body written as
// a document of its own, and another document's body brought in at a range,
// with the parts (pictures) its relationships name.

#include <algorithm>
#include <cstring>
#include <iterator>
#include <map>
#include <sstream>

#include "runtime/utf8.h"
#include "word/docx/document_file.h"
#include "word/docx/docx_error.h"
#include "word/docx/drawing/anchor.h"
#include "word/docx/range_capture.h"
#include "word/docx/relationships.h"
#include "word/docx/xml_part.h"
#include "word/errors.h"

namespace word::docx {
namespace {

std::filesystem::path PathOf(const Text& fileName) {
  return std::filesystem::path(lp::ToUtf8(fileName));
}

// The body's paragraphs rebuilt from the pieces, before the section properties.
void FillBody(pugi::xml_node body, const std::vector<Piece>& pieces) {
  const pugi::xml_node sectPr = body.child("w:sectPr");
  for (pugi::xml_node child = body.first_child(); child;) {
    pugi::xml_node next = child.next_sibling();
    if (child != sectPr) body.remove_child(child);
    child = next;
  }
  pugi::xml_node paragraph =
      sectPr ? body.insert_child_before("w:p", sectPr) : body.append_child("w:p");
  for (const Piece& piece : pieces) {
    if (!piece.run) {
      paragraph = sectPr ? body.insert_child_before("w:p", sectPr) : body.append_child("w:p");
      continue;
    }
    paragraph.append_copy(piece.run->first_child());
  }
  // The last mark of the range, if it held one, needs no empty paragraph after it.
  if (!paragraph.first_child() && paragraph.previous_sibling("w:p")) body.remove_child(paragraph);
}

std::string ContentTypeOf(const std::string& part) {
  std::string ext = part.substr(part.find_last_of('.') + 1);
  std::transform(ext.begin(), ext.end(), ext.begin(),
                 [](unsigned char c) { return std::tolower(c); });
  static const std::map<std::string, std::string> kTypes = {
      {"png", "image/png"},     {"jpg", "image/jpeg"},      {"jpeg", "image/jpeg"},
      {"gif", "image/gif"},     {"bmp", "image/bmp"},       {"emf", "image/x-emf"},
      {"wmf", "image/x-wmf"},   {"tif", "image/tiff"},      {"tiff", "image/tiff"},
      {"svg", "image/svg+xml"}, {"xml", "application/xml"},
  };
  auto it = kTypes.find(ext);
  return it == kTypes.end() ? "application/octet-stream" : it->second;
}

// The relationships of the inserted body, moved into this package: an
// internal target is copied under a fresh name, and every r:* attribute of
// the inserted XML is pointed at the new Id.
class RelationshipMover {
 public:
  RelationshipMover(const Package& source, std::string sourcePart, Package& target,
                    std::string targetPart)
      : source_(source),
        sourcePart_(std::move(sourcePart)),
        target_(target),
        targetPart_(std::move(targetPart)) {
    if (auto rels = source_.Read(RelsPartOf(sourcePart_))) ParseXml(*rels, rels_);
  }

  void Move(pugi::xml_node node) {
    for (pugi::xml_attribute a : node.attributes()) {
      if (std::strncmp(a.name(), "r:", 2) == 0 && *a.value()) a.set_value(NewId(a.value()).c_str());
    }
    for (pugi::xml_node child : node.children()) Move(child);
  }

 private:
  std::string NewId(const std::string& id) {
    if (auto it = moved_.find(id); it != moved_.end()) return it->second;
    pugi::xml_node r =
        rels_.child("Relationships").find_child_by_attribute("Relationship", "Id", id.c_str());
    if (!r) return id;
    const std::string type = r.attribute("Type").value();
    std::string target = r.attribute("Target").value();
    const bool external = std::strcmp(r.attribute("TargetMode").value(), "External") == 0;
    if (!external) target = CopyPart(ResolveTarget(sourcePart_, target));
    return moved_[id] = PutRelationship(target_, targetPart_, "", type, target, external);
  }

  // Copies the part into the target's media folder; returns the relative target.
  std::string CopyPart(const std::string& part) {
    auto bytes = source_.Read(part);
    if (!bytes) return part;
    const std::string base = part.substr(part.find_last_of('/') + 1);
    std::string name;
    for (int n = 1;; ++n) {
      name = "media/fragment" + std::to_string(n) + "_" + base;
      if (!target_.Has(ResolveTarget(targetPart_, name))) break;
    }
    const std::string full = ResolveTarget(targetPart_, name);
    target_.Write(full, std::move(*bytes));
    AddContentTypeOverride(target_, full, ContentTypeOf(full));
    return name;
  }

  const Package& source_;
  std::string sourcePart_;
  Package& target_;
  std::string targetPart_;
  pugi::xml_document rels_;
  std::map<std::string, std::string> moved_;
};

// How many positions a run-level node holds, counted as the story counts them.
long PositionsOf(pugi::xml_node runLevel, const FieldDisplay& display) {
  pugi::xml_document scratch;
  pugi::xml_node body = scratch.append_child("w:body");
  body.append_child("w:p").append_copy(runLevel);
  return BuildStoryIndex(body, display).length - 1;
}

// The source's paragraphs, trailing empty ones left out.
std::vector<pugi::xml_node> ParagraphsOf(pugi::xml_node body) {
  std::vector<pugi::xml_node> paragraphs;
  for (pugi::xml_node p : body.children("w:p")) paragraphs.push_back(p);
  while (!paragraphs.empty()) {
    const pugi::xml_node last = paragraphs.back();
    const bool empty = std::none_of(last.begin(), last.end(), [](pugi::xml_node c) {
      return std::strcmp(c.name(), "w:pPr") != 0;
    });
    if (!empty) break;
    paragraphs.pop_back();
  }
  return paragraphs;
}

// The namespaces the inserted XML uses, declared on this document's root;
// prefixes the source may ignore stay ignorable here.
void DeclareNamespacesOf(pugi::xml_node source, pugi::xml_node target) {
  for (pugi::xml_attribute a : source.attributes()) {
    if (std::strncmp(a.name(), "xmlns:", 6) == 0 && !target.attribute(a.name()))
      target.append_attribute(a.name()) = a.value();
  }
  const std::string ignorable = source.attribute("mc:Ignorable").value();
  if (ignorable.empty()) return;
  pugi::xml_attribute mine = target.attribute("mc:Ignorable");
  if (!mine) mine = target.append_attribute("mc:Ignorable");
  std::string merged = mine.value();
  std::istringstream prefixes(ignorable);
  for (std::string prefix; prefixes >> prefix;) {
    if ((" " + merged + " ").find(" " + prefix + " ") == std::string::npos)
      merged += (merged.empty() ? "" : " ") + prefix;
  }
  mine.set_value(merged.c_str());
}

// What a relationship of these kinds names belongs to the content it stands
// in; whatever is not left in the fragment's body goes.
bool ContentRelationship(const std::string& type) {
  static const char* const kKinds[] = {"image",
                                       "oleObject",
                                       "package",
                                       "chart",
                                       "hyperlink",
                                       "video",
                                       "audio",
                                       "media",
                                       "diagramData",
                                       "diagramLayout",
                                       "diagramQuickStyle",
                                       "diagramColors",
                                       "diagramDrawing"};
  const std::string kind = type.substr(type.find_last_of('/') + 1);
  return std::any_of(std::begin(kKinds), std::end(kKinds),
                     [&](const char* k) { return kind == k; });
}

// Whether any relationships part still names the part.
bool StillNamed(const Package& package, const std::string& part) {
  const std::string base = part.substr(part.find_last_of('/') + 1);
  for (const std::string& name : package.Parts()) {
    if (!name.ends_with(".rels")) continue;
    if (auto rels = package.Read(name); rels && rels->find(base) != std::string::npos) return true;
  }
  return false;
}

// The pictures and objects only the rest of the document used stay behind,
// so that a fragment is as small as what it holds.
void DropUnusedContent(Package& package, const std::string& mainPart, const std::string& body) {
  const std::string relsPart = RelsPartOf(mainPart);
  pugi::xml_document rels;
  auto bytes = package.Read(relsPart);
  if (!bytes || !ParseXml(*bytes, rels)) return;
  std::vector<std::string> dropped;
  pugi::xml_node root = rels.child("Relationships");
  for (pugi::xml_node r = root.first_child(); r;) {
    const pugi::xml_node next = r.next_sibling();
    const std::string id = r.attribute("Id").value();
    if (ContentRelationship(r.attribute("Type").value()) &&
        body.find("\"" + id + "\"") == std::string::npos) {
      if (std::strcmp(r.attribute("TargetMode").value(), "External") != 0)
        dropped.push_back(ResolveTarget(mainPart, r.attribute("Target").value()));
      root.remove_child(r);
    }
    r = next;
  }
  package.Write(relsPart, SerializeXml(rels));
  for (const std::string& part : dropped)
    if (!StillNamed(package, part)) package.Remove(part);
}

// A fragment is read without the document around it: its shapes are placed
// from the page corner again, where their paragraphs stood.
void PinShapesToPage(DocxHost& host, pugi::xml_node fragmentBody) {
  std::map<std::string, pugi::xml_node> originals;
  for (pugi::xml_node anchor : drawing::FindAnchors(host.DocumentXml()))
    originals[anchor.child("wp:docPr").attribute("id").value()] = anchor;
  for (pugi::xpath_node x : fragmentBody.select_nodes(".//wp:anchor")) {
    const pugi::xml_node copy = x.node();
    const auto original = originals.find(copy.child("wp:docPr").attribute("id").value());
    if (original == originals.end()) continue;
    for (const drawing::Axis axis : {drawing::Axis::kHorizontal, drawing::Axis::kVertical}) {
      if (!drawing::KeptFromParagraph(copy, axis)) continue;
      drawing::SetOffset(copy, axis, drawing::PageOffsetOf(host, original->second, axis));
      drawing::SetRelativeFrom(copy, axis, "page");
    }
  }
}

}  // namespace

void DocxDocument::ExportFragment(const Place& place, const Text& fileName) {
  pugi::xml_document fragment;
  fragment.append_copy(xml_.document_element());
  pugi::xml_node body = fragment.document_element().child("w:body");
  if (!body) throw DocxFileError("文件不是 Word 文档：找不到正文。");
  FillBody(body, Capture(place));
  PinShapesToPage(*this, body);
  Package copy = package_.Copy();
  const std::string xml = SerializeXml(fragment);
  DropUnusedContent(copy, mainPart_, xml);
  copy.Write(mainPart_, xml);
  copy.SaveTo(PathOf(fileName));
}

void DocxDocument::InsertFile(const Place& place, const Text& fileName) {
  std::optional<std::string> file = ReadWholeFile(PathOf(fileName));
  if (!file) throw FileNotFound();
  const Package source = Package::FromBytes(std::move(*file));
  const std::string sourcePart = MainDocumentPart(source);
  pugi::xml_document sourceXml;
  auto bytes = source.Read(sourcePart);
  if (!bytes || !ParseXml(*bytes, sourceXml))
    throw DocxFileError("文件不是 Word 文档：找不到正文部分。");
  pugi::xml_node body = sourceXml.document_element().child("w:body");
  DeclareNamespacesOf(sourceXml.document_element(), xml_.document_element());
  RelationshipMover relationships(source, sourcePart, package_, mainPart_);
  Story& story = *place.story;
  long pos = place.Start();
  story.Delete(pos, place.End());
  const long start = pos;
  const std::vector<pugi::xml_node> paragraphs = ParagraphsOf(body);
  for (size_t i = 0; i < paragraphs.size(); ++i) {
    if (i > 0) story.InsertParagraph(pos++);
    for (pugi::xml_node child : paragraphs[i].children()) {
      // Bookmarks (the caret kept in a saved file among them) stay behind.
      if (std::strcmp(child.name(), "w:pPr") == 0 ||
          std::strncmp(child.name(), "w:bookmark", 10) == 0 ||
          std::strcmp(child.name(), "w:proofErr") == 0)
        continue;
      relationships.Move(child);
      for (pugi::xpath_node x : child.select_nodes(".//wp:docPr"))
        x.node().attribute("id").set_value(NextDrawingId());
      const long positions = PositionsOf(child, *this);
      story.InsertInline(pos, child, positions);
      pos += positions;
    }
  }
  MarkChanged();
  place.span->start = start;
  place.span->end = pos;
}

}  // namespace word::docx
