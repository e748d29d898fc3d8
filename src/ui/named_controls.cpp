#include "ui/named_controls.h"

namespace lp::ui {
namespace {

template <class Control>
Control* Named(Control* control, const QString& name) {
  control->setObjectName(name);
  return control;
}

}  // namespace

QLabel* NamedLabel(QWidget* parent, const QString& name, const QString& caption) {
  return Named(new QLabel(caption, parent), name);
}

QLineEdit* NamedEdit(QWidget* parent, const QString& name, const QString& text) {
  return Named(new QLineEdit(text, parent), name);
}

QPushButton* NamedButton(QWidget* parent, const QString& name, const QString& caption) {
  auto* button = Named(new QPushButton(caption, parent), name);
  button->setAutoDefault(false);
  return button;
}

QRadioButton* NamedOption(QWidget* parent, const QString& name, const QString& caption) {
  return Named(new QRadioButton(caption, parent), name);
}

QCheckBox* NamedCheck(QWidget* parent, const QString& name, const QString& caption) {
  return Named(new QCheckBox(caption, parent), name);
}

QString Flag(const QAbstractButton* button) {
  return button->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
}

bool IsSet(const QString& field) {
  return field.trimmed() == QLatin1String("1") || field.trimmed() == QLatin1String("-1");
}

QString ZeroIfSet(const QAbstractButton* first) {
  return first->isChecked() ? QStringLiteral("0") : QStringLiteral("1");
}

bool IsZero(const QString& field) {
  return field.trimmed() == QLatin1String("0");
}

QStringList RecordFields(const std::u16string& data) {
  return QString::fromStdU16String(data).split(QStringLiteral("@@"));
}

std::u16string RecordData(const QStringList& fields) {
  return fields.join(QStringLiteral("@@")).toStdU16String();
}

}  // namespace lp::ui
