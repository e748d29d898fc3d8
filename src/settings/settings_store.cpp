#include "settings/settings_store.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "settings/config_row.h"
#include "settings/database.h"

#ifdef _WIN32
#include <io.h>
#define access _access
#define W_OK 2
#else
#include <unistd.h>
#endif

namespace lp {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFileName = "config.db";

bool Writable(const fs::path& p) {
  return access(p.string().c_str(), W_OK) == 0;
}

fs::path UserDataFolder() {
#ifdef _WIN32
  const char* appData = std::getenv("APPDATA");
  return fs::path(appData ? appData : ".") / "lumenpad";
#else
  const char* xdg = std::getenv("XDG_DATA_HOME");
  if (xdg && *xdg) return fs::path(xdg) / "lumenpad";
  const char* home = std::getenv("HOME");
  return fs::path(home ? home : ".") / ".local" / "share" / "lumenpad";
#endif
}

}  // namespace

std::string DatabasePath(const std::string& configOverride, const std::string& programFolder) {
  if (!configOverride.empty()) return configOverride;
  fs::path beside = fs::path(programFolder) / kFileName;
  bool usable = fs::exists(beside) || Writable(programFolder);
  if (!programFolder.empty() && usable) return beside.string();
  return UserDatabasePath();
}

std::string UserDatabasePath() {
  return (UserDataFolder() / kFileName).string();
}

std::string WritableDatabasePath(const std::string& dbPath) {
  if (!fs::exists(dbPath) || FileWritable(dbPath)) return dbPath;
  const fs::path copy = UserDatabasePath();
  std::error_code ec;
  if (fs::equivalent(copy, dbPath, ec)) return dbPath;
  if (!fs::exists(copy)) {
    fs::create_directories(copy.parent_path(), ec);
    fs::copy_file(dbPath, copy, ec);
    fs::permissions(copy, fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add,
                    ec);
  }
  return copy.string();
}

ConfigGlobals ReadConfigGlobals(const std::string& dbPath) {
  ConfigGlobals globals;
  Database db(dbPath);
  try {
    OpenDatabase(db);
    db.DbRs.Open("select * from  config  order by id asc", db.DbConn);
    for (; !db.DbRs.Eof(); db.DbRs.MoveNext()) ApplyConfigRow(db.DbRs, globals, nullptr);
  } catch (const std::exception&) {
    // The utility modes work with what could be read.
  }
  return globals;
}

}  // namespace lp
