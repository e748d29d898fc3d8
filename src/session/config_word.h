#pragma once
// Applies the table config to Word and to the option globals at every run.

#include "session/session.h"

namespace lp {

// Reads config in the order of id and applies each known key; unknown keys
// are passed over. A failure (no database, a Null where a value is needed, a
// refused Word call) shows the error box "ConfigWord-->line 0" and leaves the
// rows after it unapplied.
void ConfigWord(Session& session);

}  // namespace lp
