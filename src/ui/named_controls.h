#pragma once
// Controls of a dialog made with their object names, the names the headless
// driver and the record slots address them by.

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QString>
#include <QStringList>

namespace lp::ui {

QLabel* NamedLabel(QWidget* parent, const QString& name, const QString& caption);
QLineEdit* NamedEdit(QWidget* parent, const QString& name, const QString& text);
QPushButton* NamedButton(QWidget* parent, const QString& name, const QString& caption);
QRadioButton* NamedOption(QWidget* parent, const QString& name, const QString& caption);
QCheckBox* NamedCheck(QWidget* parent, const QString& name, const QString& caption);

// A check box or option as a record field: "1" or "0".
QString Flag(const QAbstractButton* button);
bool IsSet(const QString& field);
// The first of two options as a record field: "0" when it is set, else "1".
QString ZeroIfSet(const QAbstractButton* first);
bool IsZero(const QString& field);

// The fields of a record slot: the text split at "@@", and joined back.
QStringList RecordFields(const std::u16string& data);
std::u16string RecordData(const QStringList& fields);

}  // namespace lp::ui
