#pragma once
#include <memory>

#include "word/errors.h"
#include "word/find.h"
#include "word/font.h"

namespace word {

class Range;
class ShapeRange;

class ParagraphFormat {
 public:
  virtual ~ParagraphFormat() = default;
  virtual WdParagraphAlignment Alignment() const = 0;
  virtual void SetAlignment(WdParagraphAlignment alignment) = 0;
};

class Field {
 public:
  virtual ~Field() = default;
  virtual std::unique_ptr<Range> Code() = 0;    // the field code, without the braces
  virtual std::unique_ptr<Range> Result() = 0;  // empty for EQ fields written as Word writes them
  virtual void Select() = 0;
  virtual void Delete() = 0;
};

class Fields {
 public:
  virtual ~Fields() = default;
  virtual long Count() const = 0;
  virtual std::unique_ptr<Field> Item(long index) = 0;  // 1-based
  // Replaces the range with a field of the given type and code.
  virtual std::unique_ptr<Field> Add(Range& where, long type, const Text& text,
                                     bool preserveFormatting) = 0;
  // Shows the codes of the fields in the range if any shows its result, and
  // the results otherwise. Characters and Find see what is shown.
  virtual void ToggleShowCodes() = 0;
};

class Characters {
 public:
  virtual ~Characters() = default;
  virtual long Count() const = 0;
  virtual std::unique_ptr<Range> Item(long index) = 0;  // 1-based
};

class InlineShape {
 public:
  virtual ~InlineShape() = default;
  virtual float Width() const = 0;
  virtual void SetWidth(float points) = 0;
  virtual float Height() const = 0;
  virtual void SetHeight(float points) = 0;
};

class InlineShapes {
 public:
  virtual ~InlineShapes() = default;
  virtual long Count() const = 0;
  virtual std::unique_ptr<InlineShape> Item(long index) = 0;  // 1-based
};

// A stretch of one story, positions counted as Word counts them: one for each
// character, paragraph mark, field mark and anchored or inline object.
class Range {
 public:
  virtual ~Range() = default;

  virtual long Start() const = 0;
  virtual void SetStart(long position) = 0;
  virtual long End() const = 0;
  virtual void SetEnd(long position) = 0;
  virtual word::Text Text() const = 0;
  virtual void SetText(const word::Text& text) = 0;
  virtual word::Font& Font() = 0;
  virtual word::ParagraphFormat& ParagraphFormat() = 0;
  virtual word::Fields& Fields() = 0;
  virtual word::Characters& Characters() = 0;
  virtual word::Find& Find() = 0;
  virtual void InsertAfter(const word::Text& text) = 0;
  virtual void Collapse(WdCollapseDirection direction) = 0;
  virtual void Delete() = 0;
  virtual void Select() = 0;
  virtual std::unique_ptr<Range> Duplicate() const = 0;
  // The floating shapes anchored in the range.
  virtual std::unique_ptr<word::ShapeRange> ShapeRange() = 0;
  // Inserts the body of a Word document (its text, fields and floating
  // shapes, with the pictures they use) in place of the range, which then
  // covers what came in. Added later than the members above: back ends that
  // lack it answer as Word does for a member an object does not have.
  virtual void InsertFile(const word::Text&) { throw UnsupportedMember(); }
  // Writes what the range holds (its text, fields and the floating shapes
  // anchored in it) as a Word document of its own.
  virtual void ExportFragment(const word::Text&) { throw UnsupportedMember(); }
};

// The caret or the selected stretch of the active document. Typing replaces a
// selected stretch, as it does in Word.
class Selection : public Range {
 public:
  virtual void TypeText(const word::Text& text) = 0;
  virtual void TypeParagraph() = 0;
  virtual void TypeBackspace() = 0;
  virtual long MoveLeft(WdUnits unit, long count, WdMovementType extend = wdMove) = 0;
  virtual long MoveRight(WdUnits unit, long count, WdMovementType extend = wdMove) = 0;
  virtual long Delete(WdUnits unit, long count) = 0;
  using word::Range::Delete;
  // characterNumber is the code in the font, or a UTF-16 unit when unicode is set.
  virtual void InsertSymbol(long characterNumber, const word::Text& font, bool unicode) = 0;
  virtual double Information(WdInformation type) = 0;
  virtual WdSelectionType Type() const = 0;
  // The selected shapes.
  std::unique_ptr<word::ShapeRange> ShapeRange() override = 0;
  virtual word::InlineShapes& InlineShapes() = 0;
  virtual std::unique_ptr<word::Range> Range() = 0;
};

}  // namespace word
