#pragma once
#include <memory>

#include "word/document.h"

namespace word {

class Options {
 public:
  virtual ~Options() = default;
  virtual void SetAutoCreateNewDrawings(bool on) = 0;
  virtual void SetAutoFormatMatchParentheses(bool on) = 0;
};

class AutoCorrect {
 public:
  virtual ~AutoCorrect() = default;
  virtual bool CorrectSentenceCaps() const = 0;
  virtual void SetCorrectSentenceCaps(bool on) = 0;
  // Word's ReplaceText, named apart from the Windows macro of that name.
  virtual bool ReplaceTextOn() const = 0;
  virtual void SetReplaceText(bool on) = 0;
};

class AddIns {
 public:
  virtual ~AddIns() = default;
  virtual void Add(const Text& fileName, bool install) = 0;
};

class NormalTemplate {
 public:
  virtual ~NormalTemplate() = default;
  virtual word::AutoTextEntries& AutoTextEntries() = 0;
};

// Toolbars: the modes change the caption of one control of one bar.
class CommandBars {
 public:
  virtual ~CommandBars() = default;
  virtual Text ControlCaption(const Text& bar, long index) const = 0;
  virtual void SetControlCaption(const Text& bar, long index, const Text& caption) = 0;
};

// The key bindings of the customization context: a key code bound to a
// command of a category (wdKeyCategoryMacro: a macro by name).
class KeyBindings {
 public:
  virtual ~KeyBindings() = default;
  virtual void Add(WdKeyCategory category, const Text& command, long keyCode) = 0;
};

class Application {
 public:
  virtual ~Application() = default;
  virtual bool Visible() const = 0;
  virtual void SetVisible(bool visible) = 0;
  virtual Text Version() const = 0;
  virtual word::Documents& Documents() = 0;
  virtual Document& ActiveDocument() = 0;  // throws ComError when none is open
  virtual word::Selection& Selection() = 0;
  virtual void SetScreenUpdating(bool on) = 0;
  // Runs a macro by name; an unknown macro raises ComError as Word does.
  virtual void Run(const Text& macroName) = 0;
  virtual word::AddIns& AddIns() = 0;
  virtual word::CommandBars& CommandBars() = 0;
  virtual word::KeyBindings& KeyBindings() = 0;
  // Where KeyBindings.Add puts a binding: a template.
  virtual void SetCustomizationContext(Template& context) = 0;
  // Up to four parts (wdKeyControl, wdKeyAlt, a key's code ...) as one code.
  virtual long BuildKeyCode(long key1, long key2 = wdNoKey, long key3 = wdNoKey,
                            long key4 = wdNoKey) = 0;
  // FindKey(code).Command: what the key runs in the customization context,
  // empty when it runs nothing of its own.
  virtual Text FindKeyCommand(long keyCode) = 0;
  virtual word::Options& Options() = 0;
  virtual word::AutoCorrect& AutoCorrect() = 0;
  virtual word::NormalTemplate& NormalTemplate() = 0;
};

}  // namespace word
