#include <cstring>

#include "word/docx/host/xml_order.h"
#include "word/docx/range_impl.h"
#include "word/errors.h"

namespace word::docx {
namespace {

pugi::xml_node JcOf(pugi::xml_node p) {
  pugi::xml_node pPr = p.child("w:pPr");
  if (!pPr) pPr = p.prepend_child("w:pPr");
  return EnsureChild(pPr, "w:jc", kParagraphPropertiesOrder);
}

}  // namespace

std::vector<pugi::xml_node> AnchorsIn(Story& story, long start, long end) {
  std::vector<pugi::xml_node> anchors;
  const StoryIndex& ix = story.Index();
  if (ix.length == 0) return anchors;
  for (size_t i = ix.SegmentAt(std::min(start, ix.length - 1));
       i < ix.segments.size() && ix.segments[i].pos < end; ++i) {
    const Segment& s = ix.segments[i];
    if (s.kind != SegKind::Object) continue;
    pugi::xml_node drawing = std::strcmp(s.node.name(), "mc:AlternateContent") == 0
                                 ? s.node.child("mc:Choice").child("w:drawing")
                                 : s.node;
    if (pugi::xml_node anchor = drawing.child("wp:anchor")) anchors.push_back(anchor);
  }
  return anchors;
}

std::vector<pugi::xml_node> RangeParagraphFormat::Paragraphs() const {
  const StoryIndex& ix = place_.story->Index();
  std::vector<pugi::xml_node> out;
  if (ix.length == 0) return out;
  size_t first = ix.ParagraphOf(std::min(place_.Start(), ix.length - 1));
  size_t last = ix.ParagraphOf(std::min(std::max(place_.Start(), place_.End() - 1), ix.length - 1));
  for (size_t i = first; i <= last; ++i) {
    SegKind k = ix.segments[i].kind;
    if (k == SegKind::ParaMark || k == SegKind::CellMark) out.push_back(ix.segments[i].node);
  }
  return out;
}

WdParagraphAlignment RangeParagraphFormat::Alignment() const {
  auto paragraphs = Paragraphs();
  if (paragraphs.empty()) return wdAlignParagraphLeft;
  std::string v = paragraphs.front().child("w:pPr").child("w:jc").attribute("w:val").value();
  if (v == "center") return wdAlignParagraphCenter;
  if (v == "right" || v == "end") return wdAlignParagraphRight;
  return wdAlignParagraphLeft;
}

void RangeParagraphFormat::SetAlignment(WdParagraphAlignment alignment) {
  const char* value = alignment == wdAlignParagraphCenter  ? "center"
                      : alignment == wdAlignParagraphRight ? "right"
                                                           : "left";
  for (pugi::xml_node p : Paragraphs()) {
    pugi::xml_node jc = JcOf(p);
    jc.remove_attribute("w:val");
    jc.append_attribute("w:val") = value;
  }
  place_.doc->MarkChanged();
}

std::vector<long> RangeCharacters::Positions() const {
  const StoryIndex& ix = place_.story->Index();
  std::vector<long> out;
  const long start = place_.Start(), end = std::min(place_.End(), ix.length);
  if (start >= end) return out;
  for (size_t i = ix.SegmentAt(start); i < ix.segments.size() && ix.segments[i].pos < end; ++i) {
    const Segment& s = ix.segments[i];
    if (s.hidden) continue;
    for (long p = std::max(start, s.pos); p < std::min(end, s.pos + s.length); ++p)
      out.push_back(p);
  }
  return out;
}

long RangeCharacters::Count() const {
  return static_cast<long>(Positions().size());
}

std::unique_ptr<word::Range> RangeCharacters::Item(long index) {
  auto positions = Positions();
  if (index < 1 || index > static_cast<long>(positions.size())) throw ItemNotFound();
  long p = positions[static_cast<size_t>(index - 1)];
  return std::make_unique<DocxRange>(place_.doc->MakePlace(*place_.story, p, p + 1));
}

}  // namespace word::docx
