#pragma once
// The histogram dialog: frequency and relative-frequency histograms and bar
// charts from a list of numbers. Each click of cmdOK(0) draws one more chart;
// the state comes back from record slot 5.

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <array>

#include "charts/histogram.h"
#include "ui/form.h"

namespace lp {

class frmZFT : public ui::Form {
  Q_OBJECT
 public:
  explicit frmZFT(Session& session);

 protected:
  void Unload() override;

 private:
  QWidget* MakeTypeBox();
  QWidget* MakeDataBox();
  QWidget* MakeConfigBox();
  QWidget* MakeScaleBox();
  QWidget* MakeStyleBox();
  void Form_Load();
  void optZFT_Click(int index);
  void chkYKd_Click();
  void cmdOK_Click();
  charts::HistogramRequest Request() const;
  int ChartIndex() const;
  // The text boxes of the record slot, fields 1 to 10.
  std::array<QLineEdit*, 10> TextFields() const;

  std::array<QRadioButton*, 3> optZFT{};  // owned by the dialog
  std::array<QRadioButton*, 2> optData{};
  QLineEdit* txtData = nullptr;
  QLineEdit* txtLenX = nullptr;
  QLineEdit* txtLenY = nullptr;
  QLineEdit* txtChuZhi = nullptr;
  QLineEdit* txtZJ = nullptr;
  QLineEdit* txtTextX = nullptr;
  QLineEdit* txtTextY = nullptr;
  QCheckBox* chkYKd = nullptr;
  std::array<QLineEdit*, 3> txtYkd{};
  std::array<QRadioButton*, 2> optStyle{};
  QCheckBox* chkZX = nullptr;
  QLineEdit* txtXSWS = nullptr;
  QCheckBox* chkColor = nullptr;
  std::array<QRadioButton*, 2> optColor{};
};

}  // namespace lp
