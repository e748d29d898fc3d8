#pragma once
// Ranges and the selection over IDispatch.

#include "word/com/formats.h"

namespace word::com {

class ComField : public Field, public ComNode {
 public:
  using ComNode::ComNode;
  std::unique_ptr<word::Range> Code() override;
  std::unique_ptr<word::Range> Result() override;
  void Select() override { Call(L"Select"); }
  void Delete() override { Call(L"Delete"); }
};

class ComFields : public Fields, public ComNode {
 public:
  using ComNode::ComNode;
  long Count() const override { return Get(L"Count").ToLong(); }
  std::unique_ptr<Field> Item(long index) override {
    return std::make_unique<ComField>(Fixed(L"Item", {index}));
  }
  std::unique_ptr<Field> Add(word::Range& where, long type, const word::Text& text,
                             bool preserveFormatting) override {
    return std::make_unique<ComField>(
        Fixed(L"Add", {DispatchOf(where).get(), type, text, preserveFormatting}));
  }
  void ToggleShowCodes() override { Call(L"ToggleShowCodes"); }
};

class ComCharacters : public Characters, public ComNode {
 public:
  using ComNode::ComNode;
  long Count() const override { return Get(L"Count").ToLong(); }
  std::unique_ptr<word::Range> Item(long index) override;
};

class ComInlineShape : public InlineShape, public ComNode {
 public:
  using ComNode::ComNode;
  float Width() const override { return Get(L"Width").ToFloat(); }
  void SetWidth(float points) override { Put(L"Width", points); }
  float Height() const override { return Get(L"Height").ToFloat(); }
  void SetHeight(float points) override { Put(L"Height", points); }
};

class ComInlineShapes : public InlineShapes, public ComNode {
 public:
  using ComNode::ComNode;
  long Count() const override { return Get(L"Count").ToLong(); }
  std::unique_ptr<InlineShape> Item(long index) override {
    return std::make_unique<ComInlineShape>(Fixed(L"Item", {index}));
  }
};

template <class Base>
class RangeImpl : public Base, public ComNode {
 public:
  explicit RangeImpl(Ref ref)
      : ComNode(ref),
        font_(Member(L"Font")),
        paragraph_(Member(L"ParagraphFormat")),
        fields_(Member(L"Fields")),
        characters_(Member(L"Characters")),
        find_(Member(L"Find")) {}

  long Start() const override { return Get(L"Start").ToLong(); }
  void SetStart(long position) override { Put(L"Start", position); }
  long End() const override { return Get(L"End").ToLong(); }
  void SetEnd(long position) override { Put(L"End", position); }
  word::Text Text() const override { return Get(L"Text").ToText(); }
  void SetText(const word::Text& text) override { Put(L"Text", text); }
  word::Font& Font() override { return font_; }
  word::ParagraphFormat& ParagraphFormat() override { return paragraph_; }
  word::Fields& Fields() override { return fields_; }
  word::Characters& Characters() override { return characters_; }
  word::Find& Find() override { return find_; }
  void InsertAfter(const word::Text& text) override { Call(L"InsertAfter", {text}); }
  void Collapse(WdCollapseDirection direction) override {
    Call(L"Collapse", {static_cast<long>(direction)});
  }
  void Delete() override { Call(L"Delete"); }
  void Select() override { Call(L"Select"); }
  std::unique_ptr<word::Range> Duplicate() const override;
  std::unique_ptr<word::ShapeRange> ShapeRange() override;
  void InsertFile(const word::Text& fileName) override { Call(L"InsertFile", {fileName}); }
  // 16: wdFormatDocumentDefault, the .docx format.
  void ExportFragment(const word::Text& fileName) override {
    Call(L"ExportFragment", {fileName, 16L});
  }

 private:
  ComFont font_;
  ComParagraphFormat paragraph_;
  ComFields fields_;
  ComCharacters characters_;
  ComFind find_;
};

class ComRange : public RangeImpl<word::Range> {
 public:
  using RangeImpl::RangeImpl;
};

template <class Base>
std::unique_ptr<word::Range> RangeImpl<Base>::Duplicate() const {
  return std::make_unique<ComRange>(Fixed(L"Duplicate"));
}

// Application.Selection, fetched afresh at each use.
class ComSelection : public RangeImpl<word::Selection> {
 public:
  explicit ComSelection(Ref ref) : RangeImpl(ref), inlineShapes_(Member(L"InlineShapes")) {}
  void TypeText(const word::Text& text) override { Call(L"TypeText", {text}); }
  void TypeParagraph() override { Call(L"TypeParagraph"); }
  void TypeBackspace() override { Call(L"TypeBackspace"); }
  long MoveLeft(WdUnits unit, long count, WdMovementType extend) override {
    return Call(L"MoveLeft", {static_cast<long>(unit), count, static_cast<long>(extend)}).ToLong();
  }
  long MoveRight(WdUnits unit, long count, WdMovementType extend) override {
    return Call(L"MoveRight", {static_cast<long>(unit), count, static_cast<long>(extend)}).ToLong();
  }
  long Delete(WdUnits unit, long count) override {
    return Call(L"Delete", {static_cast<long>(unit), count}).ToLong();
  }
  using RangeImpl::Delete;
  void InsertSymbol(long characterNumber, const word::Text& font, bool unicode) override {
    Call(L"InsertSymbol", {characterNumber, font, unicode});
  }
  double Information(WdInformation type) override {
    return Get(L"Information", {static_cast<long>(type)}).ToDouble();
  }
  WdSelectionType Type() const override {
    return static_cast<WdSelectionType>(Get(L"Type").ToLong());
  }
  std::unique_ptr<word::ShapeRange> ShapeRange() override;
  word::InlineShapes& InlineShapes() override { return inlineShapes_; }
  std::unique_ptr<word::Range> Range() override {
    return std::make_unique<ComRange>(Fixed(L"Range"));
  }

 private:
  ComInlineShapes inlineShapes_;
};

}  // namespace word::com
