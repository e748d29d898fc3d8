#pragma once
// The settings database: a connection and a client-side recordset over
// SQLite that run the program's statements as they are written ("select data
// from  record  where id=3", "select * from  record where id=3", then set the
// fields and Update). Failures raise lp::RuntimeError.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

struct sqlite3;

namespace lp {

// A field's value: Null, integer, real, text or bytes.
using DbValue = std::variant<std::monostate, int64_t, double, std::u16string, std::vector<uint8_t>>;

// The value converted as the runtime converts it; Null raises "Invalid use of
// Null" (94), text that is no number raises a type mismatch.
int16_t CBoolValue(const DbValue& v);  // True is -1
int16_t CIntValue(const DbValue& v);
std::u16string CStrValue(const DbValue& v);

// The number that database failures carry, as the data layer reported them.
constexpr int kDatabaseError = -2147467259;
// Whether the file may be written; a file without any write permission counts
// as read-only even for the administrator.
bool FileWritable(const std::string& path);
// What went wrong with the settings file, in Chinese, for an SQLite result code.
std::string DatabaseProblem(int sqliteCode);

enum ObjectState { adStateClosed = 0, adStateOpen = 1 };

class Connection {
 public:
  // Opens the file; a file that isn't there yet is created with the default
  // tables and rows first.
  void Open(const std::string& path);
  void Close();
  int State() const { return db_ ? adStateOpen : adStateClosed; }
  sqlite3* Handle() const { return db_.get(); }

 private:
  struct Closer {
    void operator()(sqlite3* db) const;
  };
  std::unique_ptr<sqlite3, Closer> db_;
};

class Recordset;

// One field of the current row.
class Field {
 public:
  Field(Recordset& rs, size_t column) : rs_(rs), column_(column) {}
  const DbValue& Value() const;
  void SetValue(DbValue v);
  // Binary fields: the bytes stored, appended to, and read back.
  long ActualSize() const;
  void AppendChunk(const std::vector<uint8_t>& bytes);
  DbValue GetChunk(long size) const;

 private:
  Recordset& rs_;
  size_t column_;
};

class Recordset {
 public:
  int CursorLocation = 3;  // client side: every row is read at Open

  void Open(const std::string& sql, Connection& conn);
  void Close();
  int State() const { return open_ ? adStateOpen : adStateClosed; }
  bool Eof() const { return current_ >= rows_.size(); }
  long RecordCount() const { return static_cast<long>(rows_.size()); }
  void MoveNext();
  void MoveFirst() { current_ = 0; }

  // Column names compare without regard to case; an unknown name raises
  // error 3265.
  Field Fields(std::string_view name);
  const DbValue& Value(std::string_view name) const;
  void SetValue(std::string_view name, DbValue v) { Fields(name).SetValue(std::move(v)); }

  // A new row at the end, written by the next Update.
  void AddNew();
  // Writes the changed fields of the current row back to its table.
  void Update();
  // Takes the current row out of its table; the recordset keeps it, marked
  // gone, until it is opened again.
  void Delete();

 private:
  friend class Field;
  struct Row {
    int64_t rowid = 0;  // 0: not yet in the table
    std::vector<DbValue> values;
    std::vector<bool> changed;
  };
  size_t ColumnOf(std::string_view name) const;
  Row& CurrentRow();
  const Row& CurrentRow() const;

  bool open_ = false;
  Connection* conn_ = nullptr;  // not owned
  std::string table_;           // empty when the statement can't be written back
  std::vector<std::string> columns_;
  std::vector<Row> rows_;
  size_t current_ = 0;
};

// The two handles of one use of the database, and the file they serve.
struct Database {
  explicit Database(std::string filePath) : path(std::move(filePath)) {}
  std::string path;
  Connection DbConn;
  Recordset DbRs;
};

void OpenDatabase(Database& db);
void CloseDatabase(Database& db);

}  // namespace lp
