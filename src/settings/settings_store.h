#pragma once
// Where the settings database lives, and the stored options read without Word.

#include <string>

#include "settings/config_globals.h"

namespace lp {

// The settings file of a run: the --config path when one is given; else
// config.db in the program's folder when it is there (read in place even
// when it cannot be written) or can be created there; else the teacher's own
// copy (UserDatabasePath). UTF-8 paths.
std::string DatabasePath(const std::string& configOverride, const std::string& programFolder);

// config.db in the teacher's own data folder (XDG_DATA_HOME or
// ~/.local/share, %APPDATA% on Windows) below "lumenpad".
std::string UserDatabasePath();

// Where writes to the settings go: the file itself when it can be written,
// else the teacher's own copy, made from that file the first time.
std::string WritableDatabasePath(const std::string& dbPath);

// The rows of config applied to the globals as ConfigWord applies them, but
// without Word, for the utility modes. A missing file is created with the
// default rows. Never throws: after a failure, what was read before stands.
ConfigGlobals ReadConfigGlobals(const std::string& dbPath);

}  // namespace lp
