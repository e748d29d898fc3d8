#include "solvers/frmInequality.h"

#include <QGridLayout>

#include "runtime/text.h"
#include "solvers/inequality.h"
#include "toolkit/solve.h"
#include "ui/named_controls.h"

namespace lp {

using namespace ui;

frmInequality::frmInequality(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("解一元一次不等式（作者：林岚）"));
  Text1 = NamedEdit(this, "Text1", QStringLiteral("3x+1>2x-1"));
  Label1 = NamedLabel(this, "Label1", QStringLiteral("不等式的解为："));
  optAll = NamedOption(this, "optAll", QStringLiteral("插入解答过程"));
  optKeyOnly = NamedOption(this, "optKeyOnly", QStringLiteral("仅插入答案"));
  optAll->setChecked(true);
  chkSet = NamedCheck(this, "chkSet", QStringLiteral("写出解集"));
  chkSet->setChecked(true);
  chkNumberAxis = NamedCheck(this, "chkNumberAxis", QStringLiteral("在数轴上表示解集"));
  auto* cmdOK = NamedButton(this, "cmdOK", QStringLiteral("计算"));
  auto* cmdInsert = NamedButton(this, "cmdInsert", QStringLiteral("插入Word"));
  auto* cmdCancel = NamedButton(this, "cmdCancel", QStringLiteral("退出"));

  auto* grid = new QGridLayout(this);
  grid->addWidget(NamedLabel(this, "Label2", QStringLiteral("请输入不等式")), 0, 0, 1, 3);
  grid->addWidget(Text1, 1, 0, 1, 3);
  auto* Label3 = NamedLabel(
      this, "Label3",
      QStringLiteral("不等号输入方法：\"≤\"请输入\"<=\",\"≥\"请输入\">=\",\"≠\"请输入\"<>"
                     "\"，如\"x≤3\"可输入\"x<=3\""));
  Label3->setWordWrap(true);
  grid->addWidget(Label3, 2, 0, 1, 3);
  grid->addWidget(Label1, 3, 0, 1, 3);
  grid->addWidget(optAll, 4, 0);
  grid->addWidget(optKeyOnly, 4, 1);
  grid->addWidget(chkSet, 5, 0);
  grid->addWidget(chkNumberAxis, 5, 1, 1, 2);
  grid->addWidget(cmdOK, 6, 0);
  grid->addWidget(cmdInsert, 6, 1);
  grid->addWidget(cmdCancel, 6, 2);
  setMinimumWidth(380);

  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdInsert, u"cmdInsert_Click", [this] { cmdInsert_Click(); });
  OnClick(cmdCancel, u"cmdCancel_Click", [this] { close(); });
}

void frmInequality::cmdOK_Click() {
  solution_ = ParseInequality(Trim(Text1->text().toStdU16String()), session_.prompt);
  if (solution_) Label1->setText(QString::fromStdU16String(InequalityLabel(*solution_)));
}

// The number line is drawn by the number-line dialog's own buttons, whose
// cancel ends the run.
void frmInequality::cmdInsert_Click() {
  cmdOK_Click();
  if (!solution_) return;
  TypeInequalitySolution(session_, *solution_, {optAll->isChecked(), chkSet->isChecked()});
  if (!chkNumberAxis->isChecked()) return;
  DrawSolutionOnNumberLine(session_, *solution_);
  close();
}

}  // namespace lp
