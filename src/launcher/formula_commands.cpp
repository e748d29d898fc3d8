#include "launcher/formula_commands.h"

#include <chrono>

#include "formula/commands.h"

namespace lp {
namespace {

// With a teacher watching, the driver keeps the program responsive; in a
// script nobody can cancel, so a formula that never ends is cut off in time.
constexpr std::chrono::seconds kHeadlessFormulaLimit{5};
constexpr int kTimedOutStatus = 3;

DriverControl ControlFor(Frontend& ui) {
  if (ui.Headless()) return DriverControl::WithTimeout(kHeadlessFormulaLimit);
  DriverControl control;
  control.pump = [&ui] {
    ui.PumpEvents();
    return true;
  };
  return control;
}

}  // namespace

void GsCommand(Session& session, Frontend& ui) {
  switch (RunGs(session, ControlFor(ui))) {
    case GsOutcome::kShowDialog:
      ui.ShowForm(u"frmGS", false);
      break;
    case GsOutcome::kTimedOut:
      session.exitStatus = kTimedOutStatus;
      break;
    case GsOutcome::kDone:
      break;
  }
}

void MhgsCommand(Session& session, Frontend&) {
  RunMhgs(session);
}

}  // namespace lp
