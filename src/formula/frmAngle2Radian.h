#pragma once
// Angle and radian: degrees, minutes and seconds to an exact multiple of pi,
// or back, typed at the caret as an EQ field. Its state comes back from
// record slot 11.

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "ui/form.h"

namespace lp {

class frmAngle2Radian : public ui::Form {
  Q_OBJECT
 public:
  explicit frmAngle2Radian(Session& session);

 protected:
  void Unload() override;

 private:
  void Form_Load();
  void cmdOK_Click();

  QRadioButton* optDir0;  // owned by the dialog
  QRadioButton* optDir1;
  QLineEdit* txtDu;
  QLineEdit* txtFen;
  QLineEdit* txtMiao;
  QLineEdit* txtRad;
  QLabel* labResult;
};

}  // namespace lp
