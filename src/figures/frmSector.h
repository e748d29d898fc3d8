#pragma once
// Sectors, arcs and annulus sectors: radius and central angle, an arc's
// radii, the angle mark and its label, filled or not. Its state comes back
// from record slot 8.

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>

#include "ui/form.h"

namespace lp {

class frmSector : public ui::Form {
  Q_OBJECT
 public:
  explicit frmSector(Session& session);

 protected:
  void Unload() override;

 private:
  void Form_Load();
  void cmdOK_Click();

  QRadioButton* optKind[3];  // owned by the dialog
  QLineEdit* txtR;
  QLineEdit* txtR2;
  QLineEdit* txtAngle;
  QLineEdit* txtLabel;
  QCheckBox* chkRadii;
  QCheckBox* chkMark;
  QCheckBox* chkFill;
};

}  // namespace lp
