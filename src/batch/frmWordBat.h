#pragma once
// The batch dialog: a folder of documents (or the active one), the clean-ups
// of tab 0 or the changes of tab 1, a progress bar and a stop between files.

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <array>

#include "batch/batch_choice.h"
#include "ui/form.h"

namespace lp {

class frmWordBat : public ui::Form {
  Q_OBJECT
 public:
  explicit frmWordBat(Session& session);

 private:
  QWidget* MakeDeleteTab();
  QWidget* MakeChangeTab();
  void cmdOK_Click();
  void cmdFolder_Click();
  void cmdSelectAll_Click();
  void chkActiveDoc_Click();
  void chkBlankLine_Click();
  batch::BatchChoice Choice() const;
  bool FileDone(int done, int total, const std::u16string& file);

  QLineEdit *txtFolder, *txtFile, *txtFileInfo, *txtFileName;
  QPushButton *cmdFolder, *cmdOK, *cmdExit, *cmdStop;
  QCheckBox *chkSubFolder, *chkBack, *chkFast, *chkActiveDoc;
  QCheckBox *chkBlankLine, *chkPageHeader, *chkLinkInShape, *chkLinkInTxt, *chkFileInfo,
      *chkFileName;
  std::array<QLineEdit*, 6> txtFile_Change;
  std::array<QCheckBox*, 2> chkDQ, chkFS;
  std::array<QLineEdit*, 2> txtFS;
  QCheckBox* chkEqToOmml;
  QTabWidget* SSTab1;
  QProgressBar* prgFiles;
  QLabel *labFile, *labSummary;
  bool stopAsked_ = false;
  static constexpr qint64 kRepaintMs = 40;
  QElapsedTimer sinceRepaint_;
};

}  // namespace lp
