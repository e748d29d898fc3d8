#include "launcher/frmMain.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace lp {

frmMain::frmMain(std::function<void()> onExit, std::function<void()> onTry) {
  setWindowTitle(QStringLiteral("欢迎使用《流明画板》！"));
  auto* picture = new QLabel(QStringLiteral("流明画板"), this);
  picture->setObjectName(QStringLiteral("Picture1"));
  picture->setAlignment(Qt::AlignCenter);
  picture->setMinimumSize(420, 220);
  picture->setStyleSheet(QStringLiteral("background:#1d4e89;color:white;font-size:40px;"));

  progress_ = new QLabel(QStringLiteral("当前运行进度"), this);
  progress_->setObjectName(QStringLiteral("Label_0"));
  auto* cmdExit = new QPushButton(QStringLiteral("立即退出"), this);
  cmdExit->setObjectName(QStringLiteral("cmdExit"));
  auto* cmdTry = new QPushButton(QStringLiteral("软件信息"), this);
  cmdTry->setObjectName(QStringLiteral("cmdTry"));
  connect(cmdExit, &QPushButton::clicked, this, [onExit] { onExit(); });
  connect(cmdTry, &QPushButton::clicked, this, [onTry] { onTry(); });

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(progress_, 1);
  buttons->addWidget(cmdTry);
  buttons->addWidget(cmdExit);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 6);
  layout->addWidget(picture, 1);
  layout->addLayout(buttons);
}

void frmMain::SetProgress(const QString& text) {
  progress_->setText(text);
  progress_->repaint();
}

void frmMain::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  raise();
  activateWindow();
}

}  // namespace lp
