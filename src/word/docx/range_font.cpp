#include <cmath>

#include "word/docx/range_parts.h"

namespace word::docx {
namespace {

bool IsContent(SegKind k) {
  return k != SegKind::ParaMark && k != SegKind::CellMark && k != SegKind::RowEnd;
}

template <class T>
void Keep(std::optional<T>& common, const std::optional<T>& value, bool first) {
  if (first)
    common = value;
  else if (common != value)
    common.reset();
}

long Tri(const std::optional<bool>& b) {
  return !b ? wdUndefined : *b ? wdTrue : wdFalse;
}

long VertFlag(const std::optional<VertAlign>& v, VertAlign which) {
  return !v ? wdUndefined : *v == which ? wdTrue : wdFalse;
}

}  // namespace

CharFormat RangeFont::Common() const {
  Story& story = *place_.story;
  DocxDocument& doc = *place_.doc;
  const long start = place_.Start(), end = place_.End();
  if (start >= end) {
    const StoryIndex& ix = story.Index();
    long at = start;
    if (at > 0 && at <= ix.length && IsContent(ix.segments[ix.SegmentAt(at - 1)].kind)) --at;
    CharFormat f = doc.FormatAt(story, at);
    if (pending_) f.Overlay(*pending_);
    return f;
  }
  const StoryIndex& ix = story.Index();
  std::vector<long> positions;
  for (size_t i = ix.SegmentAt(start); i < ix.segments.size() && ix.segments[i].pos < end; ++i)
    if (!ix.segments[i].hidden && IsContent(ix.segments[i].kind))
      positions.push_back(std::max(start, ix.segments[i].pos));
  if (positions.empty()) positions.push_back(start);
  CharFormat common;
  bool first = true;
  for (long pos : positions) {
    CharFormat f = doc.FormatAt(story, pos);
    Keep(common.ascii, f.ascii, first);
    Keep(common.eastAsia, f.eastAsia, first);
    Keep(common.halfPoints, f.halfPoints, first);
    Keep(common.bold, f.bold, first);
    Keep(common.italic, f.italic, first);
    Keep(common.vertAlign, f.vertAlign, first);
    Keep(common.scaling, f.scaling, first);
    Keep(common.color, f.color, first);
    first = false;
  }
  return common;
}

void RangeFont::Apply(const CharFormat& format) {
  if (place_.Start() < place_.End())
    place_.story->ApplyFormat(place_.Start(), place_.End(), format);
  else if (pending_)
    pending_->Overlay(format);
}

// wdToggle turns the flag to the opposite of what the range shows.
bool RangeFont::Flag(long value, long current) const {
  if (value == wdToggle) return current != wdTrue;
  return value != wdFalse;
}

Text RangeFont::Name() const {
  return Common().ascii.value_or(Text());
}
void RangeFont::SetName(const Text& name) {
  CharFormat f;
  f.ascii = name;
  Apply(f);
}
Text RangeFont::NameFarEast() const {
  return Common().eastAsia.value_or(Text());
}
void RangeFont::SetNameFarEast(const Text& name) {
  CharFormat f;
  f.eastAsia = name;
  Apply(f);
}
float RangeFont::Size() const {
  auto hp = Common().halfPoints;
  return hp ? *hp / 2.0f : static_cast<float>(wdUndefined);
}
void RangeFont::SetSize(float points) {
  CharFormat f;
  f.halfPoints = static_cast<int>(std::lround(points * 2));
  Apply(f);
}
long RangeFont::Bold() const {
  return Tri(Common().bold);
}
void RangeFont::SetBold(long value) {
  CharFormat f;
  f.bold = Flag(value, Bold());
  Apply(f);
}
long RangeFont::Italic() const {
  return Tri(Common().italic);
}
void RangeFont::SetItalic(long value) {
  CharFormat f;
  f.italic = Flag(value, Italic());
  Apply(f);
}
long RangeFont::Superscript() const {
  return VertFlag(Common().vertAlign, VertAlign::Superscript);
}
void RangeFont::SetSuperscript(long value) {
  CharFormat f;
  f.vertAlign = Flag(value, Superscript()) ? VertAlign::Superscript : VertAlign::Baseline;
  Apply(f);
}
long RangeFont::Subscript() const {
  return VertFlag(Common().vertAlign, VertAlign::Subscript);
}
void RangeFont::SetSubscript(long value) {
  CharFormat f;
  f.vertAlign = Flag(value, Subscript()) ? VertAlign::Subscript : VertAlign::Baseline;
  Apply(f);
}
long RangeFont::Scaling() const {
  return Common().scaling.value_or(wdUndefined);
}
void RangeFont::SetScaling(long percent) {
  CharFormat f;
  f.scaling = static_cast<int>(percent);
  Apply(f);
}
long RangeFont::Color() const {
  return Common().color.value_or(wdUndefined);
}
void RangeFont::SetColor(long rgb) {
  CharFormat f;
  f.color = rgb;
  Apply(f);
}

float RecordedFont::Size() const {
  return format.halfPoints ? *format.halfPoints / 2.0f : static_cast<float>(wdUndefined);
}
void RecordedFont::SetSize(float points) {
  format.halfPoints = static_cast<int>(std::lround(points * 2));
}
long RecordedFont::Superscript() const {
  return VertFlag(format.vertAlign, VertAlign::Superscript);
}
void RecordedFont::SetSuperscript(long value) {
  format.vertAlign = value != wdFalse ? VertAlign::Superscript : VertAlign::Baseline;
}
long RecordedFont::Subscript() const {
  return VertFlag(format.vertAlign, VertAlign::Subscript);
}
void RecordedFont::SetSubscript(long value) {
  format.vertAlign = value != wdFalse ? VertAlign::Subscript : VertAlign::Baseline;
}

}  // namespace word::docx
