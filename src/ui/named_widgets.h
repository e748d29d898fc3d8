#pragma once
// Controls made under their control names, so that scripts and the headless
// driver find them: the object name is the name the dialog's code uses.

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace lp::ui {

inline QLabel* NamedLabel(QWidget* parent, const char* name, const QString& caption) {
  auto* label = new QLabel(caption, parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setWordWrap(true);
  return label;
}

inline QPushButton* NamedButton(QWidget* parent, const char* name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setAutoDefault(false);
  return button;
}

inline QLineEdit* NamedEdit(QWidget* parent, const char* name, const QString& text = {}) {
  auto* edit = new QLineEdit(text, parent);
  edit->setObjectName(QString::fromLatin1(name));
  return edit;
}

inline QRadioButton* NamedOption(QWidget* parent, const char* name, const QString& caption) {
  auto* option = new QRadioButton(caption, parent);
  option->setObjectName(QString::fromLatin1(name));
  return option;
}

inline QCheckBox* NamedCheck(QWidget* parent, const char* name, const QString& caption) {
  auto* check = new QCheckBox(caption, parent);
  check->setObjectName(QString::fromLatin1(name));
  return check;
}

}  // namespace lp::ui
