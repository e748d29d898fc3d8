#pragma once
// Character and paragraph formatting and Find: properties recorded as set,
// read back as kept or scripted.

#include "word/fake/record.h"

namespace word::fake {

class FakeFont : public Font, public Node {
 public:
  using Node::Node;
  word::Text Name() const override { return String("Name", u"Times New Roman"); }
  void SetName(const word::Text& name) override { Put("Name", name); }
  word::Text NameFarEast() const override { return String("NameFarEast", u"宋体"); }
  void SetNameFarEast(const word::Text& name) override { Put("NameFarEast", name); }
  float Size() const override { return static_cast<float>(Number("Size", 10.5)); }
  void SetSize(float points) override { Put("Size", points); }
  long Bold() const override { return Long("Bold"); }
  void SetBold(long value) override { Put("Bold", value); }
  long Italic() const override { return Long("Italic"); }
  void SetItalic(long value) override { Put("Italic", value); }
  long Superscript() const override { return Long("Superscript"); }
  void SetSuperscript(long value) override { Put("Superscript", value); }
  long Subscript() const override { return Long("Subscript"); }
  void SetSubscript(long value) override { Put("Subscript", value); }
  long Scaling() const override { return Long("Scaling", 100); }
  void SetScaling(long percent) override { Put("Scaling", percent); }
  long Color() const override { return Long("Color"); }
  void SetColor(long rgb) override { Put("Color", rgb); }

 private:
  long Long(const std::string& member, long fallback = 0) const {
    return static_cast<long>(Number(member, fallback));
  }
};

class FakeParagraphFormat : public ParagraphFormat, public Node {
 public:
  using Node::Node;
  WdParagraphAlignment Alignment() const override {
    return static_cast<WdParagraphAlignment>(Number("Alignment", wdAlignParagraphLeft));
  }
  void SetAlignment(WdParagraphAlignment alignment) override {
    Put("Alignment", static_cast<long>(alignment));
  }
};

class FakeReplacement : public Replacement, public Node {
 public:
  explicit FakeReplacement(State& state, std::string path)
      : Node(state, path), font_(state, path + ".Font") {}
  void ClearFormatting() override { Call("ClearFormatting"); }
  void SetText(const word::Text& text) override { Put("Text", text); }
  word::Font& Font() override { return font_; }

 private:
  FakeFont font_;
};

// Execute answers from the queue of scripted results, and False when it is empty.
class FakeFind : public Find, public Node {
 public:
  explicit FakeFind(State& state, std::string path)
      : Node(state, path), replacement_(state, path + ".Replacement") {}
  void ClearFormatting() override { Call("ClearFormatting"); }
  void SetText(const word::Text& text) override { Put("Text", text); }
  void SetForward(bool forward) override { Put("Forward", forward); }
  void SetWrap(WdFindWrap wrap) override { Put("Wrap", static_cast<long>(wrap)); }
  void SetMatchWildcards(bool on) override { Put("MatchWildcards", on); }
  void SetMatchByte(bool on) override { Put("MatchByte", on); }
  word::Replacement& Replacement() override { return replacement_; }
  bool Execute(WdReplace replace) override;
  bool Found() const override { return found_; }

 private:
  FakeReplacement replacement_;
  bool found_ = false;
};

}  // namespace word::fake
