#include "session/exit_lumenpad.h"

#include <exception>

#include "errorlog/error_log.h"

namespace lp {

void ExitLumenpad(Session& session) {
  try {
    session.WordApp = nullptr;
    if (session.EndRun) session.EndRun();
  } catch (const std::exception& e) {
    ReportError(session.prompt, u"exitlumenpad", e);
  }
}

}  // namespace lp
