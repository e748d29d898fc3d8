#include "solvers/frmEquation.h"

#include <QGridLayout>
#include <QTabWidget>
#include <QVBoxLayout>

#include "runtime/text.h"
#include "solvers/equation.h"
#include "toolkit/solve.h"
#include "ui/named_controls.h"

namespace lp {

using namespace ui;

frmEquation::frmEquation(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("解方程（作者：林岚）"));
  auto* SSTab1 = new QTabWidget(this);
  SSTab1->setObjectName(QStringLiteral("SSTab1"));
  SSTab1->addTab(LinearTab(), QStringLiteral("一元一次方程"));
  SSTab1->addTab(QuadraticTab(), QStringLiteral("一元二次方程"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(SSTab1);
  setMinimumWidth(380);
}

QWidget* frmEquation::LinearTab() {
  auto* tab = new QWidget(this);
  txtL_Equation = NamedEdit(tab, "txtL_Equation", {});
  labSolution_L = NamedLabel(tab, "labSolution_L", QStringLiteral("方程的解为：x="));
  optAll_L = NamedOption(tab, "optAll_L", QStringLiteral("插入解答过程"));
  auto* optKeyOnly_L = NamedOption(tab, "optKeyOnly_L", QStringLiteral("仅插入答案"));
  optAll_L->setChecked(true);
  auto* cmdOK_L = NamedButton(tab, "cmdOK_L", QStringLiteral("计算"));
  auto* cmdInsert_L = NamedButton(tab, "cmdInsert_L", QStringLiteral("插入Word"));
  auto* cmdCancel_L = NamedButton(tab, "cmdCancel_L", QStringLiteral("退出"));
  auto* grid = new QGridLayout(tab);
  grid->addWidget(NamedLabel(tab, "Label2", QStringLiteral("请输入方程")), 0, 0, 1, 3);
  grid->addWidget(txtL_Equation, 1, 0, 1, 3);
  grid->addWidget(labSolution_L, 2, 0, 1, 3);
  grid->addWidget(optAll_L, 3, 0);
  grid->addWidget(optKeyOnly_L, 3, 1);
  grid->addWidget(NamedLabel(tab, "Label1", QStringLiteral("调试中，尚未完成！")), 4, 0, 1, 3);
  grid->addWidget(cmdOK_L, 5, 0);
  grid->addWidget(cmdInsert_L, 5, 1);
  grid->addWidget(cmdCancel_L, 5, 2);
  OnClick(cmdOK_L, u"cmdOK_L_Click", [this] { cmdOK_L_Click(); });
  OnClick(cmdInsert_L, u"cmdInsert_L_Click", [this] { cmdInsert_L_Click(); });
  OnClick(cmdCancel_L, u"cmdCancel_L_Click", [this] { close(); });
  return tab;
}

QWidget* frmEquation::QuadraticTab() {
  auto* tab = new QWidget(this);
  txtQ_Equation = NamedEdit(tab, "txtQ_Equation", {});
  List_Q = new QListWidget(tab);
  List_Q->setObjectName(QStringLiteral("List_Q"));
  optAll_Q = NamedOption(tab, "optAll_Q", QStringLiteral("插入解答过程"));
  auto* optKeyOnly_Q = NamedOption(tab, "optKeyOnly_Q", QStringLiteral("仅插入答案"));
  optAll_Q->setChecked(true);
  auto* cmdOK_Q = NamedButton(tab, "cmdOK_Q", QStringLiteral("计算"));
  auto* cmdInsert_Q = NamedButton(tab, "cmdInsert_Q", QStringLiteral("插入Word"));
  auto* cmdCancel_Q = NamedButton(tab, "cmdCancel_Q", QStringLiteral("退出"));
  auto* grid = new QGridLayout(tab);
  grid->addWidget(NamedLabel(tab, "Label4", QStringLiteral("请输入方程")), 0, 0, 1, 3);
  grid->addWidget(txtQ_Equation, 1, 0, 1, 3);
  grid->addWidget(
      NamedLabel(tab, "Label3", QStringLiteral("注意:请用x^2表示x 的平方,目前只支持整数系数")), 2,
      0, 1, 3);
  grid->addWidget(NamedLabel(tab, "labSolution_Q", QStringLiteral("方程的解为：")), 3, 0, 1, 3);
  grid->addWidget(List_Q, 4, 0, 1, 3);
  grid->addWidget(optAll_Q, 5, 0);
  grid->addWidget(optKeyOnly_Q, 5, 1);
  grid->addWidget(cmdOK_Q, 6, 0);
  grid->addWidget(cmdInsert_Q, 6, 1);
  grid->addWidget(cmdCancel_Q, 6, 2);
  List_Q->setMaximumHeight(60);
  OnClick(cmdOK_Q, u"cmdOK_Q_Click", [this] { cmdOK_Q_Click(); });
  OnClick(cmdInsert_Q, u"cmdInsert_Q_Click", [this] { cmdInsert_Q_Click(); });
  OnClick(cmdCancel_Q, u"cmdCancel_Q_Click", [this] { close(); });
  return tab;
}

void frmEquation::cmdOK_L_Click() {
  linear_ = SolveLinear(Trim(txtL_Equation->text().toStdU16String()));
  labSolution_L->setText(QString::fromStdU16String(LinearLabel(*linear_)));
}

void frmEquation::cmdInsert_L_Click() {
  cmdOK_L_Click();
  TypeLinearSolution(session_.WordApp->Selection(), Trim(txtL_Equation->text().toStdU16String()),
                     *linear_, optAll_L->isChecked());
}

void frmEquation::cmdOK_Q_Click() {
  quadratic_ = SolveQuadratic(Trim(txtQ_Equation->text().toStdU16String()), session_.prompt);
  if (!quadratic_) return;
  List_Q->clear();
  for (const std::u16string& line : QuadraticList(*quadratic_))
    List_Q->addItem(QString::fromStdU16String(line));
}

// A refused equation (not quadratic, or a discriminant that is no whole
// number) leaves the document untouched.
void frmEquation::cmdInsert_Q_Click() {
  cmdOK_Q_Click();
  if (!quadratic_ || (quadratic_->QuadDelta > 0 && quadratic_->Root1Text.empty())) return;
  TypeQuadraticSolution(session_, Trim(txtQ_Equation->text().toStdU16String()), *quadratic_,
                        optAll_Q->isChecked());
}

}  // namespace lp
