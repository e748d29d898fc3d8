#include "word/docx/selection.h"

#include <cstdio>
#include <cstring>

#include "runtime/utf8.h"

#include "word/docx/inline_shapes.h"
#include "word/docx/layout_estimate.h"

namespace word::docx {
namespace {

bool IsWordChar(char16_t c) {
  return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') ||
         c >= 0x80;
}

}  // namespace

void DocxSelection::SetPlace(Story& story, long start, long end) {
  if (&story != place_.story.get()) place_ = place_.doc->MakePlace(story, start, end);
  place_.span->start = std::min(start, end);
  place_.span->end = std::max(start, end);
  activeAtStart_ = false;
  place_.doc->ClearShapeSelection();
  Moved();
}

void DocxSelection::LeaveHiddenCodes(Story& story, const std::vector<FieldSpan>& fields) {
  if (&story != place_.story.get()) return;
  for (const FieldSpan& f : fields) {
    for (long* end : {&place_.span->start, &place_.span->end})
      if (*end > f.beginPos && *end <= f.endPos) *end = f.endPos + 1;
  }
  place_.span->end = std::max(place_.span->start, place_.span->end);
}

word::Font& DocxSelection::Font() {
  if (!font_) font_ = std::make_unique<RangeFont>(place_, &pending_);
  return *font_;
}

void DocxSelection::SetStart(long position) {
  RangeImpl::SetStart(position);
  Moved();
}

void DocxSelection::SetEnd(long position) {
  RangeImpl::SetEnd(position);
  Moved();
}

void DocxSelection::Collapse(WdCollapseDirection direction) {
  RangeImpl::Collapse(direction);
  Moved();
}

void DocxSelection::ReplaceSelectionForTyping() {
  if (Start() < End()) place_.story->Delete(Start(), End());
  place_.span->end = place_.span->start;
}

void DocxSelection::TypeText(const word::Text& text) {
  pugi::xml_document keep;  // the format survives deleting what it came from
  if (pugi::xml_node source = place_.story->ReplacementFormat(Start(), End()))
    keep.append_copy(source);
  ReplaceSelectionForTyping();
  long at = Start();
  place_.story->InsertText(at, text, TypingFormat{keep.first_child(), pending_});
  place_.span->start = place_.span->end = at + static_cast<long>(text.size());
}

void DocxSelection::TypeParagraph() {
  ReplaceSelectionForTyping();
  long at = Start();
  place_.story->InsertParagraph(at);
  place_.span->start = place_.span->end = at + 1;
}

void DocxSelection::TypeBackspace() {
  if (Start() < End()) {
    ReplaceSelectionForTyping();
    return;
  }
  long before = Step(Start(), false, wdCharacter);
  if (before < Start()) place_.story->Delete(before, before + 1);
}

long DocxSelection::Delete(WdUnits unit, long count) {
  if (Start() < End()) {
    ReplaceSelectionForTyping();
    return 1;
  }
  long done = 0;
  for (; done < count; ++done) {
    long next = Step(Start(), true, unit);
    if (next <= Start()) break;
    place_.story->Delete(Start(), next);
  }
  return done;
}

// The caret position one unit on from `from`, skipping what is hidden.
long DocxSelection::Step(long from, bool right, WdUnits unit, bool extend) {
  const StoryIndex& ix = place_.story->Index();
  const long last = extend ? ix.length : std::max(0L, ix.length - 1);
  if (unit == wdStory) return right ? last : 0;
  long p = from;
  auto visible = [&](long q) { return q >= 0 && q < ix.length && !ix.Hidden(q); };
  do {
    if (right) {
      while (p < last && !visible(p)) ++p;
      if (p >= last) return last;
      ++p;
      while (p < last && !visible(p)) ++p;
    } else {
      --p;
      while (p > 0 && !visible(p)) --p;
      if (p < 0) return 0;
    }
  } while (unit == wdWord && p > 0 && p < last && IsWordChar(ix.CharAt(right ? p : p - 1)) &&
           IsWordChar(ix.CharAt(right ? p - 1 : p)));
  return p;
}

long DocxSelection::Move(long count, bool right, WdUnits unit, WdMovementType extend) {
  long moved = 0;
  long active = activeAtStart_ ? Start() : End();
  if (extend == wdMove && Start() < End()) {
    active = right ? End() : Start();
    ++moved;
    --count;
  }
  long anchor = activeAtStart_ ? End() : Start();
  for (; count > 0; --count, ++moved) {
    long next = Step(active, right, unit, extend == wdExtend);
    if (next == active) break;
    active = next;
  }
  if (extend == wdMove) anchor = active;
  place_.span->start = std::min(anchor, active);
  place_.span->end = std::max(anchor, active);
  activeAtStart_ = extend == wdExtend && active < anchor;
  place_.doc->ClearShapeSelection();
  Moved();
  return moved;
}

long DocxSelection::MoveLeft(WdUnits unit, long count, WdMovementType extend) {
  return Move(count, false, unit, extend);
}

long DocxSelection::MoveRight(WdUnits unit, long count, WdMovementType extend) {
  return Move(count, true, unit, extend);
}

void DocxSelection::InsertSymbol(long characterNumber, const word::Text& font, bool unicode) {
  pugi::xml_document proto;
  pugi::xml_node run = proto.append_child("w:r");
  if (pugi::xml_node source = place_.story->ReplacementFormat(Start(), End()))
    run.append_copy(source);
  ReplaceSelectionForTyping();
  long code = characterNumber & 0xFFFF;
  if (!unicode && code < 0x100) code += 0xF000;  // a symbol font's own code page
  char hex[8];
  std::snprintf(hex, sizeof hex, "%04lX", code);
  pugi::xml_node sym = run.append_child("w:sym");
  sym.append_attribute("w:font") = lp::ToUtf8(font).c_str();
  sym.append_attribute("w:char") = hex;
  long at = Start();
  place_.story->InsertInline(at, run, 1);
  place_.span->start = place_.span->end = at + 1;
}

double DocxSelection::Information(WdInformation type) {
  auto& doc = *place_.doc;
  long pos = place_.story.get() == &doc.MainStory() ? Start() : 0;
  CaretEstimate caret = EstimateCaret(doc.MainStory().Index(), doc.Styles(), doc.Geometry(), pos);
  return type == wdHorizontalPositionRelativeToPage ? caret.x : caret.y;
}

WdSelectionType DocxSelection::Type() const {
  if (!place_.doc->SelectedShapes().empty()) return wdSelectionShape;
  return Start() < End() ? wdSelectionNormal : wdSelectionIP;
}

std::unique_ptr<word::ShapeRange> DocxSelection::ShapeRange() {
  return MakeShapeRange(*place_.doc, place_.doc->SelectedShapes());
}

word::InlineShapes& DocxSelection::InlineShapes() {
  inlineShapes_ = MakeInlineShapes(place_);
  return *inlineShapes_;
}

std::unique_ptr<word::Range> DocxSelection::Range() {
  return std::make_unique<DocxRange>(place_.doc->MakePlace(*place_.story, Start(), End()));
}

}  // namespace word::docx
