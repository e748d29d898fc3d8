#include <sqlite3.h>

#include <algorithm>
#include <cctype>
#include <regex>
#include <string>

#include "runtime/error.h"
#include "runtime/utf8.h"
#include "settings/database.h"

namespace lp {
namespace {

[[noreturn]] void RaiseSqlError(sqlite3* db) {
  throw RuntimeError(kDatabaseError, DatabaseProblem(sqlite3_errcode(db)));
}

bool SameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return std::tolower(static_cast<unsigned char>(x)) ==
           std::tolower(static_cast<unsigned char>(y));
  });
}

struct Statement {
  sqlite3_stmt* stmt = nullptr;
  ~Statement() { sqlite3_finalize(stmt); }
};

DbValue ColumnValue(sqlite3_stmt* stmt, int i) {
  switch (sqlite3_column_type(stmt, i)) {
    case SQLITE_INTEGER:
      return static_cast<int64_t>(sqlite3_column_int64(stmt, i));
    case SQLITE_FLOAT:
      return sqlite3_column_double(stmt, i);
    case SQLITE_TEXT:
      return FromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, i)));
    case SQLITE_BLOB: {
      auto* data = static_cast<const uint8_t*>(sqlite3_column_blob(stmt, i));
      return std::vector<uint8_t>(data, data + sqlite3_column_bytes(stmt, i));
    }
    default:
      return std::monostate{};
  }
}

void Bind(sqlite3_stmt* stmt, int index, const DbValue& v) {
  if (auto* i = std::get_if<int64_t>(&v)) {
    sqlite3_bind_int64(stmt, index, *i);
  } else if (auto* d = std::get_if<double>(&v)) {
    sqlite3_bind_double(stmt, index, *d);
  } else if (auto* s = std::get_if<std::u16string>(&v)) {
    sqlite3_bind_text(stmt, index, ToUtf8(*s).c_str(), -1, SQLITE_TRANSIENT);
  } else if (auto* b = std::get_if<std::vector<uint8_t>>(&v)) {
    sqlite3_bind_blob(stmt, index, b->data(), static_cast<int>(b->size()), SQLITE_TRANSIENT);
  } else {
    sqlite3_bind_null(stmt, index);
  }
}

// A select over one table is read with its rowid in front, so that Update can
// find the row again; any other statement is read as it stands.
std::string TableOf(const std::string& sql) {
  static const std::regex single(R"(^\s*select\s.*?\sfrom\s+(\w+)(\s+where\s.*|\s+order\s.*|\s*)$)",
                                 std::regex::icase);
  std::smatch m;
  return std::regex_match(sql, m, single) ? m[1].str() : std::string();
}

}  // namespace

void Recordset::Open(const std::string& sql, Connection& conn) {
  if (conn.State() != adStateOpen) throw RuntimeError(3709);
  Close();
  sqlite3* db = conn.Handle();
  table_ = TableOf(sql);
  Statement st;
  if (!table_.empty()) {
    std::string withRowid = "select rowid, " + sql.substr(sql.find_first_not_of(" \t") + 6);
    if (sqlite3_prepare_v2(db, withRowid.c_str(), -1, &st.stmt, nullptr) != SQLITE_OK)
      table_.clear();  // not a plain select over the table: read-only
  }
  if (table_.empty() && sqlite3_prepare_v2(db, sql.c_str(), -1, &st.stmt, nullptr) != SQLITE_OK)
    RaiseSqlError(db);
  int first = table_.empty() ? 0 : 1;
  for (int i = first; i < sqlite3_column_count(st.stmt); ++i)
    columns_.push_back(sqlite3_column_name(st.stmt, i));
  int rc;
  while ((rc = sqlite3_step(st.stmt)) == SQLITE_ROW) {
    Row row;
    if (first) row.rowid = sqlite3_column_int64(st.stmt, 0);
    for (int i = first; i < sqlite3_column_count(st.stmt); ++i)
      row.values.push_back(ColumnValue(st.stmt, i));
    row.changed.assign(row.values.size(), false);
    rows_.push_back(std::move(row));
  }
  if (rc != SQLITE_DONE) RaiseSqlError(db);
  conn_ = &conn;
  open_ = true;
}

void Recordset::Close() {
  open_ = false;
  conn_ = nullptr;
  table_.clear();
  columns_.clear();
  rows_.clear();
  current_ = 0;
}

void Recordset::MoveNext() {
  if (Eof()) throw RuntimeError(3021);
  ++current_;
}

