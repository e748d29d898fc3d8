#include "word/docx/auto_text.h"

#include <cstring>

#include "word/docx/range_impl.h"
#include "word/errors.h"

namespace word::docx {
namespace {

// One piece of a stored range: a run holding part of it, or a paragraph mark.
struct Piece {
  std::shared_ptr<pugi::xml_document> run;  // null for a paragraph mark
  long positions = 1;
};

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

bool InFieldCode(Story& story, long pos) {
  const StoryIndex& ix = story.Index();
  return pos > 0 && pos <= ix.length && ix.segments[ix.SegmentAt(pos - 1)].codeAfter;
}

// An entry of one unformatted run of text.
std::vector<Piece> TextPieces(const Text& text) {
  auto doc = std::make_shared<pugi::xml_document>();
  SetNodeText(doc->append_child("w:r").append_child("w:t"), text);
  return {{doc, static_cast<long>(text.size())}};
}

class Entry : public word::AutoTextEntry {
 public:
  Entry(std::map<Text, std::vector<Piece>>& entries, Text name)
      : entries_(entries), name_(std::move(name)) {}
  void Insert(word::Range& where, bool) override {
    const Place& place = PlaceOf(where);
    Story& story = *place.story;
    const long start = place.Start();
    story.Delete(start, place.End());
    long pos = start;
    for (const Piece& piece : entries_.at(name_)) {
      if (piece.run)
        story.InsertInline(pos, piece.run->first_child(), piece.positions);
      else
        story.InsertParagraph(pos);
      pos += piece.positions;
    }
    // Inside a field's code the entry's text becomes code, as Word shows it.
    if (InFieldCode(story, start)) story.TextToCode(start, pos);
  }
  void Delete() override { entries_.erase(name_); }

 private:
  std::map<Text, std::vector<Piece>>& entries_;
  Text name_;
};

class Entries : public word::AutoTextEntries {
 public:
  explicit Entries(const std::vector<std::pair<Text, Text>>& held) {
    for (const auto& [name, text] : held) entries_[name] = TextPieces(text);
  }
  void Add(const Text& name, word::Range& range) override {
    entries_[name] = Capture(PlaceOf(range));
  }
  std::unique_ptr<word::AutoTextEntry> Item(const Text& name) override {
    if (!entries_.count(name)) throw ItemNotFound();
    return std::make_unique<Entry>(entries_, name);
  }

 private:
  std::map<Text, std::vector<Piece>> entries_;
};

}  // namespace

std::unique_ptr<word::AutoTextEntries> MakeAutoTextEntries(
    const std::vector<std::pair<Text, Text>>& held) {
  return std::make_unique<Entries>(held);
}

}  // namespace word::docx
