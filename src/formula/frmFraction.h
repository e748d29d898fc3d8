#pragma once
// Fractions: reduce one, turn a finite or recurring decimal into one
// exactly, or pick a common fraction from the palette; each is typed at the
// caret as an EQ field. Its state comes back from record slot 12.

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "ui/form.h"

namespace lp {

struct ExactForm;

class frmFraction : public ui::Form {
  Q_OBJECT
 public:
  explicit frmFraction(Session& session);

 protected:
  void Unload() override;

 private:
  void Form_Load();
  void cmdOK_Click();
  void Insert(const ExactForm& form);

  QRadioButton* optKind0;  // owned by the dialog
  QRadioButton* optKind1;
  QLineEdit* txtFenZi;
  QLineEdit* txtFenMu;
  QLineEdit* txtDecimal;
  QLabel* labResult;
};

}  // namespace lp
