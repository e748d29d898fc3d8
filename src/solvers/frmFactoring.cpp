#include "solvers/frmFactoring.h"

#include <QGridLayout>
#include <QPushButton>

#include "launcher/error_log.h"
#include "launcher/exit_lumenpad.h"

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

  connect(command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(cmdInsert, &QPushButton::clicked, this, [this] { cmdInsert_Click(); });
  connect(command2, &QPushButton::clicked, this, [this] { close(); });
}

void frmFactoring::Command1_Click() {
  Decompose(state_, Text1->text().toStdU16String(), session_.prompt);
  Label1->setText(QString::fromStdU16String(state_.label));
}

// Without a decomposition there is nothing to type: the run ends on the
// error, as it always has.
void frmFactoring::cmdInsert_Click() {
  try {
    InsertFactorisation(state_, session_.WordApp->Selection());
  } catch (const std::exception& e) {
    ReportError(session_.prompt, u"cmdInsert", e);
    ExitLumenpad(session_);
  }
}

}  // namespace lp
