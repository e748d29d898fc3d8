#pragma once
// The factoring dialog: one positive integer in, its prime factorisation in
// the label and, on request, typed into Word with real exponents.

#include <QLabel>
#include <QLineEdit>

#include "solvers/factoring.h"
#include "ui/form.h"

namespace lp {

class frmFactoring : public ui::Form {
  Q_OBJECT
 public:
  explicit frmFactoring(Session& session);

 private:
  void Command1_Click();
  void cmdInsert_Click();

  Factorisation state_;
  QLineEdit* Text1;  // owned by the dialog
  QLabel* Label1;
};

}  // namespace lp
