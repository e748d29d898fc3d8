#pragma once
// The equation solvers on two tabs: a linear equation in x and a quadratic
// one with whole coefficients, each solved in the dialog and, on request,
// typed into Word with its worked solution.

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <optional>

#include "toolkit/answers.h"
#include "ui/form.h"

namespace lp {

class frmEquation : public ui::Form {
  Q_OBJECT
 public:
  explicit frmEquation(Session& session);

 private:
  QWidget* LinearTab();
  QWidget* QuadraticTab();
  void cmdOK_L_Click();
  void cmdInsert_L_Click();
  void cmdOK_Q_Click();
  void cmdInsert_Q_Click();

  std::optional<LinearSolution> linear_;
  std::optional<QuadraticSolution> quadratic_;
  QLineEdit* txtL_Equation;  // widgets owned by the dialog
  QLabel* labSolution_L;
  QRadioButton* optAll_L;
  QLineEdit* txtQ_Equation;
  QListWidget* List_Q;
  QRadioButton* optAll_Q;
};

}  // namespace lp
