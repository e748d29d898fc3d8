#include "ui/headless_driver.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTabWidget>
#include <QTextEdit>

namespace lp::ui {
namespace {

QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

void SetCombo(QComboBox& combo, const QString& value) {
  bool isIndex = false;
  int index = value.toInt(&isIndex);
  if (isIndex && index >= 0 && index < combo.count()) {
    combo.setCurrentIndex(index);
  } else if (int found = combo.findText(value); found >= 0) {
    combo.setCurrentIndex(found);
  } else if (combo.isEditable()) {
    combo.setEditText(value);
  } else {
    throw DriverError("no item " + value.toStdString() + " in " + combo.objectName().toStdString());
  }
}

bool SetControl(QWidget& w, const QString& value) {
  if (auto* e = qobject_cast<QLineEdit*>(&w)) {
    e->setText(value);
  } else if (auto* t = qobject_cast<QTextEdit*>(&w)) {
    t->setPlainText(value);
  } else if (auto* p = qobject_cast<QPlainTextEdit*>(&w)) {
    p->setPlainText(value);
  } else if (auto* b = qobject_cast<QAbstractButton*>(&w); b && b->isCheckable()) {
    b->setChecked(value == "1" || value.compare("true", Qt::CaseInsensitive) == 0);
  } else if (auto* c = qobject_cast<QComboBox*>(&w)) {
    SetCombo(*c, value);
  } else if (auto* s = qobject_cast<QSpinBox*>(&w)) {
    s->setValue(value.toInt());
  } else if (auto* d = qobject_cast<QDoubleSpinBox*>(&w)) {
    d->setValue(value.toDouble());
  } else if (auto* bar = qobject_cast<QAbstractSlider*>(&w)) {
    bar->setValue(value.toInt());
  } else if (auto* tabs = qobject_cast<QTabWidget*>(&w)) {
    tabs->setCurrentIndex(value.toInt());
  } else if (auto* list = qobject_cast<QListWidget*>(&w)) {
    list->setCurrentRow(value.toInt());
  } else if (auto* l = qobject_cast<QLabel*>(&w)) {
    l->setText(value);
  } else {
    return false;
  }
  return true;
}

}  // namespace

void ApplyAction(QWidget& form, const ControlAction& action) {
  if (action.kind == ControlAction::kGrab) {
    if (!form.grab().save(Q(action.value))) throw DriverError("can't write " + action.value);
    return;
  }
  auto* w = form.findChild<QWidget*>(Q(action.name));
  if (!w) throw DriverError("the dialog has no control " + action.name);
  if (action.kind == ControlAction::kClick) {
    auto* button = qobject_cast<QAbstractButton*>(w);
    if (!button) throw DriverError(action.name + " can't be clicked");
    button->click();
  } else if (!SetControl(*w, Q(action.value))) {
    throw DriverError(action.name + " can't be set");
  }
}

}  // namespace lp::ui
