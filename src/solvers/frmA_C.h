#pragma once
// Permutations and combinations: m out of n counted, and the symbol typed
// into Word as a field, optionally followed by the count.

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "solvers/a_c.h"
#include "ui/form.h"

namespace lp {

class frmA_C : public ui::Form {
  Q_OBJECT
 public:
  explicit frmA_C(Session& session);

 private:
  ACControls Controls() const;
  void cmdOK_Click();
  void cmdInsert_Click();

  QLabel* Label1;  // widgets owned by the dialog
  QLineEdit* txtM;
  QLineEdit* txtN;
  QRadioButton* optA_0;
  QRadioButton* optA_1;
  QCheckBox* Check1;
  QLabel* lbResult;
};

}  // namespace lp
