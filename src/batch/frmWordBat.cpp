#include "batch/frmWordBat.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QScrollArea>
#include <QVBoxLayout>
#include <cstdio>

#include "batch/batch_dialog_run.h"
#include "runtime/utf8.h"

namespace lp {
namespace {

template <class W>
W* Named(W* widget, const QString& name) {
  widget->setObjectName(name);
  return widget;
}

QCheckBox* Check(QWidget* parent, const char* name, const char* caption) {
  return Named(new QCheckBox(QString::fromUtf8(caption), parent), QString::fromLatin1(name));
}

QLineEdit* Edit(QWidget* parent, const QString& name, const char* text = "") {
  return Named(new QLineEdit(QString::fromUtf8(text), parent), name);
}

QPushButton* Button(QWidget* parent, const char* name, const char* caption) {
  auto* b = Named(new QPushButton(QString::fromUtf8(caption), parent), QString::fromLatin1(name));
  b->setAutoDefault(false);
  return b;
}

QLabel* Label(QWidget* parent, const char* caption) {
  auto* label = new QLabel(QString::fromUtf8(caption), parent);
  label->setWordWrap(true);
  return label;
}

std::u16string TextOf(const QLineEdit* e) {
  return e->text().toStdU16String();
}

}  // namespace

frmWordBat::frmWordBat(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("Word批量操作"));
  txtFolder = Edit(this, "txtFolder");
  cmdFolder = Button(this, "cmdFolder", "选择文件夹");
  txtFile = Edit(this, "txtFile", "*.doc");
  chkSubFolder = Check(this, "chkSubFolder", "含子目录");
  chkBack = Check(this, "chkBack", "备份");
  chkFast = Check(this, "chkFast", "高速处理");
  chkActiveDoc = Check(this, "chkActiveDoc", "只处理当前文档");
  SSTab1 = Named(new QTabWidget(this), QStringLiteral("SSTab1"));
  SSTab1->addTab(MakeDeleteTab(), QStringLiteral("删除"));
  SSTab1->addTab(MakeChangeTab(), QStringLiteral("修改"));
  cmdOK = Button(this, "cmdOK", "开始");
  cmdStop = Button(this, "cmdStop", "停止");
  cmdStop->setEnabled(false);
  cmdExit = Button(this, "cmdExit", "退出");
  prgFiles = Named(new QProgressBar(this), QStringLiteral("prgFiles"));
  prgFiles->setValue(0);
  labFile = Named(Label(this, ""), QStringLiteral("labFile"));
  labSummary = Named(Label(this, ""), QStringLiteral("labSummary"));

  auto* grid = new QGridLayout(this);
  grid->addWidget(Label(this, "请指定word文档所在的文件夹："), 0, 0, 1, 4);
  grid->addWidget(txtFolder, 1, 0, 1, 3);
  grid->addWidget(cmdFolder, 1, 3);
  grid->addWidget(txtFile, 2, 0);
  grid->addWidget(chkSubFolder, 2, 1);
  grid->addWidget(chkBack, 2, 2);
  grid->addWidget(chkFast, 2, 3);
  grid->addWidget(chkActiveDoc, 3, 0, 1, 4);
  grid->addWidget(SSTab1, 4, 0, 1, 4);
  grid->addWidget(prgFiles, 5, 0, 1, 4);
  grid->addWidget(labFile, 6, 0, 1, 4);
  // A long summary (the fields left as they were) scrolls instead of
  // squeezing the tabs.
  auto* summary = new QScrollArea(this);
  summary->setWidget(labSummary);
  summary->setWidgetResizable(true);
  summary->setFrameShape(QFrame::NoFrame);
  summary->setMaximumHeight(5 * fontMetrics().lineSpacing());
  grid->addWidget(summary, 7, 0, 1, 4);
  grid->addWidget(Label(this, "注：因为VBA执行后不可撤销，建议备份文件后再删除。"), 8, 0, 1, 4);
  grid->addWidget(cmdOK, 9, 1);
  grid->addWidget(cmdStop, 9, 2);
  grid->addWidget(cmdExit, 9, 3);

  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdFolder, u"cmdFolder_Click", [this] { cmdFolder_Click(); });
  OnClick(cmdStop, u"cmdStop_Click", [this] { stopAsked_ = true; });
  OnClick(cmdExit, u"cmdExit_Click", [this] { close(); });
  // A check box's Click comes with every change of its value, by hand or by code.
  connect(chkActiveDoc, &QCheckBox::toggled, this,
          Guard(u"chkActiveDoc_Click", [this] { chkActiveDoc_Click(); }));
  connect(chkBlankLine, &QCheckBox::toggled, this,
          Guard(u"chkBlankLine_Click", [this] { chkBlankLine_Click(); }));
}

