#pragma once
// Range over a story; the selection derives from the same implementation.

#include <algorithm>
#include <memory>

#include "word/docx/range_parts.h"

namespace word::docx {

// Lets a range handed back through the API be traced to its story.
class PlaceHolder {
 public:
  virtual ~PlaceHolder() = default;
  virtual const Place& GetPlace() const = 0;
};

template <class Base>
class RangeImpl : public Base, public PlaceHolder {
 public:
  const Place& GetPlace() const override { return place_; }
  explicit RangeImpl(Place place) : place_(std::move(place)) {}

  long Start() const override { return place_.Start(); }
  long End() const override { return place_.End(); }
  void SetStart(long position) override {
    place_.span->start = Clamp(position);
    place_.span->end = std::max(place_.span->end, place_.span->start);
  }
  void SetEnd(long position) override {
    place_.span->end = Clamp(position);
    place_.span->start = std::min(place_.span->start, place_.span->end);
  }
  word::Text Text() const override { return place_.story->Index().Text(Start(), End(), false); }
  void SetText(const word::Text& text) override {
    long start = Start();
    pugi::xml_document keep;  // the format survives deleting what it came from
    if (pugi::xml_node source = place_.story->ReplacementFormat(start, End()))
      keep.append_copy(source);
    place_.story->Delete(start, End());
    place_.story->InsertText(start, text, TypingFormat{keep.first_child(), {}});
    place_.span->start = start;
    place_.span->end = start + static_cast<long>(text.size());
  }
  word::Font& Font() override {
    place_.story->CheckLive();
    if (!font_) font_ = std::make_unique<RangeFont>(place_, nullptr);
    return *font_;
  }
  word::ParagraphFormat& ParagraphFormat() override {
    place_.story->CheckLive();
    if (!paragraphFormat_) paragraphFormat_ = std::make_unique<RangeParagraphFormat>(place_);
    return *paragraphFormat_;
  }
  word::Fields& Fields() override {
    place_.story->CheckLive();
    if (!fields_) fields_ = std::make_unique<RangeFields>(place_, false);
    return *fields_;
  }
  word::Characters& Characters() override {
    place_.story->CheckLive();
    if (!characters_) characters_ = std::make_unique<RangeCharacters>(place_);
    return *characters_;
  }
  word::Find& Find() override {
    place_.story->CheckLive();
    if (!find_) find_ = std::make_unique<RangeFind>(place_);
    return *find_;
  }
  void InsertAfter(const word::Text& text) override {
    long end = End();
    TypingFormat format{place_.story->FormatSourceAt(end), {}};
    long start = Start();
    place_.story->InsertText(end, text, format);
    place_.span->start = start;
    place_.span->end = end + static_cast<long>(text.size());
  }
  void Collapse(WdCollapseDirection direction) override {
    place_.story->CheckLive();
    if (direction == wdCollapseStart)
      place_.span->end = place_.span->start;
    else
      place_.span->start = place_.span->end;
  }
  using Base::Delete;
  void Delete() override { place_.story->Delete(Start(), End()); }
  void Select() override;
  std::unique_ptr<word::Range> Duplicate() const override;
  std::unique_ptr<word::ShapeRange> ShapeRange() override;
  void InsertFile(const word::Text& fileName) override {
    place_.story->CheckLive();
    place_.doc->InsertFile(place_, fileName);
  }
  void ExportFragment(const word::Text& fileName) override {
    place_.story->CheckLive();
    place_.doc->ExportFragment(place_, fileName);
  }

 protected:
  long Clamp(long position) const { return std::clamp(position, 0L, place_.story->Length()); }

  Place place_;
  std::unique_ptr<RangeFont> font_;
  std::unique_ptr<RangeParagraphFormat> paragraphFormat_;
  std::unique_ptr<RangeFields> fields_;
  std::unique_ptr<RangeCharacters> characters_;
  std::unique_ptr<RangeFind> find_;
};

// The wp:anchor elements of the floating shapes anchored in [start, end).
std::vector<pugi::xml_node> AnchorsIn(Story& story, long start, long end);

class DocxRange : public RangeImpl<word::Range> {
 public:
  using RangeImpl<word::Range>::RangeImpl;
};

}  // namespace word::docx
