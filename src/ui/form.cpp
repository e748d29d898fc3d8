#include "ui/form.h"

#include <QCloseEvent>

#include "session/exit_lumenpad.h"

namespace lp::ui {

Form::Form(Session& session, QWidget* parent) : QDialog(parent), session_(session) {}

void Form::closeEvent(QCloseEvent* event) {
  event->accept();
  RunGuarded(session_, u"Form_Unload", OnError::kReport, [this] { Unload(); });
  ExitLumenpad(session_);
}

void Form::OnClick(QAbstractButton* button, std::u16string routine, std::function<void()> handler,
                   OnError how) {
  connect(button, &QAbstractButton::clicked, this,
          Guard(std::move(routine), std::move(handler), how));
}

std::function<void()> Form::Guard(std::u16string routine, std::function<void()> handler,
                                  OnError how) {
  return [this, routine = std::move(routine), handler = std::move(handler), how] {
    RunGuarded(session_, routine, how, handler);
  };
}

}  // namespace lp::ui