QWidget* frmWordBat::MakeDeleteTab() {
  auto* tab = new QWidget(SSTab1);
  chkBlankLine = Check(tab, "chkBlankLine", "空行");
  chkPageHeader = Check(tab, "chkPageHeader", "页眉、页脚和水印");
  chkLinkInShape = Check(tab, "chkLinkInShape", "图片中的超级链接");
  chkLinkInTxt = Check(tab, "chkLinkInTxt", "文字中的超级链接");
  chkFileInfo = Check(tab, "chkFileInfo", "删除文件信息中的以下关键词，若有多个关键词用“,”隔开");
  txtFileInfo = Edit(tab, "txtFileInfo");
  chkFileName = Check(tab, "chkFileName", "删除文件名中的以下关键词，若有多个关键词用“,”隔开");
  txtFileName = Edit(tab, "txtFileName");
  auto* cmdSelectAll = Button(tab, "cmdSelectAll", "全选");
  OnClick(cmdSelectAll, u"cmdSelectAll_Click", [this] { cmdSelectAll_Click(); });

  auto* grid = new QGridLayout(tab);
  grid->addWidget(Label(tab, "请选择需要删除的项目："), 0, 0, 1, 2);
  grid->addWidget(chkBlankLine, 1, 0);
  grid->addWidget(chkPageHeader, 1, 1);
  grid->addWidget(chkLinkInShape, 2, 0);
  grid->addWidget(chkLinkInTxt, 2, 1);
  grid->addWidget(chkFileInfo, 3, 0, 1, 2);
  grid->addWidget(txtFileInfo, 4, 0, 1, 2);
  grid->addWidget(chkFileName, 5, 0, 1, 2);
  grid->addWidget(txtFileName, 6, 0, 1, 2);
  grid->addWidget(cmdSelectAll, 7, 1);
  grid->setRowStretch(8, 1);
  return tab;
}

QWidget* frmWordBat::MakeChangeTab() {
  auto* tab = new QWidget(SSTab1);
  auto* box = new QVBoxLayout(tab);
  const char* const groups[] = {"文件名", "文件信息", "文件内容"};
  for (int g = 0; g < 3; ++g) {
    auto* group = new QGroupBox(QString::fromUtf8(groups[g]), tab);
    auto* row = new QGridLayout(group);
    for (int k = 0; k < 2; ++k) {
      const int i = 2 * g + k;
      txtFile_Change[i] = Edit(group, QStringLiteral("txtFile_Change_%1").arg(i));
      row->addWidget(Label(group, k == 0 ? "将" : "改为"), 0, 2 * k);
      row->addWidget(txtFile_Change[i], 0, 2 * k + 1);
    }
    box->addWidget(group);
  }
  auto* align = new QGroupBox(QStringLiteral("公式与文字对齐"), tab);
  auto* alignRow = new QHBoxLayout(align);
  chkDQ[0] = Check(align, "chkDQ_0", "公式与文字居中对齐");
  chkDQ[1] = Check(align, "chkDQ_1", "上、下移公式居中");
  alignRow->addWidget(chkDQ[0]);
  alignRow->addWidget(chkDQ[1]);
  box->addWidget(align);
  auto* scale = new QGroupBox(QStringLiteral("公式与图片放缩(如，比例为1.1时表示放大0.1倍)"), tab);
  auto* scaleRow = new QGridLayout(scale);
  const char* const captions[] = {"公式比例", "图片比例"};
  const char* const defaults[] = {"0.75", "0.8"};
  for (int i = 0; i < 2; ++i) {
    chkFS[i] = Check(scale, i == 0 ? "chkFS_0" : "chkFS_1", captions[i]);
    txtFS[i] = Edit(scale, QStringLiteral("txtFS_%1").arg(i), defaults[i]);
    scaleRow->addWidget(chkFS[i], 0, 2 * i);
    scaleRow->addWidget(txtFS[i], 0, 2 * i + 1);
  }
  box->addWidget(scale);
  // Beyond Word's own changes: EQ fields, which only Word and WPS show,
  // become equations that LibreOffice and phones show as well.
  chkEqToOmml = Check(tab, "chkEqToOmml", "EQ域公式转为Word公式");
  box->addWidget(chkEqToOmml);
  return tab;
}

