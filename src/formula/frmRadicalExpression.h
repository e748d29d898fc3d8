#pragma once
// Radicals: a coefficient times a root brought to simplest form and typed at
// the caret as an EQ field. Its state comes back from record slot 13.

#include <QLabel>
#include <QLineEdit>

#include "ui/form.h"

namespace lp {

class frmRadicalExpression : public ui::Form {
  Q_OBJECT
 public:
  explicit frmRadicalExpression(Session& session);

 protected:
  void Unload() override;

 private:
  void Form_Load();
  void cmdOK_Click();

  QLineEdit* txtXiShu;  // owned by the dialog
  QLineEdit* txtGenZhiShu;
  QLineEdit* txtBeiKaiFang;
  QLabel* labResult;
};

}  // namespace lp
