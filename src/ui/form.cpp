#include "ui/form.h"

#include <QCloseEvent>

#include "launcher/exit_lumenpad.h"

namespace lp::ui {

Form::Form(Session& session, QWidget* parent) : QDialog(parent), session_(session) {}

void Form::closeEvent(QCloseEvent* event) {
  event->accept();
  Unload();
  ExitLumenpad(session_);
}

}  // namespace lp::ui
