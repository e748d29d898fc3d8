#include "formula/frmFraction.h"

#include <QGridLayout>
#include <QGroupBox>

#include "formula/exact_forms.h"
#include "settings/record_slots.h"
#include "ui/named_controls.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 12;

// The fractions a worksheet needs most, in the palette's order.
constexpr const char16_t* kCommonFractions[] = {
    u"1/2", u"1/3", u"2/3", u"1/4", u"3/4", u"1/5", u"2/5", u"3/5",
    u"4/5", u"1/6", u"5/6", u"1/8", u"3/8", u"5/8", u"7/8", u"1/10",
};

}  // namespace

frmFraction::frmFraction(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("分数"));
  optKind0 = ui::NamedOption(this, QStringLiteral("optKind_0"), QStringLiteral("约分"));
  optKind1 = ui::NamedOption(this, QStringLiteral("optKind_1"), QStringLiteral("小数化分数"));
  optKind0->setChecked(true);
  txtFenZi = ui::NamedEdit(this, QStringLiteral("txtFenZi"), QStringLiteral("12"));
  txtFenMu = ui::NamedEdit(this, QStringLiteral("txtFenMu"), QStringLiteral("18"));
  txtDecimal = ui::NamedEdit(this, QStringLiteral("txtDecimal"), QStringLiteral("0.1(6)"));
  labResult = ui::NamedLabel(this, QStringLiteral("labResult"), QString());
  auto* cmdOK = ui::NamedButton(this, QStringLiteral("cmdOK"), QStringLiteral("插入"));
  auto* cmdExit = ui::NamedButton(this, QStringLiteral("cmdExit"), QStringLiteral("退出"));

  auto* grid = new QGridLayout(this);
  grid->addWidget(optKind0, 0, 0);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label1"), QStringLiteral("分子")), 0, 1);
  grid->addWidget(txtFenZi, 0, 2);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label2"), QStringLiteral("分母")), 0, 3);
  grid->addWidget(txtFenMu, 0, 4);
  grid->addWidget(optKind1, 1, 0);
  grid->addWidget(txtDecimal, 1, 1, 1, 4);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label3"),
                                 QStringLiteral("循环节写在括号里，如 0.1(6) 即 0.1666…")),
                  2, 1, 1, 4);
  auto* palette = new QGroupBox(QStringLiteral("常用分数"), this);
  auto* cells = new QGridLayout(palette);
  for (int i = 0; i < static_cast<int>(std::size(kCommonFractions)); ++i) {
    const std::u16string fraction = kCommonFractions[i];
    auto* button = ui::NamedButton(this, QStringLiteral("cmdCommon_%1").arg(i),
                                   QString::fromStdU16String(fraction));
    cells->addWidget(button, i / 8, i % 8);
    OnClick(button, u"cmdCommon_Click", [this, fraction] { Insert({fraction, {}}); });
  }
  grid->addWidget(palette, 3, 0, 1, 5);
  grid->addWidget(labResult, 4, 0, 1, 3);
  grid->addWidget(cmdOK, 4, 3);
  grid->addWidget(cmdExit, 4, 4);

  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdExit, u"cmdExit_Click", [this] { close(); });
  RunGuarded(session_, u"Form_Load", OnError::kReport, [this] { Form_Load(); });
}

void frmFraction::Form_Load() {
  QStringList f = ui::RecordFields(ReadRecordSlot(session_.databasePath, kRecordSlot));
  if (f.size() != 4) return;
  optKind1->setChecked(ui::IsSet(f[0]));
  optKind0->setChecked(!ui::IsSet(f[0]));
  txtFenZi->setText(f[1]);
  txtFenMu->setText(f[2]);
  txtDecimal->setText(f[3]);
}

void frmFraction::Unload() {
  WriteRecordSlot(
      session_.databasePath, kRecordSlot,
      ui::RecordData({ui::Flag(optKind1), txtFenZi->text(), txtFenMu->text(), txtDecimal->text()}));
}

void frmFraction::cmdOK_Click() {
  Insert(optKind1->isChecked() ? DecimalToFractionForm(txtDecimal->text().toStdU16String())
                               : ReduceFractionForm(txtFenZi->text().toStdU16String(),
                                                    txtFenMu->text().toStdU16String()));
}

void frmFraction::Insert(const ExactForm& form) {
  if (InsertExactForm(session_, form))
    labResult->setText(QString::fromStdU16String(ReadableForm(form.notation)));
}

}  // namespace lp
