#include "settings/record_slots.h"

#include <ctime>
#include <string>

#include "runtime/clock.h"
#include "runtime/utf8.h"
#include "settings/database.h"
#include "settings/settings_store.h"

namespace lp {
namespace {

// Today's date and the present time as a Chinese system writes them:
// "2024/5/1" and "14:03:05".
std::u16string DateText(const std::tm& t) {
  return FromUtf8(std::to_string(t.tm_year + 1900) + "/" + std::to_string(t.tm_mon + 1) + "/" +
                  std::to_string(t.tm_mday));
}

std::u16string TimeText(const std::tm& t) {
  char buf[16];
  std::strftime(buf, sizeof buf, "%H:%M:%S", &t);
  return FromUtf8(buf);
}

}  // namespace

std::string RecordReadStatement(int id) {
  // Slot 2 has always been read with its own spacing.
  if (id == 2) return "select data from  record where id =2";
  return "select data from  record  where id=" + std::to_string(id);
}

std::string RecordWriteStatement(int id) {
  return "select * from  record where id=" + std::to_string(id);
}

// Slots are written where writes go, and read back from there.
std::u16string ReadRecordSlot(const std::string& dbPath, int id) {
  Database db(WritableDatabasePath(dbPath));
  OpenDatabase(db);
  if (db.DbRs.State() == adStateOpen) db.DbRs.Close();
  db.DbRs.Open(RecordReadStatement(id), db.DbConn);
  std::u16string data = CStrValue(db.DbRs.Value("Data"));
  db.DbRs.Close();
  return data;
}

void WriteRecordSlot(const std::string& dbPath, int id, const std::u16string& data) {
  Database db(WritableDatabasePath(dbPath));
  OpenDatabase(db);
  db.DbRs.Open(RecordWriteStatement(id), db.DbConn);
  const std::tm local = lp::LocalTime(std::time(nullptr));
  db.DbRs.SetValue("Date", DateText(local));
  db.DbRs.SetValue("Time", TimeText(local));
  db.DbRs.SetValue("Data", data);
  db.DbRs.Update();
  CloseDatabase(db);
}

}  // namespace lp
