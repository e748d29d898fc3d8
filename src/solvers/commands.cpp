#include "solvers/commands.h"

#include "formula/commands.h"
#include "formula/insert.h"
#include "runtime/text.h"
#include "session/exit_lumenpad.h"
#include "session/guard.h"
#include "solvers/shushi.h"

namespace lp {

void ShuShiCommand(Session& session, Frontend&) {
  RunGuarded(session, u"ShuShi", OnError::kReport, [&session] { ShuShi(session); });
  ExitLumenpad(session);
}

void PermutationCommand(Session& session, Frontend& ui) {
  word::Selection& selection = session.WordApp->Selection();
  if (selection.Range()->End() - selection.Start() == 0) {
    ui.ShowForm(u"frmA_C", false);
    return;
  }
  // A last paragraph mark stays in the document, out of the formula.
  std::u16string text = selection.Text();
  if (Right(text, 1) == u"\r") {
    selection.SetEnd(selection.End() - 1);
    text = Left(text, Len(text) - 1);
  }
  const auto pump = [&ui] {
    ui.PumpEvents();
    return true;
  };
  InsertFormulaAsField(session, text, FormulaControl(session, pump));
}

}  // namespace lp
