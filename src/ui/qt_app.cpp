#include "ui/qt_app.h"

#include <cstdio>

namespace lp::ui {
namespace {

// Without a screen the platform's notes (no runtime folder, no window
// manager) are noise in a script's output; real failures still show.
void QuietHandler(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtCriticalMsg || type == QtFatalMsg) fprintf(stderr, "%s\n", qPrintable(message));
}

}  // namespace

QApplication& QtApp::Get() {
  if (!app_) {
    if (offscreen_) {
      qputenv("QT_QPA_PLATFORM", "offscreen");
      qInstallMessageHandler(QuietHandler);
    }
    app_ = std::make_unique<QApplication>(argc_, argv_);
    // A dialog's unload ends the run itself; the last window closing must not.
    app_->setQuitOnLastWindowClosed(false);
  }
  return *app_;
}

}  // namespace lp::ui
