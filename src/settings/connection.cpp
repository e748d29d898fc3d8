#include <sqlite3.h>

#include <filesystem>
#include <random>
#include <string>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "runtime/error.h"
#include "settings/database.h"
#include "settings/record_slots.h"
#include "settings/schema.h"

namespace lp {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void RaiseDatabaseError(int code, const std::string& path) {
  throw RuntimeError(kDatabaseError, DatabaseProblem(code) + "：" + path);
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
  if (rc == SQLITE_OK) rc = sqlite3_exec(raw, DefaultSchemaSql(), nullptr, nullptr, nullptr);
  sqlite3_close(raw);
  if (rc == SQLITE_OK) fs::rename(temp, path, ec);
  if (rc != SQLITE_OK || ec) {
    fs::remove(temp, ec);
    RaiseDatabaseError(rc != SQLITE_OK ? rc : SQLITE_CANTOPEN, path.string());
  }
}

// Every slot has its row, empty until its dialog first unloads. A file that
// lacks the table is left as it is: reading a slot then says what is missing.
void AddMissingRecordSlots(sqlite3* db) {
  const std::string sql =
      "WITH RECURSIVE slot(id) AS (SELECT 1 UNION ALL SELECT id + 1 FROM slot WHERE id < " +
      std::to_string(kRecordSlotCount) +
      ") INSERT OR IGNORE INTO record (id, Date, Time, Data) SELECT id, '', '', '' FROM slot";
  sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr);
}

}  // namespace

std::string DatabaseProblem(int sqliteCode) {
  switch (sqliteCode & 0xFF) {
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
      return "设置文件已损坏，不是数据库";
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return "设置文件正被另一个程序使用，请稍后再试";
    case SQLITE_READONLY:
      return "设置文件是只读的，无法写入";
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
      return "无法打开设置文件";
    case SQLITE_FULL:
      return "磁盘已满，设置无法写入";
    case SQLITE_ERROR:
      return "设置文件中缺少所需的表或字段";
    default:
      return "设置文件出错（代码 " + std::to_string(sqliteCode) + "）";
  }
}

void Connection::Closer::operator()(sqlite3* db) const {
  sqlite3_close(db);
}

bool FileWritable(const std::string& path) {
#ifdef _WIN32
  std::error_code ec;
  return (fs::status(path, ec).permissions() & fs::perms::owner_write) != fs::perms::none;
#else
  struct stat st {};
  return ::stat(path.c_str(), &st) == 0 && (st.st_mode & 0222) != 0 &&
         ::access(path.c_str(), W_OK) == 0;
#endif
}

// A file that cannot be written is read where it is: writes go elsewhere
// (WritableDatabasePath). An empty file is a missing one.
void Connection::Open(const std::string& path) {
  Close();
  std::error_code ec;
  if (!fs::exists(path) || fs::file_size(path, ec) == 0) CreateDefaultDatabase(path);
  sqlite3* raw = nullptr;
  const int mode = FileWritable(path) ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY;
  int rc = sqlite3_open_v2(path.c_str(), &raw, mode, nullptr);
  db_.reset(raw);
  if (rc != SQLITE_OK) {
    db_.reset();
    RaiseDatabaseError(rc, path);
  }
  sqlite3_busy_timeout(raw, 2000);
  if (mode == SQLITE_OPEN_READWRITE) AddMissingRecordSlots(raw);
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
