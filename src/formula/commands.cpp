#include "formula/commands.h"

namespace lp {

DriverControl FormulaControl(const Session& session, std::function<bool()> pump) {
  if (session.headless) return DriverControl::WithTimeout(session.formulaTimeLimit);
  DriverControl control;
  control.pump = std::move(pump);
  return control;
}

void GsCommand(Session& session, Frontend& ui) {
  const auto pump = [&ui] {
    ui.PumpEvents();
    return true;
  };
  switch (RunGs(session, FormulaControl(session, pump))) {
    case GsOutcome::kShowDialog:
      ui.ShowForm(u"frmGS", false);
      break;
    case GsOutcome::kTimedOut:
      session.exitStatus = kExitTimedOut;
      break;
    case GsOutcome::kDone:
      break;
  }
}

void MhgsCommand(Session& session, Frontend&) {
  RunMhgs(session);
}

}  // namespace lp
