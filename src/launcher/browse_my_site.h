#pragma once
// The companion program lumenpadsetup, started with "browse" at every run.

#include <string>

#include "session/session.h"
#include "session/web_address.h"

namespace lp {

// The companion beside the executable.
std::string CompanionPath(const std::u16string& programFolder);

// Starts the companion without waiting for it. When it is missing, shows the
// message and returns false: the run ends there and nothing else runs.
bool BrowseMySite(Session& session);

}  // namespace lp
