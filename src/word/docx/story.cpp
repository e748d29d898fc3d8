#include "word/docx/story.h"

#include <algorithm>
#include <cstring>
#include <sstream>

#include "word/errors.h"
#include "word/types.h"

namespace word::docx {
namespace {

bool Is(pugi::xml_node n, const char* name) {
  return std::strcmp(n.name(), name) == 0;
}

bool IsMark(SegKind k) {
  return k == SegKind::ParaMark || k == SegKind::CellMark || k == SegKind::RowEnd;
}

bool HasContentBefore(pugi::xml_node e) {
  for (pugi::xml_node n = e.previous_sibling(); n; n = n.previous_sibling())
    if (n.type() == pugi::node_element && !Is(n, "w:rPr")) return true;
  return false;
}

bool HasContentAfter(pugi::xml_node e) {
  for (pugi::xml_node n = e.next_sibling(); n; n = n.next_sibling())
    if (n.type() == pugi::node_element) return true;
  return false;
}

// Moves `from` and everything after it into a new run placed after `run`.
pugi::xml_node SplitRunAt(pugi::xml_node run, pugi::xml_node from) {
  pugi::xml_node right = run.parent().insert_child_after("w:r", run);
  if (pugi::xml_node rPr = run.child("w:rPr")) right.append_copy(rPr);
  for (pugi::xml_node n = from; n;) {
    pugi::xml_node next = n.next_sibling();
    right.append_move(n);
    n = next;
  }
  return right;
}

// Splits a w:t or w:instrText in two at offset k; returns the second half.
pugi::xml_node SplitTextElement(pugi::xml_node e, size_t k) {
  std::u16string text = NodeText(e);
  pugi::xml_node tail = e.parent().insert_child_after(e.name(), e);
  SetNodeText(e, text.substr(0, k));
  SetNodeText(tail, text.substr(k));
  return tail;
}

void RemoveElement(pugi::xml_node e) {
  pugi::xml_node run = e.parent();
  run.remove_child(e);
  if (Is(run, "w:r")) {
    for (pugi::xml_node n : run.children())
      if (n.type() == pugi::node_element && !Is(n, "w:rPr")) return;
    run.parent().remove_child(run);
  }
}

std::string Key(pugi::xml_node rPr) {
  if (!rPr || !rPr.first_child()) return std::string();
  std::ostringstream out;
  for (pugi::xml_node c : rPr.children()) c.print(out, "", pugi::format_raw);
  return out.str();
}

// Splits the containers between a run-level node and its paragraph, so that
// the paragraph's child returned ends where the node ends.
pugi::xml_node LiftSplit(pugi::xml_node node, pugi::xml_node paragraph) {
  while (node && node.parent() != paragraph) {
    pugi::xml_node parent = node.parent();
    if (Is(parent, "w:sdtContent")) {
      node = parent.parent();
      continue;
    }
    if (HasContentAfter(node)) {
      pugi::xml_node right = parent.parent().insert_child_after(parent.name(), parent);
      for (pugi::xml_attribute a : parent.attributes())
        right.append_attribute(a.name()) = a.value();
      for (pugi::xml_node n = node.next_sibling(); n;) {
        pugi::xml_node next = n.next_sibling();
        right.append_move(n);
        n = next;
      }
    }
    node = parent;
  }
  return node;
}

bool IsDeletion(pugi::xml_node n) {
  return Is(n, "w:del") || Is(n, "w:moveFrom");
}

bool IsInsertion(pugi::xml_node n) {
  return Is(n, "w:ins") || Is(n, "w:moveTo");
}

// The outermost deletion (w:del, w:moveFrom) holding a run-level node, and
// with `insertionsToo` the outermost insertion: a tracked insertion goes
// beside other revisions, never into them.
pugi::xml_node RevisionAround(pugi::xml_node node, bool insertionsToo = false) {
  pugi::xml_node found;
  for (pugi::xml_node n = node.parent(); n && !Is(n, "w:p"); n = n.parent())
    if (IsDeletion(n) || (insertionsToo && IsInsertion(n))) found = n;
  return found;
}

// The run, or the node itself for content that stands outside runs.
pugi::xml_node RunLevelOf(const Segment& s) {
  return Is(s.node.parent(), "w:r") ? s.node.parent() : s.node;
}

// Deleted text is kept as w:delText (w:delInstrText for field code).
void MarkTextDeleted(pugi::xml_node run) {
  for (pugi::xml_node n : run.children()) {
    if (Is(n, "w:t")) n.set_name("w:delText");
    if (Is(n, "w:instrText")) n.set_name("w:delInstrText");
  }
}

// Splits the containers between a run-level node and `stop`, so that the
// child of `stop` returned starts where the node starts.
pugi::xml_node LiftSplitBefore(pugi::xml_node node, pugi::xml_node stop) {
  while (node && node.parent() != stop) {
    pugi::xml_node parent = node.parent();
    if (HasContentBefore(node)) {
      pugi::xml_node left = parent.parent().insert_child_before(parent.name(), parent);
      for (pugi::xml_attribute a : parent.attributes()) left.append_attribute(a.name()) = a.value();
      for (pugi::xml_node n = parent.first_child(); n != node;) {
        pugi::xml_node next = n.next_sibling();
        left.append_move(n);
        n = next;
      }
    }
    node = parent;
  }
  return node;
}

// The properties typed text takes: the source's, less change tracking, with
// the overlay written over them.
void TypedRunProperties(const TypingFormat& format, pugi::xml_node rPr) {
  static const char* const kSkip[] = {"w:rPrChange", "w:ins", "w:del", "w:moveFrom", "w:moveTo"};
  for (pugi::xml_node c : format.sourceRPr.children())
    if (std::none_of(std::begin(kSkip), std::end(kSkip), [&](const char* k) { return Is(c, k); }))
      rPr.append_copy(c);
  WriteRunProperties(rPr, format.overlay);
}

// A run holding text, with w:tab and w:br for tabs and line breaks.
void FillRun(pugi::xml_node run, const std::u16string& piece, const char* element) {
  size_t k = 0;
  while (k < piece.size()) {
    size_t special = piece.find_first_of(u"\t\v", k);
    if (special == std::u16string::npos) special = piece.size();
    if (special > k) SetNodeText(run.append_child(element), piece.substr(k, special - k));
    if (special < piece.size()) run.append_child(piece[special] == u'\t' ? "w:tab" : "w:br");
    k = special + 1;
  }
}

}  // namespace

void Story::Drop() {
  dropped_ = true;
  container_ = pugi::xml_node();
  index_ = StoryIndex();
  stale_ = false;
}

void Story::CheckLive() const {
  if (dropped_) throw ObjectDeleted();
}

const StoryIndex& Story::Index() {
  CheckLive();
  if (stale_) {
    index_ = BuildStoryIndex(container_, owner_);
    stale_ = false;
  }
  return index_;
}

std::shared_ptr<Span> Story::Track(long start, long end) {
  spans_.erase(std::remove_if(spans_.begin(), spans_.end(),
                              [](const std::weak_ptr<Span>& w) { return w.expired(); }),
               spans_.end());
  auto span = std::make_shared<Span>(Span{start, end});
  spans_.push_back(span);
  return span;
}

void Story::Changed() {
  stale_ = true;
  owner_.StoryChanged();
}

void Story::AdjustInsert(long pos, long count) {
  for (auto& w : spans_) {
    auto s = w.lock();
    if (!s) continue;
    if (s->start >= pos) s->start += count;
    if (s->end > pos) s->end += count;
    s->end = std::max(s->end, s->start);
  }
}

void Story::AdjustDelete(long start, long end) {
  auto move = [&](long x) { return x <= start ? x : x >= end ? x - (end - start) : start; };
  for (auto& w : spans_) {
    if (auto s = w.lock()) {
      s->start = move(s->start);
      s->end = move(s->end);
    }
  }
}

std::optional<Segment> Story::RunContentAt(long pos) {
  const StoryIndex& ix = Index();
  if (pos < 0 || pos >= ix.length) return std::nullopt;
  const Segment& s = ix.segments[ix.SegmentAt(pos)];
  if (IsMark(s.kind)) return std::nullopt;
  return s;
}

pugi::xml_node Story::SplitBefore(long pos) {
  const std::optional<Segment> found = RunContentAt(pos);
  if (!found) return {};
  const Segment& s = *found;
  pugi::xml_node e = s.node;
  if ((s.kind == SegKind::Text || s.kind == SegKind::Code) && pos > s.pos) {
    e = SplitTextElement(e, static_cast<size_t>(pos - s.pos));
    Changed();
  }
  if (!Is(e.parent(), "w:r")) return e;
  if (!HasContentBefore(e)) return e.parent();
  Changed();
  return SplitRunAt(e.parent(), e);
}

pugi::xml_node Story::SplitAfter(long pos) {
  const std::optional<Segment> found = RunContentAt(pos);
  if (!found) return {};
  const Segment& s = *found;
  pugi::xml_node e = s.node;
  if ((s.kind == SegKind::Text || s.kind == SegKind::Code) && pos + 1 < s.pos + s.length) {
    SplitTextElement(e, static_cast<size_t>(pos + 1 - s.pos));
    Changed();
  }
  if (!Is(e.parent(), "w:r")) return e;
  if (HasContentAfter(e)) {
    SplitRunAt(e.parent(), e.next_sibling());
    Changed();
  }
  return e.parent();
}

pugi::xml_node Story::InsertInline(long pos, const pugi::xml_node& prototype, long positions) {
  pos = std::clamp(pos, 0L, std::max(0L, Index().length - 1));
  pugi::xml_node placed;
  if (Is(prototype, "w:r") && owner_.TracksRevisions()) {
    pugi::xml_document wrapper;
    pugi::xml_node ins = wrapper.append_child("w:ins");
    owner_.StampRevision(ins);
    ins.append_copy(prototype);
    placed = PlaceInline(pos, ins, true).first_child();
  } else {
    placed = PlaceInline(pos, prototype, false);
  }
  Changed();
  if (positions > 0) AdjustInsert(pos, positions);
  return placed;
}

pugi::xml_node Story::PlaceInline(long pos, const pugi::xml_node& prototype, bool tracked) {
  const StoryIndex& ix = Index();
  if (ix.length == 0) {
    pugi::xml_node sectPr = container_.child("w:sectPr");
    pugi::xml_node p =
        sectPr ? container_.insert_child_before("w:p", sectPr) : container_.append_child("w:p");
    return p.append_copy(prototype);
  }
  if (pos > 0 && !IsMark(ix.segments[ix.SegmentAt(pos - 1)].kind)) {
    pugi::xml_node after = SplitAfter(pos - 1);
    // Nothing typed may land in a tracked deletion: it goes behind it.
    if (pugi::xml_node revision = RevisionAround(after, tracked))
      after = LiftSplit(after, revision.parent());
    return after.parent().insert_copy_after(prototype, after);
  }
  const Segment& s = ix.segments[ix.SegmentAt(pos)];
  if (s.kind == SegKind::RowEnd) throw CommandNotValid();
  if (IsMark(s.kind)) {
    pugi::xml_node paragraph = s.node;
    return paragraph.append_copy(prototype);
  }
  pugi::xml_node before = SplitBefore(pos);
  if (pugi::xml_node revision = RevisionAround(before, tracked))
    before = LiftSplitBefore(before, revision.parent());
  return before.parent().insert_copy_before(prototype, before);
}

pugi::xml_node Story::InsertMarker(long pos, const char* name) {
  const StoryIndex& ix = Index();
  pos = std::clamp(pos, 0L, std::max(0L, ix.length - 1));
  const bool afterMark = pos == 0 || IsMark(ix.segments[ix.SegmentAt(pos - 1)].kind);
  const Segment here = ix.segments.empty() ? Segment() : ix.segments[ix.SegmentAt(pos)];
  if (afterMark && here.kind == SegKind::RowEnd) {
    // A row may hold bookmarks behind its last cell: the end-of-row mark's place.
    pugi::xml_node row = here.node;
    pugi::xml_node marker = row.append_child(name);
    Changed();
    return marker;
  }
  pugi::xml_document scratch;
  scratch.append_child(name);
  return InsertInline(pos, scratch.first_child(), 0);
}

pugi::xml_node Story::AppendObjectRun(pugi::xml_node paragraph, const pugi::xml_node& run) {
  const StoryIndex& ix = Index();
  auto mark = std::find_if(ix.segments.begin(), ix.segments.end(),
                           [&](const Segment& s) { return s.node == paragraph && IsMark(s.kind); });
  const long pos = mark == ix.segments.end() ? -1 : mark->pos;
  pugi::xml_document format;
  if (pos >= 0 && !run.child("w:rPr"))
    TypedRunProperties({FormatSourceAt(pos), {}}, format.append_child("w:rPr"));
  pugi::xml_node placed = paragraph.append_copy(run);
  if (format.first_child().first_child()) placed.prepend_copy(format.first_child());
  Changed();
  if (pos >= 0) AdjustInsert(pos, 1);
  return placed;
}

void Story::RemoveRunLevel(pugi::xml_node node) {
  auto holds = [&](pugi::xml_node n) {
    for (; n && n != container_; n = n.parent())
      if (n == node) return true;
    return false;
  };
  long start = -1, end = -1;
  for (const Segment& s : Index().segments) {
    if (holds(s.node)) {
      if (start < 0) start = s.pos;
      end = s.pos + s.length;
    } else if (start >= 0) {
      break;
    }
  }
  owner_.Removing(*this, std::max(start, 0L), node);
  node.parent().remove_child(node);
  Changed();
  if (start >= 0) AdjustDelete(start, end);
}

namespace {

pugi::xml_node RunPropertiesOfSegment(const Segment& s) {
  if (s.kind == SegKind::RowEnd) return {};
  if (IsMark(s.kind)) return s.node.child("w:pPr").child("w:rPr");
  pugi::xml_node run = Is(s.node.parent(), "w:r") ? s.node.parent() : pugi::xml_node();
  return run ? run.child("w:rPr") : pugi::xml_node();
}

}  // namespace

pugi::xml_node Story::FormatSourceAt(long pos) {
  const StoryIndex& ix = Index();
  if (ix.length == 0) return {};
  pos = std::clamp(pos, 0L, ix.length - 1);
  if (pos > 0 && !IsMark(ix.segments[ix.SegmentAt(pos - 1)].kind))
    return RunPropertiesOfSegment(ix.segments[ix.SegmentAt(pos - 1)]);
  return RunPropertiesOfSegment(ix.segments[ix.SegmentAt(pos)]);
}

pugi::xml_node Story::ReplacementFormat(long start, long end) {
  const StoryIndex& ix = Index();
  if (start >= end || start < 0 || start >= ix.length) return FormatSourceAt(start);
  return RunPropertiesOfSegment(ix.segments[ix.SegmentAt(start)]);
}

void Story::InsertPiece(long pos, const std::u16string& piece, pugi::xml_node rPr, bool forceCode) {
  const StoryIndex& ix = Index();
  const Segment* prev = pos > 0 ? &ix.segments[ix.SegmentAt(pos - 1)] : nullptr;
  const char* element = forceCode || (prev && prev->codeAfter) ? "w:instrText" : "w:t";
  bool plain = piece.find_first_of(u"\t\v") == std::u16string::npos;
  if (plain && JoinsText(prev, element, rPr)) {
    std::u16string t = NodeText(prev->node);
    t.insert(static_cast<size_t>(pos - prev->pos), piece);
    SetNodeText(prev->node, t);
    Changed();
  } else {
    pugi::xml_document proto;
    pugi::xml_node run = proto.append_child("w:r");
    if (rPr.first_child()) run.append_copy(rPr);
    FillRun(run, piece, element);
    InsertInline(pos, run, 0);
  }
  AdjustInsert(pos, static_cast<long>(piece.size()));
}

// Text typed behind text of the same format joins its element; with revisions
// tracked, only the author's own insertion.
bool Story::JoinsText(const Segment* prev, const char* element, pugi::xml_node rPr) {
  if (!prev || !Is(prev->node, element) || !Is(prev->node.parent(), "w:r")) return false;
  pugi::xml_node run = prev->node.parent();
  if (Key(run.child("w:rPr")) != Key(rPr)) return false;
  return !owner_.TracksRevisions() || OwnInsertion(run);
}

bool Story::OwnInsertion(pugi::xml_node runLevel) const {
  pugi::xml_node parent = runLevel.parent();
  return Is(parent, "w:ins") && parent.attribute("w:author").value() == owner_.RevisionAuthor();
}

void Story::InsertText(long pos, const std::u16string& text, const TypingFormat& format,
                       bool forceCode) {
  pugi::xml_document scratch;
  pugi::xml_node rPr = scratch.append_child("w:rPr");
  TypedRunProperties(format, rPr);
  size_t i = 0;
  while (i <= text.size()) {
    size_t stop = text.find_first_of(u"\r\n", i);
    if (stop == std::u16string::npos) stop = text.size();
    pos = std::clamp(pos, 0L, std::max(0L, Length() - 1));
    if (stop > i) {
      InsertPiece(pos, text.substr(i, stop - i), rPr, forceCode);
      pos += static_cast<long>(stop - i);
    }
    if (stop >= text.size()) break;
    InsertParagraph(pos++);
    i = stop + 1;
    if (text[stop] == u'\r' && i < text.size() && text[i] == u'\n') ++i;
  }
}

void Story::InsertParagraph(long pos) {
  const StoryIndex& ix = Index();
  if (ix.length == 0) {
    InsertText(0, u" ", {});
    Delete(0, 1);
  }
  pos = std::clamp(pos, 0L, std::max(0L, Index().length - 1));
  const Segment mark = Index().segments[Index().ParagraphOf(pos)];
  if (mark.kind == SegKind::RowEnd) throw CommandNotValid();
  pugi::xml_node p = mark.node;
  bool atStart = pos == 0 || IsMark(Index().segments[Index().SegmentAt(pos - 1)].kind);
  pugi::xml_node last = atStart ? pugi::xml_node() : LiftSplit(SplitAfter(pos - 1), p);
  pugi::xml_node left = p.parent().insert_child_before("w:p", p);
  if (pugi::xml_node pPr = p.child("w:pPr")) {
    pugi::xml_node copy = left.append_copy(pPr);
    copy.remove_child("w:sectPr");
  }
  if (last) {
    for (pugi::xml_node n = p.first_child(); n;) {
      pugi::xml_node next = n.next_sibling();
      if (!Is(n, "w:pPr")) left.append_move(n);
      if (n == last) break;
      n = next;
    }
  }
  Changed();
  AdjustInsert(pos, 1);
}

void Story::DeleteSegmentPart(const Segment& s, long from, long to) {
  if (s.kind == SegKind::Text || s.kind == SegKind::Code) {
    std::u16string text = NodeText(s.node);
    text.erase(static_cast<size_t>(from - s.pos), static_cast<size_t>(to - from));
    if (text.empty())
      RemoveElement(s.node);
    else
      SetNodeText(s.node, text);
  } else if (Is(s.node.parent(), "w:r")) {
    owner_.Removing(*this, s.pos, s.node);
    RemoveElement(s.node);
  } else {
    owner_.Removing(*this, s.pos, s.node);
    s.node.parent().remove_child(s.node);
  }
}

// A simple field goes only as a whole; its result text goes like any text.
void Story::DeleteSimpleField(const Segment& begin, long start, long end) {
  if (begin.kind != SegKind::FieldBegin || begin.pos < start) return;
  for (const FieldSpan& f : Index().fields) {
    if (f.begin != begin.node) continue;
    if (f.endPos >= end) return;
    break;
  }
  // What is left of it once its result went: begin, code, separator, end.
  long left =
      3 + static_cast<long>(SegmentText(index_.segments[index_.SegmentAt(begin.pos + 1)]).size());
  pugi::xml_node node = begin.node;
  owner_.Removing(*this, begin.pos, node);
  node.parent().remove_child(node);
  AdjustDelete(begin.pos, begin.pos + left);
}

bool Story::MergeParagraphAt(const Segment& mark) {
  pugi::xml_node p = mark.node;
  pugi::xml_node next = p.next_sibling();
  while (next && next.type() != pugi::node_element) next = next.next_sibling();
  if (!next || !Is(next, "w:p") || p.child("w:pPr").child("w:sectPr")) return false;
  pugi::xml_node anchor = next.child("w:pPr");
  for (pugi::xml_node n = p.first_child(); n;) {
    pugi::xml_node following = n.next_sibling();
    if (!Is(n, "w:pPr")) anchor = anchor ? next.insert_move_after(n, anchor) : next.prepend_move(n);
    n = following;
  }
  p.parent().remove_child(p);
  return true;
}

void Story::Delete(long start, long end) {
  if (owner_.TracksRevisions()) {
    TrackDeletion(start, end);
  } else {
    DeleteSegments(start, end, false);
  }
}

void Story::DeleteSegments(long start, long end, bool onlyOwnInsertions) {
  const StoryIndex& ix = Index();
  start = std::max(0L, start);
  end = std::min(end, ix.length);
  if (start >= end) return;
  std::vector<Segment> doomed;
  for (size_t i = ix.SegmentAt(start); i < ix.segments.size() && ix.segments[i].pos < end; ++i)
    doomed.push_back(ix.segments[i]);
  for (auto it = doomed.rbegin(); it != doomed.rend(); ++it) {
    const Segment& s = *it;
    long from = std::max(start, s.pos), to = std::min(end, s.pos + s.length);
    if (s.kind == SegKind::CellMark || s.kind == SegKind::RowEnd) continue;
    if (onlyOwnInsertions && (IsMark(s.kind) || !OwnInsertion(RunLevelOf(s)))) continue;
    if (Is(s.node, "w:fldSimple")) {
      DeleteSimpleField(s, start, end);
      continue;
    }
    if (s.kind == SegKind::ParaMark) {
      if (!MergeParagraphAt(s)) continue;
    } else {
      DeleteSegmentPart(s, from, to);
    }
    AdjustDelete(from, to);
  }
  Changed();
}

void Story::TrackDeletion(long start, long end) {
  start = std::max(0L, start);
  end = std::min(end, Length());
  if (start >= end) return;
  SplitBefore(start);
  SplitAfter(end - 1);
  const StoryIndex& ix = Index();
  for (size_t i = ix.SegmentAt(start); i < ix.segments.size() && ix.segments[i].pos < end; ++i) {
    const Segment& s = ix.segments[i];
    if (s.kind == SegKind::ParaMark) {
      pugi::xml_node paragraph = s.node;
      pugi::xml_node pPr = paragraph.child("w:pPr");
      if (!pPr) pPr = paragraph.prepend_child("w:pPr");
      pugi::xml_node rPr = pPr.child("w:rPr");
      if (!rPr)
        rPr = pPr.child("w:sectPr") ? pPr.insert_child_before("w:rPr", pPr.child("w:sectPr"))
                                    : pPr.append_child("w:rPr");
      if (!rPr.child("w:del")) owner_.StampRevision(rPr.append_child("w:del"));
      continue;
    }
    pugi::xml_node run = RunLevelOf(s);
    if (!Is(run, "w:r") || OwnInsertion(run) || RevisionAround(run)) continue;
    pugi::xml_node del = run.parent().insert_child_before("w:del", run);
    owner_.StampRevision(del);
    del.append_move(run);
    MarkTextDeleted(run);
  }
  Changed();
  DeleteSegments(start, end, true);
}

void Story::ApplyFormat(long start, long end, const CharFormat& format) {
  start = std::max(0L, start);
  end = std::min(end, Length());
  if (start >= end || format.Empty()) return;
  SplitBefore(start);
  SplitAfter(end - 1);
  const StoryIndex& ix = Index();
  pugi::xml_node lastRun;
  for (size_t i = ix.SegmentAt(start); i < ix.segments.size() && ix.segments[i].pos < end; ++i) {
    pugi::xml_node run = ix.segments[i].node.parent();
    if (IsMark(ix.segments[i].kind) || !Is(run, "w:r") || run == lastRun) continue;
    WriteRunProperties(RunPropertiesOf(run), format);
    lastRun = run;
  }
  Changed();
}

void Story::TextToCode(long start, long end) {
  if (start >= end) return;
  SplitBefore(start);
  SplitAfter(end - 1);
  const StoryIndex& ix = Index();
  for (size_t i = ix.SegmentAt(start); i < ix.segments.size() && ix.segments[i].pos < end; ++i)
    if (ix.segments[i].kind == SegKind::Text) {
      pugi::xml_node text = ix.segments[i].node;
      text.set_name("w:instrText");
    }
  Changed();
}

}  // namespace word::docx
