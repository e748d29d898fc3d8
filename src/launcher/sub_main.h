#pragma once
// The front door of a run: the companion, Word, the settings, then the tool
// of the command word.

#include <functional>
#include <string>

#include "launcher/command_table.h"
#include "session/frontend.h"
#include "session/session.h"

namespace lp {

// commandLine is the whole command text as given; it is lower-cased, not
// trimmed and not split. documentInit connects to Word and applies the
// settings; false means Word can't be reached and the run ends. routines
// serve the routine rows of the table. Anything that escapes is shown as
// "submain-->line 0".
void SubMain(Session& session, Frontend& ui, std::span<const RoutineBinding> routines,
             const std::u16string& commandLine, const std::function<bool()>& documentInit);

}  // namespace lp
