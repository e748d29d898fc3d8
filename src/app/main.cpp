// lumenpad: one command word per run. Utility modes first, then the Word of
// the run, the prompt, and SubMain; every end of the run goes through Finish,
// which keeps the teacher's document before the process leaves.

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "app/back_end.h"
#include "app/program_folder.h"
#include "app/utility_dispatch.h"
#include "errorlog/error_log.h"
#include "launcher/headless_prompt.h"
#include "launcher/run_options.h"
#include "launcher/select_text.h"
#include "launcher/sub_main.h"
#include "runtime/utf8.h"
#include "session/config_word.h"
#include "session/document_init.h"
#include "session/exit_lumenpad.h"
#include "session/guard.h"
#include "session/headless.h"
#include "settings/settings_store.h"
#include "tools/tool_table.h"
#include "ui/headless_driver.h"
#include "ui/qt_frontend.h"
#include "ui/qt_prompt.h"
#include "word/docx/docx_error.h"

#ifdef __GLIBC__  // known once a C library header is in
#include <malloc.h>
#endif

namespace lp {
namespace {

void Complain(const std::string& text) {
  std::fprintf(stderr, "lumenpad: %s\n", text.c_str());
}

class Run {
 public:
  Run(const RunOptions& options, BackEnd& backEnd)
      : options_(options),
        backEnd_(backEnd),
        headless_(RunIsHeadless(options.Driven() || !options.answers.empty())),
        qt_(headless_),
        prompt_(MakePrompt()),
        session_(*prompt_),
        frontend_(qt_, session_, &tools::FindForm) {
    session_.headless = headless_;
    session_.fileMode = !options.doc.empty();
    session_.programFolder = FromUtf8(ProgramFolder());
    session_.databasePath = DatabasePath(options.config, ProgramFolder());
    session_.EndRun = [this] { Finish(); };
  }

  int Go() {
    SubMain(session_, frontend_, tools::Routines(), FromUtf8(options_.commandLine),
            [this] { return DocumentInit(); });
    if (frontend_.OpenForm()) {
      if (headless_) {
        Drive(*frontend_.OpenForm());
      } else {
        qt_.Get().exec();
      }
    }
    Finish();
    return status_;
  }

 private:
  std::unique_ptr<Prompt> MakePrompt() {
    if (!headless_) return std::make_unique<ui::QtPrompt>(qt_);
    auto prompt = std::make_unique<HeadlessPrompt>();
    for (const std::string& answer : options_.answers) prompt->Answer(FromUtf8(answer));
    return prompt;
  }

  bool DocumentInit() {
    if (!Document_Init(session_, backEnd_.Connector(), [this] { ConfigWord(session_); })) {
      status_ = kExitNoWord;
      return false;
    }
    connected_ = true;
    if (options_.haveSelect && !SelectFirst(*session_.WordApp, FromUtf8(options_.select))) {
      Complain("--select: the document doesn't hold " + options_.select);
      status_ = kExitUsage;
      return false;
    }
    if (options_.caretOnly) session_.WordApp->Selection().Delete();
    if (options_.haveSelectShape &&
        !SelectShape(*session_.WordApp, FromUtf8(options_.selectShape))) {
      Complain("--select-shape: the document has no shape named " + options_.selectShape);
      status_ = kExitUsage;
      return false;
    }
    return true;
  }

  // The dialog's unload ends the run; a dialog still open after the last
  // action ends with it.
  // Each action runs inside the guard, as a click by hand would.
  void Drive(QWidget& form) {
    for (const ControlAction& action : options_.actions) {
      bool refused = false;
      RunGuarded(session_, FromUtf8(action.name), OnError::kReport, [&] {
        try {
          ui::ApplyAction(form, action);
        } catch (const ui::DriverError& e) {
          Complain(e.what());
          status_ = kExitUsage;
          refused = true;
        }
        QCoreApplication::processEvents();
      });
      if (refused) break;
    }
    ExitLumenpad(session_);
  }

  // Saves the document if the run changed it, then leaves at once. A run
  // that never reached the document (no companion, no Word) writes nothing.
  [[noreturn]] void Finish() {
    try {
      if (connected_) backEnd_.SaveIfChanged();
    } catch (const std::exception& e) {
      ReportError(*prompt_, u"exitlumenpad", e);
      status_ = 1;
    }
    std::fflush(stdout);
    std::fflush(stderr);
    std::_Exit(status_ != 0 ? status_ : session_.exitStatus);
  }

  const RunOptions& options_;
  BackEnd& backEnd_;
  bool headless_;
  ui::QtApp qt_;
  std::unique_ptr<Prompt> prompt_;
  Session session_;
  ui::QtFrontend frontend_;
  int status_ = 0;
  bool connected_ = false;
};

int Main(const std::vector<std::string>& args) {
  if (auto status = RunUtilityMode(args)) return *status;
  RunOptions options;
  std::unique_ptr<BackEnd> backEnd;
  try {
    options = ParseRunOptions(args);
    if (options.help) {
      std::fputs(UsageText().c_str(), stdout);
      return 0;
    }
    // Word's own state of the .docx engine lives beside the settings.
    const std::string database = DatabasePath(options.config, ProgramFolder());
    const size_t folderEnd = database.find_last_of("/\\") + 1;  // 0 without a folder
    backEnd = MakeBackEnd(options.doc, database.substr(0, folderEnd) + "word_state.xml");
  } catch (const UsageError& e) {
    Complain(e.what());
    return 2;
  } catch (const word::docx::DocxFileError& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return 2;
  }
  Run run(options, *backEnd);
  return run.Go();
}

}  // namespace
}  // namespace lp

int main(int argc, char** argv) {
#ifdef __GLIBC__
  // A run is short and a batch opens document after document of a similar
  // size: freed memory is kept for the next one rather than handed back to
  // the system and faulted in again, which cost a batch a tenth of its time.
  mallopt(M_MMAP_THRESHOLD, 64 << 20);
  mallopt(M_TRIM_THRESHOLD, 256 << 20);
#endif
  return lp::Main(std::vector<std::string>(argv + 1, argv + argc));
}
