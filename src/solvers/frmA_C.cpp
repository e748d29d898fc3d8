#include "solvers/frmA_C.h"

#include <QGridLayout>

#include "ui/named_controls.h"

namespace lp {

using namespace ui;

frmA_C::frmA_C(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("排列、组合"));
  Label1 = NamedLabel(this, "Label1", QStringLiteral("A"));
  QFont letter = Label1->font();
  letter.setPointSize(letter.pointSize() * 2);
  Label1->setFont(letter);
  txtM = NamedEdit(this, "txtM", {});
  txtN = NamedEdit(this, "txtN", {});
  optA_0 = NamedOption(this, "optA_0", QStringLiteral("排列"));
  optA_1 = NamedOption(this, "optA_1", QStringLiteral("组合"));
  optA_0->setChecked(true);
  Check1 = NamedCheck(this, "Check1", QStringLiteral("插入运算结果"));
  lbResult = NamedLabel(this, "lbResult", QStringLiteral("运算结果："));
  auto* cmdOK = NamedButton(this, "cmdOK", QStringLiteral("计算"));
  auto* cmdInsert = NamedButton(this, "cmdInsert", QStringLiteral("插入"));
  auto* cmdCancel = NamedButton(this, "cmdCancel", QStringLiteral("退出"));

  auto* grid = new QGridLayout(this);
  grid->addWidget(Label1, 0, 0, 2, 1);
  grid->addWidget(txtM, 0, 1);
  grid->addWidget(txtN, 1, 1);
  grid->addWidget(optA_0, 0, 2);
  grid->addWidget(optA_1, 1, 2);
  grid->addWidget(lbResult, 2, 0, 1, 3);
  grid->addWidget(Check1, 3, 0, 1, 3);
  grid->addWidget(cmdOK, 4, 0);
  grid->addWidget(cmdInsert, 4, 1);
  grid->addWidget(cmdCancel, 4, 2);

  auto letterOf = [this] {
    Label1->setText(QString::fromStdU16String(ACLetter(optA_1->isChecked())));
  };
  OnClick(optA_0, u"optA_Click", letterOf);
  OnClick(optA_1, u"optA_Click", letterOf);
  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdInsert, u"cmdInsert_Click", [this] { cmdInsert_Click(); });
  OnClick(cmdCancel, u"cmdCancel_Click", [this] { close(); });
}

ACControls frmA_C::Controls() const {
  return {txtM->text().toStdU16String(), txtN->text().toStdU16String(), optA_1->isChecked(),
          Check1->isChecked()};
}

void frmA_C::cmdOK_Click() {
  if (std::optional<double> count = CountOf(Controls(), session_.prompt))
    lbResult->setText(QString::fromStdU16String(ACResultLabel(*count)));
}

void frmA_C::cmdInsert_Click() {
  if (std::optional<double> count = InsertAC(session_, Controls()))
    lbResult->setText(QString::fromStdU16String(ACResultLabel(*count)));
}

}  // namespace lp