// A document open in Word can't be renamed, nor walked with the folder.
void frmWordBat::chkActiveDoc_Click() {
  const bool folder = !chkActiveDoc->isChecked();
  for (QWidget* w : std::initializer_list<QWidget*>{txtFolder, cmdFolder, chkSubFolder, chkBack,
                                                    chkFast, chkFileName, txtFileName,
                                                    txtFile_Change[0], txtFile_Change[1]})
    w->setEnabled(folder);
}

void frmWordBat::chkBlankLine_Click() {
  if (!chkBlankLine->isChecked()) return;
  if (session_.prompt.MsgBox(
          u"删除空行可能删除定位于其中某个空行上的图片对象,您确定仍要删除空行吗？", vbYesNo) ==
      vbNo)
    chkBlankLine->setChecked(false);
}

void frmWordBat::cmdSelectAll_Click() {
  for (QCheckBox* c : {chkBlankLine, chkPageHeader, chkLinkInShape, chkLinkInTxt})
    c->setChecked(true);
}

void frmWordBat::cmdFolder_Click() {
  if (session_.headless) return;  // no folder browser without a teacher
  QString folder =
      QFileDialog::getExistingDirectory(this, QStringLiteral("浏览文件夹"), txtFolder->text());
  if (!folder.isEmpty()) txtFolder->setText(folder);
}

batch::BatchChoice frmWordBat::Choice() const {
  batch::BatchChoice c;
  c.tab = SSTab1->currentIndex();
  c.folder = TextOf(txtFolder);
  c.filter = TextOf(txtFile);
  c.subFolders = chkSubFolder->isChecked();
  c.backup = chkBack->isChecked();
  c.fast = chkFast->isChecked();
  c.activeDocument = chkActiveDoc->isChecked();
  c.blankLine = chkBlankLine->isChecked();
  c.pageHeader = chkPageHeader->isChecked();
  c.linkInShape = chkLinkInShape->isChecked();
  c.linkInText = chkLinkInTxt->isChecked();
  c.fileInfo = chkFileInfo->isChecked();
  c.fileName = chkFileName->isChecked();
  c.fileInfoWords = TextOf(txtFileInfo);
  c.fileNameWords = TextOf(txtFileName);
  for (size_t i = 0; i < 6; ++i) c.change[i] = TextOf(txtFile_Change[i]);
  for (size_t i = 0; i < 2; ++i) {
    c.align[i] = chkDQ[i]->isChecked();
    c.scale[i] = chkFS[i]->isChecked();
    c.scaleText[i] = TextOf(txtFS[i]);
  }
  c.eqToOmml = chkEqToOmml->isChecked();
  return c;
}

// One line per file on the command line, so that a script can follow the run.
// The dialog is repainted a few dozen times a second at most: painting after
// every file would cost the run more than the files themselves.
bool frmWordBat::FileDone(int done, int total, const std::u16string& file) {
  if (session_.headless)
    std::printf("%s %s\n", ToUtf8(windowTitle().toStdU16String()).c_str(), ToUtf8(file).c_str());
  if (done < total && sinceRepaint_.isValid() && sinceRepaint_.elapsed() < kRepaintMs)
    return !stopAsked_;
  sinceRepaint_.start();
  prgFiles->setMaximum(total);
  prgFiles->setValue(done);
  labFile->setText(QString::fromStdU16String(file));
  QCoreApplication::processEvents();
  return !stopAsked_;
}

void frmWordBat::cmdOK_Click() {
  stopAsked_ = false;
  sinceRepaint_.invalidate();
  labSummary->clear();
  cmdOK->setEnabled(false);
  cmdStop->setEnabled(true);
  batch::BatchView view;
  view.caption = [this](const std::u16string& text) {
    setWindowTitle(QString::fromStdU16String(text));
  };
  view.fileDone = [this](int done, int total, const batch::FileOutcome& o) {
    return FileDone(done, total, batch::PathText(o.file));
  };
  view.yield = [] { QCoreApplication::processEvents(); };
  std::optional<batch::BatchReport> report;
  try {
    report = batch::StartBatch(*session_.WordApp, session_.prompt, Choice(), view);
  } catch (...) {
    cmdOK->setEnabled(true);
    cmdStop->setEnabled(false);
    throw;
  }
  cmdOK->setEnabled(true);
  cmdStop->setEnabled(false);
  if (!report) return;
  labSummary->setText(QString::fromStdU16String(report->summary));
  if (session_.headless)
    std::printf("%s\n%s\n", ToUtf8(report->caption).c_str(), ToUtf8(report->summary).c_str());
}

}  // namespace lp
