#pragma once
// Applies the table config to Word and to the option globals at every run.

#include <string>

#include "settings/config_globals.h"
#include "settings/database.h"
#include "word/api.h"
#include "word/session.h"

namespace lp {

// Reads config in the order of id and applies each known key; unknown keys
// are passed over. A failure (no database, a Null where a value is needed, a
// refused Word call) shows the error box "ConfigWord-->line 0" and leaves the
// rows after it unapplied.
void ConfigWord(Session& session);

// One row: cName, blvalue and intvalue of the current row of rs. The Word
// options are set only when app is given. Raises on a Null the key can't take.
void ApplyConfigRow(const Recordset& rs, ConfigGlobals& globals, word::Application* app);

}  // namespace lp
