#pragma once
// The base of every dialog of the command table: closing it in any way is
// its unload, and unloading ends the run through ExitLumenpad.

#include <QDialog>

#include "word/session.h"

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

  Session& session_;
};

}  // namespace lp::ui
