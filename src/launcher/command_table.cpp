#include "launcher/command_table.h"

namespace lp {

const CommandRow& FindCommand(std::u16string_view commandText) {
  for (const CommandRow& row : kCommandTable)
    if (row.word == commandText) return row;
  return kCommandTable.back();
}

void RunCommand(const CommandRow& row, Session& session, Frontend& ui) {
  if (!row.built) {
    ExitLumenpad(session);
    return;
  }
  switch (row.how) {
    case How::kRoutine:
      row.routine(session, ui);
      break;
    case How::kModeless:
      ui.ShowForm(row.form, false);
      break;
    case How::kModal:
      ui.ShowForm(row.form, true);
      break;
  }
}

}  // namespace lp
