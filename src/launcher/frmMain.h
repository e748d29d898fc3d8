#pragma once
// The splash of a run without a command word: it tells how far start-up has
// come while Word is connected.

#include <QDialog>
#include <QLabel>
#include <functional>

namespace lp {

class frmMain : public QDialog {
  Q_OBJECT
 public:
  // onExit ends the run at once; onTry shows the program's information.
  frmMain(std::function<void()> onExit, std::function<void()> onTry);
  // Label(0): painted at once, since nothing yields to the event loop while
  // Word is connected.
  void SetProgress(const QString& text);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QLabel* progress_;  // owned by the dialog
};

}  // namespace lp
