#include "launcher/command_table.h"

#include "session/exit_lumenpad.h"
#include "session/guard.h"

namespace lp {

const CommandRow& FindCommand(std::u16string_view commandText) {
  for (const CommandRow& row : kCommandTable)
    if (row.word == commandText) return row;
  return kCommandTable.back();
}

Routine FindRoutine(std::span<const RoutineBinding> routines, std::u16string_view word) {
  for (const RoutineBinding& binding : routines)
    if (binding.word == word) return binding.routine;
  return nullptr;
}

void RunCommand(const CommandRow& row, Session& session, Frontend& ui,
                std::span<const RoutineBinding> routines) {
  if (!row.built) {
    ExitLumenpad(session);
    return;
  }
  switch (row.how) {
    case How::kRoutine:
      if (Routine routine = FindRoutine(routines, row.word)) {
        // A routine without a handler of its own reports under SubMain's label.
        RunGuarded(session, u"submain", OnError::kReport, [&] { routine(session, ui); });
      } else {
        ExitLumenpad(session);
      }
      break;
    case How::kModeless:
    case How::kModal:
      RunGuarded(session, u"submain", OnError::kReport,
                 [&] { ui.ShowForm(row.form, row.how == How::kModal); });
      break;
  }
}

void TestCommand(Session&, Frontend&) {}

}  // namespace lp
