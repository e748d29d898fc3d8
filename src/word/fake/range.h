#pragma once
// Ranges and the selection of the recording back end. A range holds a text
// (shared with the selection, a field code or a text box where it comes from)
// and records what is done to it; it does not lay out a document.

#include "word/fake/format.h"

namespace word::fake {

// The path of a range given as an argument, for the records.
std::string PathOf(const word::Range& range);

class FakeRange;

// The fields of the active document, seen from any range.
class FakeFields : public Fields, public Node {
 public:
  using Node::Node;
  long Count() const override;
  std::unique_ptr<Field> Item(long index) override;
  std::unique_ptr<Field> Add(word::Range& where, long type, const word::Text& text,
                             bool preserveFormatting) override;
  void ToggleShowCodes() override { Call("ToggleShowCodes"); }
};

class FakeField : public Field, public Node {
 public:
  FakeField(State& state, std::string path, long index)
      : Node(state, std::move(path)), index_(index) {}
  std::unique_ptr<word::Range> Code() override;
  std::unique_ptr<word::Range> Result() override;
  void Select() override;
  void Delete() override;

 private:
  FieldState& Target() const;
  long index_;
};

class FakeCharacters : public Characters, public Node {
 public:
  FakeCharacters(State& state, std::string path, const word::Range& owner)
      : Node(state, std::move(path)), owner_(owner) {}
  long Count() const override;
  std::unique_ptr<word::Range> Item(long index) override;

 private:
  const word::Range& owner_;
};

// Members common to ranges and the selection.
template <class Base>
class RangeImpl : public Base, public Node {
 public:
  RangeImpl(State& state, std::string path, SharedText text)
      : Node(state, path),
        text_(std::move(text)),
        font_(state, path + ".Font"),
        paragraph_(state, path + ".ParagraphFormat"),
        fields_(state, path + ".Fields"),
        characters_(state, path + ".Characters", *this),
        find_(state, path + ".Find") {}

  long Start() const override { return static_cast<long>(Number("Start", 0)); }
  void SetStart(long position) override { Put("Start", position); }
  long End() const override {
    return static_cast<long>(Number("End", Start() + static_cast<double>(text_->size())));
  }
  void SetEnd(long position) override { Put("End", position); }
  word::Text Text() const override { return *text_; }
  void SetText(const word::Text& text) override {
    Record(path_ + ".Text=" + Arg(text));
    *text_ = text;
  }
  word::Font& Font() override { return font_; }
  word::ParagraphFormat& ParagraphFormat() override { return paragraph_; }
  word::Fields& Fields() override { return fields_; }
  word::Characters& Characters() override { return characters_; }
  word::Find& Find() override { return find_; }
  void InsertAfter(const word::Text& text) override {
    Call("InsertAfter", text);
    *text_ += text;
  }
  void Collapse(WdCollapseDirection direction) override {
    Call("Collapse", static_cast<long>(direction));
    text_->clear();
  }
  void Delete() override {
    Call("Delete");
    text_->clear();
  }
  void Select() override {
    Call("Select");
    *st_.selection.text = *text_;
    st_.selection.shapes.clear();
  }
  std::unique_ptr<word::Range> Duplicate() const override;
  // Every shape of the document: the fake lays out no pages.
  std::unique_ptr<word::ShapeRange> ShapeRange() override;
  // Recorded only: the fake reads and writes no files.
  void InsertFile(const word::Text& fileName) override { Call("InsertFile", fileName); }
  // 16: the .docx format, as the COM back end asks for it.
  void ExportFragment(const word::Text& fileName) override {
    Call("ExportFragment", fileName, 16L);
  }

 protected:
  SharedText text_;

 private:
  FakeFont font_;
  FakeParagraphFormat paragraph_;
  FakeFields fields_;
  FakeCharacters characters_;
  FakeFind find_;
};

class FakeRange : public RangeImpl<word::Range> {
 public:
  using RangeImpl::RangeImpl;
};

template <class Base>
std::unique_ptr<word::Range> RangeImpl<Base>::Duplicate() const {
  return std::make_unique<FakeRange>(st_, path_ + ".Duplicate",
                                     std::make_shared<word::Text>(*text_));
}

class FakeInlineShape : public InlineShape, public Node {
 public:
  using Node::Node;
  float Width() const override { return static_cast<float>(Number("Width", 100)); }
  void SetWidth(float points) override { Put("Width", points); }
  float Height() const override { return static_cast<float>(Number("Height", 100)); }
  void SetHeight(float points) override { Put("Height", points); }
};

// Count is scripted as "Selection.InlineShapes.Count".
class FakeInlineShapes : public InlineShapes, public Node {
 public:
  using Node::Node;
  long Count() const override { return static_cast<long>(Number("Count", 0)); }
  std::unique_ptr<InlineShape> Item(long index) override {
    return std::make_unique<FakeInlineShape>(st_, path_ + "(" + Arg(index) + ")");
  }
};

class FakeSelection : public RangeImpl<word::Selection> {
 public:
  explicit FakeSelection(State& state)
      : RangeImpl(state, "Selection", state.selection.text),
        inlineShapes_(state, "Selection.InlineShapes") {}
  void TypeText(const word::Text& text) override;
  void TypeParagraph() override;
  void TypeBackspace() override;
  long MoveLeft(WdUnits unit, long count, WdMovementType extend) override;
  long MoveRight(WdUnits unit, long count, WdMovementType extend) override;
  long Delete(WdUnits unit, long count) override;
  using RangeImpl::Delete;
  void InsertSymbol(long characterNumber, const word::Text& font, bool unicode) override;
  double Information(WdInformation type) override;
  WdSelectionType Type() const override;
  std::unique_ptr<word::ShapeRange> ShapeRange() override;
  word::InlineShapes& InlineShapes() override { return inlineShapes_; }
  std::unique_ptr<word::Range> Range() override;

 private:
  FakeInlineShapes inlineShapes_;
};

}  // namespace word::fake
