#pragma once
// What Word keeps outside a document and the .docx engine keeps in one small
// XML file of its own: the captions of toolbar controls, the AutoCorrect
// options, the drawing snaps, and the key bindings of each template. Each
// change is written at once, so that the next run reads what this one set.
// Without a file the state lives for the run only.

#include <filesystem>
#include <string>

#include <pugixml.hpp>

#include "word/types.h"

namespace word::docx {

class AppState {
 public:
  // Reads the file if there is one; a missing or damaged file is a fresh start.
  void Open(const std::filesystem::path& file);

  Text Caption(const Text& bar, long control) const;
  void SetCaption(const Text& bar, long control, const Text& caption);
  // Word's options by their names ("CorrectSentenceCaps", "SnapToGrid" ...).
  bool Option(const std::string& name, bool fallback) const;
  void SetOption(const std::string& name, bool on);
  // The command a key code runs in the template; empty when none.
  Text KeyCommand(const Text& templateName, long keyCode) const;
  void BindKey(const Text& templateName, long keyCode, const Text& command);

 private:
  pugi::xml_node Root();
  pugi::xml_node Find(const char* element, const char* attribute, const std::string& value,
                      const char* attribute2 = nullptr, const std::string& value2 = {}) const;
  void Store();

  std::filesystem::path file_;
  pugi::xml_document xml_;
};

}  // namespace word::docx
