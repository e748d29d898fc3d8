#include "ui/qt_frontend.h"

#include <QMessageBox>

#include "runtime/error.h"
#include "runtime/utf8.h"
#include "session/exit_lumenpad.h"

namespace lp::ui {

void QtFrontend::ShowSplash() {
  app_.Get();
  splash_ =
      std::make_unique<frmMain>([this] { ExitLumenpad(session_); },
                                [this] {
                                  QMessageBox::about(splash_.get(), QStringLiteral("软件信息"),
                                                     QStringLiteral("流明画板 " LP_VERSION));
                                });
  splash_->show();
}

void QtFrontend::SetSplashProgress(const std::u16string& text) {
  if (splash_) splash_->SetProgress(QString::fromStdU16String(text));
}

void QtFrontend::UnloadSplash() {
  splash_.reset();
}

void QtFrontend::PumpEvents() {
  if (QCoreApplication::instance()) QCoreApplication::processEvents();
}

void QtFrontend::ShowForm(std::u16string_view name, bool modal) {
  app_.Get();
  FormMaker make = findForm_(name);
  if (!make)
    throw RuntimeError(kInvalidProcedureCall, "没有这个对话框：" + ToUtf8(std::u16string(name)));
  form_ = make(session_);
  if (modal && !session_.headless) {
    form_->exec();
  } else {
    form_->show();
  }
}

}  // namespace lp::ui