size_t Recordset::ColumnOf(std::string_view name) const {
  for (size_t i = 0; i < columns_.size(); ++i)
    if (SameName(columns_[i], name)) return i;
  throw RuntimeError(
      3265,
      "Item cannot be found in the collection corresponding to the requested name or ordinal.");
}

Recordset::Row& Recordset::CurrentRow() {
  return const_cast<Row&>(static_cast<const Recordset*>(this)->CurrentRow());
}

const Recordset::Row& Recordset::CurrentRow() const {
  if (!open_) throw RuntimeError(3704);
  if (Eof()) throw RuntimeError(3021);
  return rows_[current_];
}

Field Recordset::Fields(std::string_view name) {
  return Field(*this, ColumnOf(name));
}

const DbValue& Recordset::Value(std::string_view name) const {
  return CurrentRow().values[ColumnOf(name)];
}

void Recordset::AddNew() {
  if (!open_) throw RuntimeError(3704);
  rows_.push_back(
      Row{0, std::vector<DbValue>(columns_.size()), std::vector<bool>(columns_.size(), false)});
  current_ = rows_.size() - 1;
}

void Recordset::Update() {
  Row& row = CurrentRow();
  if (table_.empty()) throw RuntimeError(3251);
  std::vector<size_t> changed;
  for (size_t i = 0; i < columns_.size(); ++i)
    if (row.changed[i]) changed.push_back(i);
  if (changed.empty() && row.rowid != 0) return;
  std::string sql;
  if (row.rowid != 0) {
    sql = "update " + table_ + " set ";
    for (size_t k = 0; k < changed.size(); ++k)
      sql += (k ? ", \"" : "\"") + columns_[changed[k]] + "\" = ?";
    sql += " where rowid = ?";
  } else if (changed.empty()) {
    sql = "insert into " + table_ + " default values";
  } else {
    std::string names, marks;
    for (size_t k = 0; k < changed.size(); ++k) {
      names += (k ? ", \"" : "\"") + columns_[changed[k]] + "\"";
      marks += k ? ", ?" : "?";
    }
    sql = "insert into " + table_ + " (" + names + ") values (" + marks + ")";
  }
  sqlite3* db = conn_->Handle();
  Statement st;
  if (sqlite3_prepare_v2(db, sql.c_str(), -1, &st.stmt, nullptr) != SQLITE_OK) RaiseSqlError(db);
  int index = 1;
  for (size_t i : changed) Bind(st.stmt, index++, row.values[i]);
  if (row.rowid != 0) sqlite3_bind_int64(st.stmt, index, row.rowid);
  if (sqlite3_step(st.stmt) != SQLITE_DONE) RaiseSqlError(db);
  if (row.rowid == 0) row.rowid = sqlite3_last_insert_rowid(db);
  row.changed.assign(columns_.size(), false);
}

void Recordset::Delete() {
  Row& row = CurrentRow();
  if (table_.empty()) throw RuntimeError(3251);
  if (row.rowid == 0) return;
  sqlite3* db = conn_->Handle();
  Statement st;
  const std::string sql = "delete from " + table_ + " where rowid = ?";
  if (sqlite3_prepare_v2(db, sql.c_str(), -1, &st.stmt, nullptr) != SQLITE_OK) RaiseSqlError(db);
  sqlite3_bind_int64(st.stmt, 1, row.rowid);
  if (sqlite3_step(st.stmt) != SQLITE_DONE) RaiseSqlError(db);
  row.rowid = 0;
}

const DbValue& Field::Value() const {
  return rs_.CurrentRow().values[column_];
}

void Field::SetValue(DbValue v) {
  auto& row = rs_.CurrentRow();
  row.values[column_] = std::move(v);
  row.changed[column_] = true;
}

long Field::ActualSize() const {
  const DbValue& v = Value();
  if (auto* b = std::get_if<std::vector<uint8_t>>(&v)) return static_cast<long>(b->size());
  if (auto* s = std::get_if<std::u16string>(&v)) return static_cast<long>(s->size());
  return 0;
}

void Field::AppendChunk(const std::vector<uint8_t>& bytes) {
  std::vector<uint8_t> all;
  if (auto* b = std::get_if<std::vector<uint8_t>>(&Value())) all = *b;
  all.insert(all.end(), bytes.begin(), bytes.end());
  SetValue(std::move(all));
}

// Reading no bytes gives Null, as the data layer did for an empty field.
DbValue Field::GetChunk(long size) const {
  auto* b = std::get_if<std::vector<uint8_t>>(&Value());
  if (!b || size <= 0 || b->empty()) return std::monostate{};
  return std::vector<uint8_t>(b->begin(), b->begin() + std::min<size_t>(size, b->size()));
}

}  // namespace lp
