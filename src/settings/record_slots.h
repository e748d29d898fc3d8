#pragma once
// The record slots: one row of the table record per dialog, holding the
// dialog's last state as one string, as a rule fields joined by "@@".

#include <string>

namespace lp {

// The slots the program owns, 1 to kRecordSlotCount: 1 unused, 2 and 3 the
// gallery, 4 frmDot, 5 frmZFT, 6 frmXDT, 7 frmSXT, 8 frmSector, 9 frmInterval,
// 10 frmFangGe, 11 frmAngle2Radian, 12 frmFraction, 13 frmRadicalExpression,
// 14 frmKT, 15 frmShapeSelecter, 16 frmSavePic.
constexpr int kRecordSlotCount = 16;

// The statements of a slot, blanks as the program has always sent them.
std::string RecordReadStatement(int id);   // "select data from  record  where id=4"
std::string RecordWriteStatement(int id);  // "select * from  record where id=4"

// What a dialog reads on load: the Data of slot id. Raises lp::RuntimeError
// when the database fails or the slot is absent.
std::u16string ReadRecordSlot(const std::string& dbPath, int id);
// What a dialog writes on unload: Date and Time of now, and Data.
void WriteRecordSlot(const std::string& dbPath, int id, const std::u16string& data);

}  // namespace lp
