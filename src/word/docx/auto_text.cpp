#include "word/docx/auto_text.h"

#include <cstring>

#include "word/docx/range_capture.h"
#include "word/docx/range_impl.h"
#include "word/errors.h"

namespace word::docx {
namespace {

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
