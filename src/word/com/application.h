#pragma once
// The Word application over IDispatch.

#include "word/com/document.h"

namespace word::com {

class ComOptions : public Options, public ComNode {
 public:
  using ComNode::ComNode;
  void SetAutoCreateNewDrawings(bool on) override { Put(L"AutoCreateNewDrawings", on); }
  void SetAutoFormatMatchParentheses(bool on) override { Put(L"AutoFormatMatchParentheses", on); }
};

class ComAutoCorrect : public AutoCorrect, public ComNode {
 public:
  using ComNode::ComNode;
  bool CorrectSentenceCaps() const override { return Get(L"CorrectSentenceCaps").ToBool(); }
  void SetCorrectSentenceCaps(bool on) override { Put(L"CorrectSentenceCaps", on); }
  bool ReplaceTextOn() const override { return Get(L"ReplaceText").ToBool(); }
  void SetReplaceText(bool on) override { Put(L"ReplaceText", on); }
};

class ComAddIns : public AddIns, public ComNode {
 public:
  using ComNode::ComNode;
  void Add(const word::Text& fileName, bool install) override { Call(L"Add", {fileName, install}); }
};

class ComNormalTemplate : public NormalTemplate, public ComNode {
 public:
  explicit ComNormalTemplate(Ref ref) : ComNode(ref), entries_(Member(L"AutoTextEntries")) {}
  word::AutoTextEntries& AutoTextEntries() override { return entries_; }

 private:
  ComAutoTextEntries entries_;
};

class ComCommandBars : public CommandBars, public ComNode {
 public:
  using ComNode::ComNode;
  word::Text ControlCaption(const word::Text& bar, long index) const override {
    return Control(bar, index).Get(L"Caption").ToText();
  }
  void SetControlCaption(const word::Text& bar, long index, const word::Text& caption) override {
    Control(bar, index).Put(L"Caption", caption);
  }

 private:
  Dispatch Control(const word::Text& bar, long index) const {
    return Object().Object(L"Item", {bar}).Object(L"Controls").Object(L"Item", {index});
  }
};

class ComKeyBindings : public KeyBindings, public ComNode {
 public:
  using ComNode::ComNode;
  void Add(WdKeyCategory category, const word::Text& command, long keyCode) override {
    Call(L"Add", {static_cast<long>(category), command, keyCode});
  }
};

class ComApplication : public Application, public ComNode {
 public:
  explicit ComApplication(Dispatch word);
  bool Visible() const override { return Get(L"Visible").ToBool(); }
  void SetVisible(bool visible) override { Put(L"Visible", visible); }
  word::Text Version() const override { return Get(L"Version").ToText(); }
  word::Documents& Documents() override { return documents_; }
  Document& ActiveDocument() override { return activeDocument_; }
  word::Selection& Selection() override { return selection_; }
  void SetScreenUpdating(bool on) override { Put(L"ScreenUpdating", on); }
  void Run(const word::Text& macroName) override { Call(L"Run", {macroName}); }
  word::AddIns& AddIns() override { return addIns_; }
  word::CommandBars& CommandBars() override { return commandBars_; }
  word::KeyBindings& KeyBindings() override { return keyBindings_; }
  void SetCustomizationContext(Template& context) override {
    Put(L"CustomizationContext", DispatchOf(context).get());
  }
  long BuildKeyCode(long key1, long key2, long key3, long key4) override {
    return Call(L"BuildKeyCode", {key1, key2, key3, key4}).ToLong();
  }
  word::Text FindKeyCommand(long keyCode) override {
    return Object().Object(L"FindKey", {keyCode}).Get(L"Command").ToText();
  }
  word::Options& Options() override { return options_; }
  word::AutoCorrect& AutoCorrect() override { return autoCorrect_; }
  word::NormalTemplate& NormalTemplate() override { return normalTemplate_; }

 private:
  ComDocuments documents_;
  ComDocument activeDocument_;  // whichever document is active at each use
  ComSelection selection_;
  ComAddIns addIns_;
  ComCommandBars commandBars_;
  ComKeyBindings keyBindings_;
  ComOptions options_;
  ComAutoCorrect autoCorrect_;
  ComNormalTemplate normalTemplate_;
};

}  // namespace word::com
