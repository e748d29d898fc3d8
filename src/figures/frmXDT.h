#pragma once
// The segment diagram dialog: the bar's length and tick height, and a ratio
// or a number of equal parts. Its state comes back from record slot 6.

#include <QLineEdit>
#include <QRadioButton>

#include "ui/form.h"

namespace lp {

class frmXDT : public ui::Form {
  Q_OBJECT
 public:
  explicit frmXDT(Session& session);

 protected:
  void Unload() override;

 private:
  void Form_Load();
  void cmdOK_Click();

  QLineEdit* txtLen0;  // owned by the dialog
  QLineEdit* txtLen1;
  QRadioButton* optBL;
  QLineEdit* txtBL;
  QRadioButton* optDF;
  QLineEdit* txtDF;
};

}  // namespace lp
