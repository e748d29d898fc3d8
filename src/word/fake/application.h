#pragma once
// The application-wide objects of the recording back end.

#include <set>

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
  void SetCorrectSentenceCaps(bool on) override { Put("CorrectSentenceCaps", on); }
};

class FakeAddIns : public AddIns, public Node {
 public:
  using Node::Node;
  void Add(const word::Text& fileName, bool install) override { Call("Add", fileName, install); }
};

class FakeAutoTextEntry : public AutoTextEntry, public Node {
 public:
  FakeAutoTextEntry(State& state, std::string path, std::set<word::Text>& names, word::Text name)
      : Node(state, std::move(path)), names_(names), name_(std::move(name)) {}
  void Insert(word::Range& where, bool richText) override {
    Call("Insert", PathOf(where), richText);
  }
  void Delete() override {
    Call("Delete");
    names_.erase(name_);
  }

 private:
  std::set<word::Text>& names_;
  word::Text name_;
};

class FakeAutoTextEntries : public AutoTextEntries, public Node {
 public:
  using Node::Node;
  void Add(const word::Text& name, word::Range& range) override {
    Call("Add", name, PathOf(range));
    names_.insert(name);
  }
  std::unique_ptr<AutoTextEntry> Item(const word::Text& name) override {
    if (!names_.count(name)) {
      throw NoSuchMember();
    }
    return std::make_unique<FakeAutoTextEntry>(st_, path_ + "(" + Arg(name) + ")", names_, name);
  }

 private:
  std::set<word::Text> names_;
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
  void Add(long keyCode, const word::Text& macroName) override { Call("Add", keyCode, macroName); }
};

}  // namespace word::fake
