#pragma once
// The application-wide objects of the recording back end.

#include "word/fake/document.h"

namespace word::fake {

class FakeOptions : public Options, public Node {
 public:
  using Node::Node;
  void SetAutoCreateNewDrawings(bool on) override { Put("AutoCreateNewDrawings", on); }
  void SetAutoFormatMatchParentheses(bool on) override { Put("AutoFormatMatchParentheses", on); }
};

class FakeAutoCorrect : public AutoCorrect, public Node {
 public:
  using Node::Node;
  bool CorrectSentenceCaps() const override { return Number("CorrectSentenceCaps", -1) != 0; }
  void SetCorrectSentenceCaps(bool on) override { Put("CorrectSentenceCaps", on); }
  bool ReplaceTextOn() const override { return Number("ReplaceText", -1) != 0; }
  void SetReplaceText(bool on) override { Put("ReplaceText", on); }
};

class FakeAddIns : public AddIns, public Node {
 public:
  using Node::Node;
  void Add(const word::Text& fileName, bool install) override { Call("Add", fileName, install); }
};

class FakeNormalTemplate : public NormalTemplate {
 public:
  explicit FakeNormalTemplate(State& state) : entries_(state, "NormalTemplate.AutoTextEntries") {}
  word::AutoTextEntries& AutoTextEntries() override { return entries_; }

 private:
  FakeAutoTextEntries entries_;
};

// A caption is scripted or kept as CommandBars("bar").Controls(n).Caption.
class FakeCommandBars : public CommandBars, public Node {
 public:
  explicit FakeCommandBars(State& state) : Node(state, "CommandBars") {}
  word::Text ControlCaption(const word::Text& bar, long index) const override {
    return StringAt(Key(bar, index), word::Text());
  }
  void SetControlCaption(const word::Text& bar, long index, const word::Text& caption) override {
    Record(Key(bar, index) + "=" + Arg(caption));
    st_.values[Key(bar, index)] = caption;
  }

 private:
  static std::string Key(const word::Text& bar, long index) {
    return "CommandBars(" + Arg(bar) + ").Controls(" + Arg(index) + ").Caption";
  }
};

class FakeKeyBindings : public KeyBindings, public Node {
 public:
  using Node::Node;
  // A binding is kept as the answer of FindKey(code).Command.
  void Add(WdKeyCategory category, const word::Text& command, long keyCode) override {
    Call("Add", static_cast<long>(category), command, keyCode);
    st_.values[FindKeyPath(keyCode)] = command;
  }
  static std::string FindKeyPath(long keyCode) { return "FindKey(" + Arg(keyCode) + ").Command"; }
};

}  // namespace word::fake
