#pragma once
// Grid paper: square grid, 田字格, 米字格 or coordinate paper, rows and
// cell size, as many columns as fill the text width. Its state comes back
// from record slot 10.

#include <QLineEdit>
#include <QRadioButton>

#include "ui/form.h"

namespace lp {

class frmFangGe : public ui::Form {
  Q_OBJECT
 public:
  explicit frmFangGe(Session& session);

 protected:
  void Unload() override;

 private:
  void Form_Load();
  void cmdOK_Click();

  QRadioButton* optKind[4];  // owned by the dialog
  QLineEdit* txtRows;
  QLineEdit* txtSize;
};

}  // namespace lp
