#pragma once
// One row of the table config applied to the option globals and to Word.

#include <string>

#include "settings/config_globals.h"
#include "settings/database.h"
#include "word/api.h"

namespace lp {

// One row: cName, blvalue and intvalue of the current row of rs. The Word
// options are set only when app is given. Raises on a Null the key can't take.
void ApplyConfigRow(const Recordset& rs, ConfigGlobals& globals, word::Application* app);

}  // namespace lp
