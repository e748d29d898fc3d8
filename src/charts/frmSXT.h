#pragma once
// The pie chart dialog: a ratio and a radius, and how to fill the sectors.
// Each click of cmdOK(0) draws one more chart; the state comes back from
// record slot 7.

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <array>

#include "ui/form.h"

namespace lp {

class frmSXT : public ui::Form {
  Q_OBJECT
 public:
  explicit frmSXT(Session& session);

 protected:
  void Unload() override;

 private:
  void Form_Load();
  void cmdOK_Click();

  QLineEdit* txtData;  // owned by the dialog
  std::array<QRadioButton*, 2> optData{};
  QLineEdit* txtR;
  QCheckBox* chkColor;
  std::array<QRadioButton*, 2> optColor{};
};

}  // namespace lp
