#include <sqlite3.h>

#include <filesystem>
#include <random>
#include <string>

#include "runtime/error.h"
#include "settings/database.h"
#include "settings/schema.h"

namespace lp {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void RaiseDatabaseError(const std::string& what) {
  throw RuntimeError(kDatabaseError, what);
}

// Builds the file under a temporary name and renames it into place, so that a
// run never sees half a database.
void CreateDefaultDatabase(const fs::path& path) {
  std::error_code ec;
  if (path.has_parent_path()) fs::create_directories(path.parent_path(), ec);
  fs::path temp = path;
  temp += ".new" + std::to_string(std::random_device{}());
  sqlite3* raw = nullptr;
  int rc = sqlite3_open_v2(temp.string().c_str(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                           nullptr);
  std::string error = raw ? sqlite3_errmsg(raw) : "out of memory";
  if (rc == SQLITE_OK) {
    char* message = nullptr;
    rc = sqlite3_exec(raw, DefaultSchemaSql(), nullptr, nullptr, &message);
    if (message) error = message;
    sqlite3_free(message);
  }
  sqlite3_close(raw);
  if (rc == SQLITE_OK) fs::rename(temp, path, ec);
  if (rc != SQLITE_OK || ec) {
    fs::remove(temp, ec);
    RaiseDatabaseError("Could not create the settings file '" + path.string() + "': " + error);
  }
}

}  // namespace

void Connection::Closer::operator()(sqlite3* db) const {
  sqlite3_close(db);
}

void Connection::Open(const std::string& path) {
  Close();
  if (!fs::exists(path)) CreateDefaultDatabase(path);
  sqlite3* raw = nullptr;
  int rc = sqlite3_open_v2(path.c_str(), &raw, SQLITE_OPEN_READWRITE, nullptr);
  db_.reset(raw);
  if (rc != SQLITE_OK) {
    std::string error = raw ? sqlite3_errmsg(raw) : "out of memory";
    db_.reset();
    RaiseDatabaseError("Could not open the settings file '" + path + "': " + error);
  }
  sqlite3_busy_timeout(raw, 2000);
}

void Connection::Close() {
  db_.reset();
}

void OpenDatabase(Database& db) {
  db.DbConn.Open(db.path);
  db.DbRs.CursorLocation = 3;
}

void CloseDatabase(Database& db) {
  if (db.DbRs.State() == adStateOpen) db.DbRs.Close();
  if (db.DbConn.State() == adStateOpen) db.DbConn.Close();
  db.DbRs = Recordset();
}

}  // namespace lp
