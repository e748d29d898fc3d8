#include "solvers/frmFactoring.h"

#include <QGridLayout>
#include <QPushButton>

namespace lp {
namespace {

QLabel* MakeLabel(QWidget* parent, const char* name, const QString& caption) {
  auto* label = new QLabel(caption, parent);
  label->setObjectName(QString::fromLatin1(name));
  return label;
}

QPushButton* MakeButton(QWidget* parent, const char* name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setAutoDefault(false);
  return button;
}

}  // namespace

frmFactoring::frmFactoring(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("分解质因数(作者:林岚)"));
  Text1 = new QLineEdit(this);
  Text1->setObjectName(QStringLiteral("Text1"));
  Label1 = MakeLabel(this, "Label1", QString::fromStdU16String(state_.label));
  Label1->setWordWrap(true);
  auto* command1 = MakeButton(this, "Command1", QStringLiteral("分解"));
  auto* cmdInsert = MakeButton(this, "cmdInsert", QStringLiteral("插入Word"));
  auto* command2 = MakeButton(this, "Command2", QStringLiteral("退出"));

  auto* grid = new QGridLayout(this);
  grid->addWidget(MakeLabel(this, "Label2", QStringLiteral("请输入待分解的正整数：")), 0, 0, 1, 3);
  grid->addWidget(Text1, 1, 0, 1, 3);
  grid->addWidget(MakeLabel(this, "Label3", QStringLiteral("注意：该整数不能超过2,147,483,647")), 2,
                  0, 1, 3);
  grid->addWidget(Label1, 3, 0, 1, 3);
  grid->addWidget(command1, 4, 0);
  grid->addWidget(cmdInsert, 4, 1);
  grid->addWidget(command2, 4, 2);

  OnClick(command1, u"Command1_Click", [this] { Command1_Click(); });
  // Without a decomposition there is nothing to type: an error here has no
  // handler and ends the run.
  OnClick(
      cmdInsert, u"cmdInsert_Click", [this] { cmdInsert_Click(); }, OnError::kEndRun);
  OnClick(command2, u"Command2_Click", [this] { close(); });
}

void frmFactoring::Command1_Click() {
  Decompose(state_, Text1->text().toStdU16String(), session_.prompt);
  Label1->setText(QString::fromStdU16String(state_.label));
}

void frmFactoring::cmdInsert_Click() {
  InsertFactorisation(state_, session_.WordApp->Selection());
}

}  // namespace lp
