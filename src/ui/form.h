#pragma once
// The base of every dialog of the command table: closing it in any way is
// its unload, and unloading ends the run through ExitLumenpad. Every event a
// dialog handles runs inside the session's guard.

#include <QAbstractButton>
#include <QDialog>
#include <functional>
#include <memory>
#include <string>

#include "session/guard.h"
#include "session/session.h"

namespace lp::ui {

class Form : public QDialog {
  Q_OBJECT
 public:
  explicit Form(Session& session, QWidget* parent = nullptr);

 protected:
  // What the dialog does on unload before the run ends, such as writing its
  // record slot.
  virtual void Unload() {}
  void closeEvent(QCloseEvent* event) override;
  void reject() override { close(); }

  // Runs handler on each click of button, inside the guard under the
  // routine's name (such as u"cmdOK_Click").
  void OnClick(QAbstractButton* button, std::u16string routine, std::function<void()> handler,
               OnError how = OnError::kReport);
  // The handler wrapped in the guard, for any other signal.
  std::function<void()> Guard(std::u16string routine, std::function<void()> handler,
                              OnError how = OnError::kReport);

  Session& session_;
};

// Makes the dialog F of the command table.
using FormMaker = std::unique_ptr<Form> (*)(Session&);
template <class F>
std::unique_ptr<Form> MakeForm(Session& session) {
  return std::make_unique<F>(session);
}

}  // namespace lp::ui
