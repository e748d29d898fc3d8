#pragma once
// Connecting a run to Word and making sure the macro template is in place.

#include <cstdint>
#include <functional>
#include <string>

#include "session/session.h"
#include "word/connector.h"

namespace lp {

// Fills the session: finds or starts Word, adds a document from the template
// or installs the template when Word lacks it, resets the shape names, then
// calls configWord. Errors are reported in a box as they stand. Returns false
// when Word could not be reached or started (WordApp is then null): the run
// must end at once through ExitLumenpad.
[[nodiscard]] bool Document_Init(Session& session, WordConnector& connector,
                                 const std::function<void()>& configWord);

// Word's STARTUP folder below "ProgramFiles" for a major version (0: the
// version registered as current), or "" for a version it doesn't know.
std::u16string GetStartupPath(int16_t version);

}  // namespace lp
