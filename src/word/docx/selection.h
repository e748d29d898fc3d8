#pragma once
// The selection: a range with an active end, and the character format that
// typing continues with (set through Font while the caret stands still).

#include "word/docx/range_impl.h"

namespace word::docx {

class DocxSelection : public RangeImpl<word::Selection> {
 public:
  explicit DocxSelection(Place place) : RangeImpl<word::Selection>(std::move(place)) {}

  // Moves the selection, possibly into another story.
  void SetPlace(Story& story, long start, long end);
  Story& CurrentStory() { return *place_.story; }
  // An end of the selection inside the code of one of these fields, now
  // hidden, moves behind the field, as the caret cannot stand in hidden code.
  void LeaveHiddenCodes(Story& story, const std::vector<FieldSpan>& fields);

  word::Font& Font() override;
  // The format set through Font that typing at the caret continues with.
  const CharFormat& PendingFormat() const { return pending_; }
  void SetStart(long position) override;
  void SetEnd(long position) override;
  void Collapse(WdCollapseDirection direction) override;

  void TypeText(const word::Text& text) override;
  void TypeParagraph() override;
  void TypeBackspace() override;
  long MoveLeft(WdUnits unit, long count, WdMovementType extend) override;
  long MoveRight(WdUnits unit, long count, WdMovementType extend) override;
  long Delete(WdUnits unit, long count) override;
  using word::Selection::Delete;
  void InsertSymbol(long characterNumber, const word::Text& font, bool unicode) override;
  double Information(WdInformation type) override;
  WdSelectionType Type() const override;
  std::unique_ptr<word::ShapeRange> ShapeRange() override;
  word::InlineShapes& InlineShapes() override;
  std::unique_ptr<word::Range> Range() override;

 private:
  long Move(long count, bool right, WdUnits unit, WdMovementType extend);
  // extend: an extended selection may take in the final paragraph mark.
  long Step(long from, bool right, WdUnits unit, bool extend = false);
  void ReplaceSelectionForTyping();
  void Moved() { pending_ = CharFormat(); }

  CharFormat pending_;
  bool activeAtStart_ = false;
  std::unique_ptr<word::InlineShapes> inlineShapes_;
};

template <class Base>
void RangeImpl<Base>::Select() {
  place_.doc->Selection().SetPlace(*place_.story, Start(), End());
}

template <class Base>
std::unique_ptr<word::Range> RangeImpl<Base>::Duplicate() const {
  return std::make_unique<DocxRange>(place_.doc->MakePlace(*place_.story, Start(), End()));
}

template <class Base>
std::unique_ptr<word::ShapeRange> RangeImpl<Base>::ShapeRange() {
  return MakeShapeRange(*place_.doc, AnchorsIn(*place_.story, Start(), End()));
}

}  // namespace word::docx
