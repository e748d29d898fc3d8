#include "launcher/sub_main.h"

#include <exception>

#include "errorlog/error_log.h"
#include "launcher/browse_my_site.h"
#include "launcher/command_table.h"
#include "runtime/text.h"
#include "session/exit_lumenpad.h"

namespace lp {
namespace {

// The empty command shows the splash while Word is connected. Returns whether
// the run goes on to the command table.
bool StartWithSplash(Session& session, Frontend& ui, const std::function<bool()>& documentInit) {
  ui.ShowSplash();
  ui.SetSplashProgress(u"正在连接word，请稍候...");
  if (!documentInit()) {
    ExitLumenpad(session);
    return false;
  }
  ui.SetSplashProgress(u"流明画板初始化工作完成，可以开始工作了！");
  ui.UnloadSplash();
  return session.TemplateAttached == 0;
}

}  // namespace

void SubMain(Session& session, Frontend& ui, std::span<const RoutineBinding> routines,
             const std::u16string& commandLine, const std::function<bool()>& documentInit) {
  try {
    const std::u16string commandText = LCase(commandLine);
    if (!BrowseMySite(session)) return;
    if (!commandText.empty()) {
      if (!documentInit()) {
        ExitLumenpad(session);
        return;
      }
    } else if (!StartWithSplash(session, ui, documentInit)) {
      return;
    }
    session.FigureOriginX = 180;
    session.FigureOriginY = 180;
    RunCommand(FindCommand(commandText), session, ui, routines);
  } catch (const std::exception& e) {
    ReportError(session.prompt, ErrorLabel(u"submain"), e);
  }
}

}  // namespace lp
