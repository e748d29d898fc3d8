#include "formula/frmAngle2Radian.h"

#include <QGridLayout>

#include "formula/angle_radian.h"
#include "settings/record_slots.h"
#include "ui/named_controls.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 11;

}  // namespace

frmAngle2Radian::frmAngle2Radian(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("角度与弧度互化"));
  optDir0 = ui::NamedOption(this, QStringLiteral("optDir_0"), QStringLiteral("角度化为弧度"));
  optDir1 = ui::NamedOption(this, QStringLiteral("optDir_1"), QStringLiteral("弧度化为角度"));
  optDir0->setChecked(true);
  txtDu = ui::NamedEdit(this, QStringLiteral("txtDu"), QStringLiteral("30"));
  txtFen = ui::NamedEdit(this, QStringLiteral("txtFen"), QString());
  txtMiao = ui::NamedEdit(this, QStringLiteral("txtMiao"), QString());
  txtRad = ui::NamedEdit(this, QStringLiteral("txtRad"), QStringLiteral("3π/4"));
  labResult = ui::NamedLabel(this, QStringLiteral("labResult"), QString());
  auto* cmdOK = ui::NamedButton(this, QStringLiteral("cmdOK"), QStringLiteral("插入"));
  auto* cmdExit = ui::NamedButton(this, QStringLiteral("cmdExit"), QStringLiteral("退出"));

  auto* grid = new QGridLayout(this);
  grid->addWidget(optDir0, 0, 0, 1, 6);
  grid->addWidget(txtDu, 1, 0);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label1"), QStringLiteral("°")), 1, 1);
  grid->addWidget(txtFen, 1, 2);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label2"), QStringLiteral("′")), 1, 3);
  grid->addWidget(txtMiao, 1, 4);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label3"), QStringLiteral("″")), 1, 5);
  grid->addWidget(optDir1, 2, 0, 1, 6);
  grid->addWidget(txtRad, 3, 0, 1, 4);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label4"), QStringLiteral("（如 3π/4）")), 3,
                  4, 1, 2);
  grid->addWidget(labResult, 4, 0, 1, 6);
  grid->addWidget(cmdOK, 5, 2, 1, 2);
  grid->addWidget(cmdExit, 5, 4, 1, 2);

  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdExit, u"cmdExit_Click", [this] { close(); });
  RunGuarded(session_, u"Form_Load", OnError::kReport, [this] { Form_Load(); });
}

void frmAngle2Radian::Form_Load() {
  QStringList f = ui::RecordFields(ReadRecordSlot(session_.databasePath, kRecordSlot));
  if (f.size() != 5) return;
  optDir1->setChecked(ui::IsSet(f[0]));
  optDir0->setChecked(!ui::IsSet(f[0]));
  txtDu->setText(f[1]);
  txtFen->setText(f[2]);
  txtMiao->setText(f[3]);
  txtRad->setText(f[4]);
}

void frmAngle2Radian::Unload() {
  WriteRecordSlot(session_.databasePath, kRecordSlot,
                  ui::RecordData({ui::Flag(optDir1), txtDu->text(), txtFen->text(), txtMiao->text(),
                                  txtRad->text()}));
}

// A refused angle is told and leaves the document as it was.
void frmAngle2Radian::cmdOK_Click() {
  const AngleConversion result =
      optDir1->isChecked()
          ? RadiansToDegrees(txtRad->text().toStdU16String())
          : DegreesToRadians(txtDu->text().toStdU16String(), txtFen->text().toStdU16String(),
                             txtMiao->text().toStdU16String());
  if (InsertExactForm(session_, result))
    labResult->setText(QString::fromStdU16String(ReadableForm(result.notation)));
}

}  // namespace lp
