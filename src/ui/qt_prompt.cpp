#include "ui/qt_prompt.h"

#include <QInputDialog>
#include <QMessageBox>

namespace lp::ui {
namespace {

QString Q(const std::u16string& s) {
  return QString::fromStdU16String(s);
}

QString TitleOr(const std::u16string& title) {
  return title.empty() ? QStringLiteral("流明画板") : Q(title);
}

QMessageBox::Icon IconOf(int style) {
  switch (style & 0x70) {
    case vbCritical:
      return QMessageBox::Critical;
    case vbQuestion:
      return QMessageBox::Question;
    case vbExclamation:
      return QMessageBox::Warning;
    case vbInformation:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

}  // namespace

MsgBoxResult QtPrompt::MsgBox(const std::u16string& prompt, int style,
                              const std::u16string& title) {
  app_.Get();
  QMessageBox box(IconOf(style), TitleOr(title), Q(prompt));
  switch (style & 7) {
    case vbOKCancel:
      box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
      break;
    case vbYesNo:
      box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
      break;
    default:
      box.setStandardButtons(QMessageBox::Ok);
  }
  switch (box.exec()) {
    case QMessageBox::Cancel:
      return vbCancel;
    case QMessageBox::Yes:
      return vbYes;
    case QMessageBox::No:
      return vbNo;
    default:
      return vbOK;
  }
}

std::optional<std::u16string> QtPrompt::InputBox(const std::u16string& prompt,
                                                 const std::u16string& title,
                                                 const std::u16string& defaultText) {
  app_.Get();
  bool ok = false;
  QString text = QInputDialog::getText(nullptr, TitleOr(title), Q(prompt), QLineEdit::Normal,
                                       Q(defaultText), &ok);
  if (!ok) return std::nullopt;
  return text.toStdU16String();
}

}  // namespace lp::ui
