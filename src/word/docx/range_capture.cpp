#include "word/docx/range_capture.h"

#include <cstring>

#include "word/docx/range_impl.h"
#include "word/errors.h"

namespace word::docx {

const Place& PlaceOf(word::Range& range) {
  auto* holder = dynamic_cast<const PlaceHolder*>(&range);
  if (!holder) throw ObjectNotAvailable();
  return holder->GetPlace();
}

std::vector<Piece> Capture(const Place& place) {
  std::vector<Piece> pieces;
  const StoryIndex& ix = place.story->Index();
  const long start = place.Start(), end = std::min(place.End(), ix.length);
  if (start >= end) return pieces;
  for (size_t i = ix.SegmentAt(start); i < ix.segments.size() && ix.segments[i].pos < end; ++i) {
    const Segment& s = ix.segments[i];
    if (s.kind == SegKind::ParaMark) {
      pieces.push_back({nullptr, 1});
      continue;
    }
    // Marks of simple fields stay behind: their result comes as plain runs.
    if (s.kind == SegKind::CellMark || s.kind == SegKind::RowEnd ||
        std::strcmp(s.node.name(), "w:fldSimple") == 0)
      continue;
    auto doc = std::make_shared<pugi::xml_document>();
    pugi::xml_node run = doc->append_child("w:r");
    pugi::xml_node source = s.node.parent();
    bool inRun = std::strcmp(source.name(), "w:r") == 0;
    if (inRun && source.child("w:rPr")) run.append_copy(source.child("w:rPr"));
    long from = std::max(start, s.pos), to = std::min(end, s.pos + s.length);
    if (s.kind == SegKind::Text || s.kind == SegKind::Code) {
      pugi::xml_node t = run.append_child(s.node.name());
      SetNodeText(t, NodeText(s.node).substr(static_cast<size_t>(from - s.pos),
                                             static_cast<size_t>(to - from)));
    } else if (inRun) {
      run.append_copy(s.node);
    } else {
      doc->reset();
      doc->append_copy(s.node);
    }
    pieces.push_back({doc, to - from});
  }
  return pieces;
}

}  // namespace word::docx
