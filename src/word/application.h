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
  virtual void SetCorrectSentenceCaps(bool on) = 0;
};

class AddIns {
 public:
  virtual ~AddIns() = default;
  virtual void Add(const Text& fileName, bool install) = 0;
};

class AutoTextEntry {
 public:
  virtual ~AutoTextEntry() = default;
  virtual void Insert(Range& where, bool richText) = 0;
  virtual void Delete() = 0;
};

class AutoTextEntries {
 public:
  virtual ~AutoTextEntries() = default;
  virtual void Add(const Text& name, Range& range) = 0;
  virtual std::unique_ptr<AutoTextEntry> Item(const Text& name) = 0;
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

// A key binding of the normal template: a key code bound to a macro.
class KeyBindings {
 public:
  virtual ~KeyBindings() = default;
  virtual void Add(long keyCode, const Text& macroName) = 0;
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
  virtual word::Options& Options() = 0;
  virtual word::AutoCorrect& AutoCorrect() = 0;
  virtual word::NormalTemplate& NormalTemplate() = 0;
};

}  // namespace word
