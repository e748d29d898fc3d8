#pragma once
// The record slots: one row of the table record per dialog, holding the
// dialog's last state as one string, as a rule fields joined by "@@".

#include <string>

namespace lp {

// The statements of a slot, blanks as the program has always sent them.
std::string RecordReadStatement(int id);   // "select data from  record  where id=4"
std::string RecordWriteStatement(int id);  // "select * from  record where id=4"

// What a dialog reads on load: the Data of slot id. Raises lp::RuntimeError
// when the database fails or the slot is absent.
std::u16string ReadRecordSlot(const std::string& dbPath, int id);
// What a dialog writes on unload: Date and Time of now, and Data.
void WriteRecordSlot(const std::string& dbPath, int id, const std::u16string& data);

}  // namespace lp
