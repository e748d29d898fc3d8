#pragma once
// A stand-in for the text engine: a document.xml in memory with one paragraph
// that takes the anchors, and a record of what the shape layer asked of it.

#include <optional>
#include <sstream>
#include <string>

#include <pugixml.hpp>

#include "word/docx/host/docx_host.h"

namespace shapes_test {

inline constexpr const char* kEmptyDocument =
    "<w:document xmlns:w=\"http://schemas.openxmlformats.org/wordprocessingml/2006/main\">"
    "<w:body><w:p><w:r><w:t>caret</w:t></w:r></w:p><w:sectPr/></w:body></w:document>";

class TestHost : public word::docx::DocxHost {
 public:
  explicit TestHost(const std::string& xml = kEmptyDocument) { document.load_string(xml.c_str()); }

  pugi::xml_document& DocumentXml() override { return document; }
  pugi::xml_node CaretParagraph() override {
    return document.document_element().child("w:body").child("w:p");
  }
  unsigned NextDrawingId() override { return ++lastId; }
  void MarkChanged() override { ++changes; }
  pugi::xml_node InsertAnchorRun(pugi::xml_node paragraph, const pugi::xml_node& run) override {
    return paragraph.append_copy(run);
  }
  void RemoveAnchorRun(pugi::xml_node node) override {
    live.Removing(node);
    node.parent().remove_child(node);
  }
  word::docx::LiveAnchors& Live() override { return live; }
  std::unique_ptr<word::Range> StoryRange(pugi::xml_node txbxContent) override {
    lastStory = txbxContent;
    return nullptr;
  }
  void SelectShapes(const std::vector<pugi::xml_node>& anchors, bool replace) override {
    live.Select(anchors, replace);
  }
  std::vector<pugi::xml_node> SelectedShapes() override { return live.Selected(); }
  std::optional<float> OriginOf(pugi::xml_node, word::docx::OriginEdge edge) override {
    if (!origin) return std::nullopt;
    return edge == word::docx::OriginEdge::kColumnLeft ? origin->columnLeft : origin->top;
  }

  pugi::xml_document document;
  // Where the text engine would put the caret's paragraph.
  struct Origin {
    float columnLeft = 0, top = 0;
  };
  std::optional<Origin> origin;
  unsigned lastId = 0;
  int changes = 0;
  pugi::xml_node lastStory;
  word::docx::LiveAnchors live;
};

// The node's markup on one line, without indentation.
inline std::string Markup(pugi::xml_node node) {
  std::ostringstream out;
  node.print(out, "", pugi::format_raw);
  return out.str();
}

}  // namespace shapes_test
