#pragma once
// The formula dialog: one line for the notation, eight links to its rules,
// and a panel with the rule's text and its picture. Each key that starts a
// construct brings up that construct's rule.

#include <QLabel>
#include <QLineEdit>
#include <array>

#include "ui/form.h"

namespace lp {

class frmGS : public ui::Form {
  Q_OBJECT
 public:
  explicit frmGS(Session& session);

  void lbhelp_Click(int index);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void cmdOK_Click();
  void Convert();

  QLineEdit* txtGS;  // owned by the dialog
  QLabel* Image1;
  std::array<QLabel*, 9> lbhelp{};
  bool converting_ = false;
  bool cancelled_ = false;
};

}  // namespace lp
