#include "double/state.h"

#include <algorithm>

namespace comdouble {

bool Story::Visible(long pos) const {
  long id = chars[pos].field;
  if (!id) return true;
  for (const FieldState& f : fields) {
    if (f.id == id) return f.showCodes;
  }
  return true;
}

FieldState* Story::FieldOf(long id) {
  for (FieldState& f : fields) {
    if (f.id == id) return &f;
  }
  return nullptr;
}

DocumentState& State::ActiveDocument() {
  if (documents.empty()) throw WordFault{4248, "该命令无效，因为没有打开的文档。"};
  return *documents[active];
}

DocumentState& State::AddDocument(const Text& fullName, const Text& attachedTemplate) {
  auto document = std::make_unique<DocumentState>();
  document->number = ++madeDocuments;
  document->fullName = fullName;
  document->attachedTemplate = attachedTemplate;
  document->body.chars = Chars(u"\r", Format{});  // a document ends in a paragraph mark
  documents.push_back(std::move(document));
  active = documents.size() - 1;
  selection->story = &documents.back()->body;
  selection->start = selection->end = 0;
  selectedShapes.clear();
  typing.reset();
  return *documents.back();
}

SpanPtr State::Hold(Story* story, long start, long end) {
  auto span = std::make_shared<Span>(Span{story, start, end});
  std::erase_if(live, [](const auto& w) { return w.expired(); });
  live.push_back(span);
  return span;
}

namespace {

// Where a position goes when [start, end) becomes length characters: behind
// the edit it shifts; inside it, a start stays at the edit and an end follows
// the new text, so a range that held the old text holds the new.
long Moved(long pos, long start, long end, long length, bool isEnd) {
  if (pos >= end && !(pos == start && !isEnd)) return pos + length - (end - start);
  if (pos > start) return isEnd ? start + length : start;
  return pos;
}

}  // namespace

void State::Replace(Story& story, long start, long end, const std::vector<Char>& with) {
  story.chars.erase(story.chars.begin() + start, story.chars.begin() + end);
  story.chars.insert(story.chars.begin() + start, with.begin(), with.end());
  std::erase_if(story.fields, [&](const FieldState& f) {
    return std::none_of(story.chars.begin(), story.chars.end(),
                        [&](const Char& c) { return c.field == f.id; });
  });
  auto move = [&](Span& s) {
    if (s.story != &story) return;
    long length = static_cast<long>(with.size());
    long newStart = Moved(s.start, start, end, length, false);
    s.end = std::max(newStart, Moved(s.end, start, end, length, true));
    s.start = newStart;
  };
  move(*selection);
  for (auto& weak : live) {
    if (auto span = weak.lock()) move(*span);
  }
}

std::shared_ptr<ShapeState> State::NewShape(DocumentState& document, long type, float left,
                                            float top, float width, float height) {
  auto shape = std::make_shared<ShapeState>();
  shape->serial = nextSerial++;
  shape->type = type;
  shape->left = left, shape->top = top, shape->width = width, shape->height = height;
  shape->text.chars = Chars(u"\r", Format{});
  document.shapes.push_back(shape);
  return shape;
}

void State::RemoveShape(const ShapeState& shape) {
  for (auto& document : documents) {
    std::erase_if(document->shapes, [&](const auto& s) { return s.get() == &shape; });
  }
  std::erase_if(selectedShapes, [&](const auto& s) { return s.get() == &shape; });
}

std::vector<Char> Chars(const Text& text, const Format& format) {
  std::vector<Char> chars;
  for (char16_t c : text) chars.push_back(Char{c, format});
  return chars;
}

std::vector<long> VisiblePositions(const Story& story, long start, long end) {
  std::vector<long> positions;
  for (long p = std::max(start, 0L); p < end && p < static_cast<long>(story.chars.size()); ++p) {
    if (story.Visible(p)) positions.push_back(p);
  }
  return positions;
}

Text VisibleText(const Story& story, long start, long end) {
  Text text;
  for (long p : VisiblePositions(story, start, end)) text += story.chars[p].ch;
  return text;
}

Format FormatAt(const Story& story, long pos) {
  const auto& chars = story.chars;
  if (pos > 0 && pos <= static_cast<long>(chars.size()) && chars[pos - 1].ch != u'\r')
    return chars[pos - 1].format;
  if (pos < static_cast<long>(chars.size())) return chars[pos].format;
  return Format{};
}

WordFault NoSuchMember() {
  return WordFault{5941, "集合中所需的成员不存在。"};
}

}  // namespace comdouble
