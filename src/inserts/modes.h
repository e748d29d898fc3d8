#pragma once
// Commands that change Word itself: the key bindings of the program's macros,
// and the two typing modes shown on the mode button of the program's toolbar.

#include <string>
#include <vector>

#include "session/session.h"

namespace lp {

// The mode button: the seventh control of the program's toolbar.
std::u16string ModeToolbarName();
constexpr long kModeButton = 7;

// A part of a key's text ("Ctrl", "Alt", "/", "F") as Word's key code: the
// table's code, else the code of its first character (letters in capitals).
long KeyPartCode(const std::u16string& part);
// The parts of a stored key ("Ctrl+Alt+F") as codes.
std::vector<long> KeyCodesOf(const std::u16string& keys);

// sethotkey: binds each row of the hotkey table in the attached template,
// unless the key already runs that macro.
void SetHotKey(Session& session);

// htms: the drawing mode (snapping off) and the grid mode (snapping on).
void ToggleDrawingMode(Session& session);
// gsms: the formula mode (no sentence capitals, AutoCorrect replacing) and
// the text mode.
void ToggleFormulaMode(Session& session);

}  // namespace lp
