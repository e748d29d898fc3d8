#pragma once
// The inequality solver: a linear inequality in x solved in the label and, on
// request, its worked solution typed into Word with the set and the number line.

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <optional>

#include "toolkit/answers.h"
#include "ui/form.h"

namespace lp {

class frmInequality : public ui::Form {
  Q_OBJECT
 public:
  explicit frmInequality(Session& session);

 private:
  void cmdOK_Click();
  void cmdInsert_Click();

  std::optional<InequalitySolution> solution_;
  QLineEdit* Text1;  // widgets owned by the dialog
  QLabel* Label1;
  QRadioButton* optAll;
  QRadioButton* optKeyOnly;
  QCheckBox* chkSet;
  QCheckBox* chkNumberAxis;
};

}  // namespace lp
