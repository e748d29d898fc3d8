#include "session/guard.h"

#include <exception>
#include <string>

#include "errorlog/error_log.h"
#include "runtime/convert.h"
#include "runtime/error.h"
#include "runtime/text.h"
#include "session/exit_lumenpad.h"

namespace lp {

void ShowUnhandledError(Session& session, const std::exception& error) {
  const ErrInfo err = ErrOf(error);
  session.prompt.MsgBox(u"运行时错误 '" + Trim(Str(err.number)) + u"':\r\n\r\n" + err.description,
                        vbOKOnly, u"流明画板");
}

namespace {

void Handle(Session& session, std::u16string_view routine, OnError how, const std::exception& e) {
  if (how == OnError::kReport) {
    ReportError(session.prompt, ErrorLabel(std::u16string(routine)), e);
    return;
  }
  ShowUnhandledError(session, e);
  ExitLumenpad(session);
}

}  // namespace

void RunGuarded(Session& session, std::u16string_view routine, OnError how,
                const std::function<void()>& body) {
  try {
    body();
  } catch (const std::exception& e) {
    Handle(session, routine, how, e);
  } catch (...) {
    // Not one of ours: still no way out past the guard.
    Handle(session, routine, how, RuntimeError(kInternalError));
  }
}

}  // namespace lp
