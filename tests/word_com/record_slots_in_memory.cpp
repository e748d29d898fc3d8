// The record slots for the MinGW build of the Wine tests, which has no
// SQLite: kept in memory per database path, every slot starting empty.
#include <map>

#include "runtime/utf8.h"
#include "settings/record_slots.h"

namespace lp {

namespace {

std::map<std::pair<std::string, int>, std::u16string>& Slots() {
  static std::map<std::pair<std::string, int>, std::u16string> slots;
  return slots;
}

}  // namespace

std::string RecordReadStatement(int id) {
  return "select data from  record  where id=" + std::to_string(id);
}

std::string RecordWriteStatement(int id) {
  return "select * from  record where id=" + std::to_string(id);
}

std::u16string ReadRecordSlot(const std::string& dbPath, int id) {
  return Slots()[{dbPath, id}];
}

void WriteRecordSlot(const std::string& dbPath, int id, const std::u16string& data) {
  Slots()[{dbPath, id}] = data;
}

}  // namespace lp
