#pragma once
// The number-line dialog: an axis drawn once, then one interval per click
// above it; closing groups the figure at the caret.

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <array>

#include "figures/interval_form.h"
#include "ui/form.h"

namespace lp {

class frmInterval : public ui::Form {
  Q_OBJECT
 public:
  explicit frmInterval(Session& session);

 protected:
  void Unload() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QGroupBox* MakeFrame2();
  QGroupBox* MakeFrame1();
  QWidget* MakeColours();
  void ShowControls();
  void ReadControls();
  void chkNumberAxisOnly_Click();
  void Kind_Click(int kind);
  void labIntervalColor_Click();
  void cmdOK_Click();

  IntervalForm form_;
  QGroupBox* Frame2;  // widgets owned by the dialog
  QGroupBox* Frame1;
  QLineEdit* txtLengthOfAxis;
  QLineEdit* txtXmin;
  QLineEdit* txtXmax;
  std::array<QRadioButton*, 2> optKD;
  QLineEdit* txtNumberList;
  QCheckBox* chkNumberAxisOnly;
  QCheckBox* chkNoX;
  QCheckBox* chkKD;
  std::array<QRadioButton*, 8> kinds;
  std::array<QLabel*, 8> imgInterval;
  QLineEdit* txtA;
  QLineEdit* txtB;
  std::array<QRadioButton*, 2> optColor;
  QLabel* labIntervalColor;
};

}  // namespace lp
