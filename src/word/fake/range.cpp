#include "word/fake/range.h"

#include "word/fake/shapes.h"

namespace word::fake {

std::string PathOf(const word::Range& range) {
  auto* node = dynamic_cast<const Node*>(&range);
  return node ? node->Path() : "Range";
}

bool FakeFind::Execute(WdReplace replace) {
  Call("Execute", static_cast<long>(replace));
  found_ = !st_.findResults.empty() && st_.findResults.front();
  if (!st_.findResults.empty()) st_.findResults.pop_front();
  return found_;
}

long FakeFields::Count() const {
  return static_cast<long>(
      Number("Count", static_cast<double>(st_.ActiveDocument().fields.size())));
}

std::unique_ptr<Field> FakeFields::Item(long index) {
  if (index < 1 || index > static_cast<long>(st_.ActiveDocument().fields.size())) {
    throw NoSuchMember();
  }
  return std::make_unique<FakeField>(st_, path_ + "(" + Arg(index) + ")", index);
}

std::unique_ptr<Field> FakeFields::Add(word::Range& where, long type, const word::Text& text,
                                       bool preserveFormatting) {
  Call("Add", PathOf(where), type, text, preserveFormatting);
  auto& fields = st_.ActiveDocument().fields;
  fields.push_back(FieldState{std::make_shared<word::Text>(text)});
  return std::make_unique<FakeField>(st_, "Fields(" + Arg(static_cast<long>(fields.size())) + ")",
                                     static_cast<long>(fields.size()));
}

FieldState& FakeField::Target() const {
  auto& fields = st_.ActiveDocument().fields;
  if (index_ < 1 || index_ > static_cast<long>(fields.size())) {
    throw NoSuchMember();
  }
  return fields[index_ - 1];
}

std::unique_ptr<word::Range> FakeField::Code() {
  return std::make_unique<FakeRange>(st_, path_ + ".Code", Target().code);
}

std::unique_ptr<word::Range> FakeField::Result() {
  return std::make_unique<FakeRange>(st_, path_ + ".Result", std::make_shared<word::Text>());
}

void FakeField::Select() {
  Call("Select");
  *st_.selection.text = *Target().code;
  st_.selection.shapes.clear();
}

void FakeField::Delete() {
  Call("Delete");
  Target();
  auto& fields = st_.ActiveDocument().fields;
  fields.erase(fields.begin() + (index_ - 1));
}

long FakeCharacters::Count() const {
  return static_cast<long>(owner_.Text().size());
}

std::unique_ptr<word::Range> FakeCharacters::Item(long index) {
  word::Text text = owner_.Text();
  if (index < 1 || index > static_cast<long>(text.size())) {
    throw NoSuchMember();
  }
  return std::make_unique<FakeRange>(st_, path_ + "(" + Arg(index) + ")",
                                     std::make_shared<word::Text>(text.substr(index - 1, 1)));
}

void FakeSelection::TypeText(const word::Text& text) {
  Call("TypeText", text);
  st_.selection.typed += text;
  text_->clear();
}

void FakeSelection::TypeParagraph() {
  Call("TypeParagraph");
  st_.selection.typed += u'\r';
  text_->clear();
}

void FakeSelection::TypeBackspace() {
  Call("TypeBackspace");
  if (!st_.selection.typed.empty()) st_.selection.typed.pop_back();
}

long FakeSelection::MoveLeft(WdUnits unit, long count, WdMovementType extend) {
  Call("MoveLeft", static_cast<long>(unit), count, static_cast<long>(extend));
  return count;
}

long FakeSelection::MoveRight(WdUnits unit, long count, WdMovementType extend) {
  Call("MoveRight", static_cast<long>(unit), count, static_cast<long>(extend));
  return count;
}

long FakeSelection::Delete(WdUnits unit, long count) {
  Call("Delete", static_cast<long>(unit), count);
  return count;
}

void FakeSelection::InsertSymbol(long characterNumber, const word::Text& font, bool unicode) {
  Call("InsertSymbol", characterNumber, font, unicode);
  st_.selection.typed += static_cast<char16_t>(characterNumber);
  text_->clear();
}

double FakeSelection::Information(WdInformation type) {
  return Number("Information(" + Arg(static_cast<long>(type)) + ")", 0);
}

WdSelectionType FakeSelection::Type() const {
  WdSelectionType derived = !st_.selection.shapes.empty() ? wdSelectionShape
                            : text_->empty()              ? wdSelectionIP
                                                          : wdSelectionNormal;
  return static_cast<WdSelectionType>(Number("Type", derived));
}

template <class Base>
std::unique_ptr<word::ShapeRange> RangeImpl<Base>::ShapeRange() {
  return std::make_unique<FakeShapeRange>(st_, path_ + ".ShapeRange", st_.ActiveDocument().shapes);
}
template class RangeImpl<word::Range>;
template class RangeImpl<word::Selection>;

std::unique_ptr<word::ShapeRange> FakeSelection::ShapeRange() {
  return std::make_unique<FakeShapeRange>(st_, "Selection.ShapeRange", st_.selection.shapes);
}

std::unique_ptr<word::Range> FakeSelection::Range() {
  return std::make_unique<FakeRange>(st_, "Selection.Range", text_);
}

}  // namespace word::fake
