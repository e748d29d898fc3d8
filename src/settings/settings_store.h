#pragma once
// Where the settings database lives, and the stored options read without Word.

#include <string>

#include "settings/config_globals.h"

namespace lp {

// The settings file of a run: the --config path when one is given; else
// config.db in the program's folder when it can be written there; else
// config.db in the teacher's own data folder (XDG_DATA_HOME or
// ~/.local/share, %APPDATA% on Windows) below "lumenpad". UTF-8 paths.
std::string DatabasePath(const std::string& configOverride, const std::string& programFolder);

// The rows of config applied to the globals as ConfigWord applies them, but
// without Word, for the utility modes. A missing file is created with the
// default rows. Never throws: after a failure, what was read before stands.
ConfigGlobals ReadConfigGlobals(const std::string& dbPath);

}  // namespace lp
