#pragma once
// Real superscripts and subscripts of a selection turned into the notation,
// so that a formula typed with Word's own formatting converts as well.

#include <string>
#include <vector>

#include "word/api.h"

namespace lp {

struct ScriptChar {
  std::u16string text;
  bool raised = false;
  bool lowered = false;
};

// The notation for the characters. A run is cleared only by a plain
// character before the last one; the last character closes a run with "^("
// even when it is lowered, and is dropped when it is plain after a run.
std::u16string ScriptPassText(const std::vector<ScriptChar>& chars);

// The characters of the range with their script flags.
std::vector<ScriptChar> ReadScriptChars(word::Range& range);

}  // namespace lp
