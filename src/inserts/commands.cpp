#include "inserts/commands.h"

#include "errorlog/error_log.h"
#include "formula/commands.h"
#include "inserts/inserts.h"
#include "inserts/modes.h"
#include "inserts/shape_tools.h"
#include "runtime/error.h"
#include "session/exit_lumenpad.h"
#include "session/guard.h"

namespace lp {
namespace {

// The routine runs under its own error label, then the run ends.
void Guarded(Session& session, std::u16string_view routine, void (*body)(Session&)) {
  RunGuarded(session, routine, OnError::kReport, [&] { body(session); });
  if (session.WordApp) ExitLumenpad(session);
}

// A selection too small for the field opens the dialog; a dialog not built
// into this program ends the run instead.
void FieldOrDialog(Session& session, Frontend& ui, std::u16string_view routine,
                   InsertOutcome (*insert)(Session&), std::u16string_view form) {
  InsertOutcome outcome = InsertOutcome::kDone;
  RunGuarded(session, routine, OnError::kReport, [&] { outcome = insert(session); });
  if (outcome == InsertOutcome::kToFormula) {
    GsCommand(session, ui);
  } else if (outcome == InsertOutcome::kShowDialog) {
    try {
      ui.ShowForm(form, false);
      return;
    } catch (const RuntimeError&) {
    }
  }
  if (session.WordApp) ExitLumenpad(session);
}

DriverControl ControlFor(Session& session, Frontend& ui) {
  return FormulaControl(session, [&ui] {
    ui.PumpEvents();
    return true;
  });
}

}  // namespace

void FractionCommand(Session& session, Frontend& ui) {
  FieldOrDialog(session, ui, u"InsertFractionField", &InsertFractionField, u"frmFraction");
}

void RadicalExpressionCommand(Session& session, Frontend& ui) {
  FieldOrDialog(session, ui, u"InsertRadicalField", &InsertRadicalField, u"frmRadicalExpression");
}

void ArcCommand(Session& session, Frontend&) {
  Guarded(session, u"InsertArcMark", &InsertArcMark);
}

void VectorCommand(Session& session, Frontend&) {
  Guarded(session, u"InsertVectorMark", &InsertVectorMark);
}

void EquationSystemCommand(Session& session, Frontend& ui) {
  const DriverControl control = ControlFor(session, ui);
  RunGuarded(session, u"InsertEquationSystem", OnError::kReport,
             [&] { InsertEquationSystem(session, control); });
  if (session.WordApp) ExitLumenpad(session);
}

void RecurringDecimalCommand(Session& session, Frontend&) {
  Guarded(session, u"InsertRecurringDecimal", &InsertRecurringDecimal);
}

void JoinLRCommand(Session& session, Frontend&) {
  RunGuarded(session, u"Join_LR", OnError::kReport, [&] { JoinLeftToRight(session); });
}

void JoinUDCommand(Session& session, Frontend&) {
  RunGuarded(session, u"Join_UD", OnError::kReport, [&] { JoinTopToBottom(session); });
}

void GroupCommand(Session& session, Frontend&) {
  Guarded(session, u"GroupSelection", &GroupSelection);
}

void DrawCenterCommand(Session& session, Frontend&) {
  Guarded(session, u"DrawCenter", &DrawCenter);
}

void EnlargeCommand(Session& session, Frontend&) {
  try {
    EnlargeSelection(session);
  } catch (const std::exception& e) {
    ReportError(session.prompt, u"Enlarge", e);  // its label has no line
  }
  if (session.WordApp) ExitLumenpad(session);
}

void BlankBoxCommand(Session& session, Frontend&) {
  Guarded(session, u"InsertPlainTextBox", [](Session& s) { InsertPlainTextBox(s, u" "); });
}

void YesBoxCommand(Session& session, Frontend&) {
  Guarded(session, u"InsertPlainTextBox", [](Session& s) { InsertPlainTextBox(s, u"Y"); });
}

void NoBoxCommand(Session& session, Frontend&) {
  Guarded(session, u"InsertPlainTextBox", [](Session& s) { InsertPlainTextBox(s, u"N"); });
}

void SetHotKeyCommand(Session& session, Frontend&) {
  RunGuarded(session, u"SetHotKey", OnError::kReport, [&] { SetHotKey(session); });
}

void FormulaModeCommand(Session& session, Frontend&) {
  Guarded(session, u"ToggleFormulaMode", &ToggleFormulaMode);
}

void DrawingModeCommand(Session& session, Frontend&) {
  Guarded(session, u"ToggleDrawingMode", &ToggleDrawingMode);
}

}  // namespace lp
