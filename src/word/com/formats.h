#pragma once
// Character and paragraph formatting and Find over IDispatch.

#include "word/api.h"
#include "word/com/node.h"

namespace word::com {

class ComFont : public Font, public ComNode {
 public:
  using ComNode::ComNode;
  word::Text Name() const override { return Get(L"Name").ToText(); }
  void SetName(const word::Text& name) override { Put(L"Name", name); }
  word::Text NameFarEast() const override { return Get(L"NameFarEast").ToText(); }
  void SetNameFarEast(const word::Text& name) override { Put(L"NameFarEast", name); }
  float Size() const override { return Get(L"Size").ToFloat(); }
  void SetSize(float points) override { Put(L"Size", points); }
  long Bold() const override { return Get(L"Bold").ToLong(); }
  void SetBold(long value) override { Put(L"Bold", value); }
  long Italic() const override { return Get(L"Italic").ToLong(); }
  void SetItalic(long value) override { Put(L"Italic", value); }
  long Superscript() const override { return Get(L"Superscript").ToLong(); }
  void SetSuperscript(long value) override { Put(L"Superscript", value); }
  long Subscript() const override { return Get(L"Subscript").ToLong(); }
  void SetSubscript(long value) override { Put(L"Subscript", value); }
  long Scaling() const override { return Get(L"Scaling").ToLong(); }
  void SetScaling(long percent) override { Put(L"Scaling", percent); }
  long Color() const override { return Get(L"Color").ToLong(); }
  void SetColor(long rgb) override { Put(L"Color", rgb); }
};

class ComParagraphFormat : public ParagraphFormat, public ComNode {
 public:
  using ComNode::ComNode;
  WdParagraphAlignment Alignment() const override {
    return static_cast<WdParagraphAlignment>(Get(L"Alignment").ToLong());
  }
  void SetAlignment(WdParagraphAlignment alignment) override {
    Put(L"Alignment", static_cast<long>(alignment));
  }
};

class ComReplacement : public Replacement, public ComNode {
 public:
  explicit ComReplacement(Ref ref) : ComNode(ref), font_(Member(L"Font")) {}
  void ClearFormatting() override { Call(L"ClearFormatting"); }
  void SetText(const word::Text& text) override { Put(L"Text", text); }
  word::Font& Font() override { return font_; }

 private:
  ComFont font_;
};

class ComFind : public Find, public ComNode {
 public:
  explicit ComFind(Ref ref) : ComNode(ref), replacement_(Member(L"Replacement")) {}
  void ClearFormatting() override { Call(L"ClearFormatting"); }
  void SetText(const word::Text& text) override { Put(L"Text", text); }
  void SetForward(bool forward) override { Put(L"Forward", forward); }
  void SetWrap(WdFindWrap wrap) override { Put(L"Wrap", static_cast<long>(wrap)); }
  void SetMatchWildcards(bool on) override { Put(L"MatchWildcards", on); }
  void SetMatchByte(bool on) override { Put(L"MatchByte", on); }
  word::Replacement& Replacement() override { return replacement_; }
  // Replace is the eleventh argument of Execute; the ones before it are left out.
  bool Execute(WdReplace replace) override {
    Variant m = Variant::Missing();
    return Call(L"Execute", {m, m, m, m, m, m, m, m, m, m, static_cast<long>(replace)}).ToBool();
  }
  bool Found() const override { return Get(L"Found").ToBool(); }

 private:
  ComReplacement replacement_;
};

}  // namespace word::com
