#pragma once
// shushi: the selected sum drawn at the caret as a school column calculation.

#include "session/session.h"

namespace lp {

// Takes the selected text, or the text of a selected text box, and asks
// until it holds an operator; an input box cancelled draws nothing. A sum
// that is not of two positive integers is refused with a message.
void ShuShi(Session& session);

}  // namespace lp
