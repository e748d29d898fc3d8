#pragma once
// Flow charts: the steps typed one per line become start/end, process,
// decision and input/output shapes laid out top to bottom, joined by
// connectors that stay attached, with the 是/否 of each question. Its state
// comes back from record slot 14.

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "ui/form.h"

namespace lp {

class frmKT : public ui::Form {
  Q_OBJECT
 public:
  explicit frmKT(Session& session);

 protected:
  void Unload() override;

 private:
  void Form_Load();
  void cmdOK_Click();

  QPlainTextEdit* txtSteps;  // owned by the dialog
  QCheckBox* chkStartEnd;
  QCheckBox* chkJoin;
  QLineEdit* txtWidth;
  QRadioButton* optYN[2];
};

}  // namespace lp
