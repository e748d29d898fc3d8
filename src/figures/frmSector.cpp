#include "figures/frmSector.h"

#include <QGridLayout>

#include "figures/draw_list.h"
#include "figures/sector.h"
#include "settings/record_slots.h"
#include "ui/named_controls.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 8;

}  // namespace

frmSector::frmSector(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("扇形"));
  const QString kinds[] = {QStringLiteral("扇形"), QStringLiteral("弧"), QStringLiteral("扇环")};
  for (int i = 0; i < 3; ++i)
    optKind[i] = ui::NamedOption(this, QStringLiteral("optKind_%1").arg(i), kinds[i]);
  optKind[0]->setChecked(true);
  txtR = ui::NamedEdit(this, QStringLiteral("txtR"), QStringLiteral("2"));
  txtR2 = ui::NamedEdit(this, QStringLiteral("txtR2"), QStringLiteral("1"));
  txtAngle = ui::NamedEdit(this, QStringLiteral("txtAngle"), QStringLiteral("120"));
  txtLabel = ui::NamedEdit(this, QStringLiteral("txtLabel"), QStringLiteral("120°"));
  chkRadii = ui::NamedCheck(this, QStringLiteral("chkRadii"), QStringLiteral("画出半径（弧）"));
  chkMark = ui::NamedCheck(this, QStringLiteral("chkMark"), QStringLiteral("角标记"));
  chkFill = ui::NamedCheck(this, QStringLiteral("chkFill"), QStringLiteral("填充"));
  chkRadii->setChecked(true);
  chkMark->setChecked(true);
  auto* cmdOK = ui::NamedButton(this, QStringLiteral("cmdOK"), QStringLiteral("确定"));
  auto* cmdExit = ui::NamedButton(this, QStringLiteral("cmdExit"), QStringLiteral("退出"));

  auto* grid = new QGridLayout(this);
  for (int i = 0; i < 3; ++i) grid->addWidget(optKind[i], 0, i);
  const std::pair<QString, QLineEdit*> rows[] = {{QStringLiteral("半径（cm）"), txtR},
                                                 {QStringLiteral("内半径（cm）"), txtR2},
                                                 {QStringLiteral("圆心角（°）"), txtAngle},
                                                 {QStringLiteral("标注"), txtLabel}};
  for (int i = 0; i < 4; ++i) {
    grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label%1").arg(i + 1), rows[i].first),
                    i + 1, 0);
    grid->addWidget(rows[i].second, i + 1, 1, 1, 2);
  }
  grid->addWidget(chkRadii, 5, 0);
  grid->addWidget(chkMark, 5, 1);
  grid->addWidget(chkFill, 5, 2);
  grid->addWidget(cmdOK, 6, 1);
  grid->addWidget(cmdExit, 6, 2);

  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdExit, u"cmdExit_Click", [this] { close(); });
  RunGuarded(session_, u"Form_Load", OnError::kReport, [this] { Form_Load(); });
}

void frmSector::Form_Load() {
  QStringList f = ui::RecordFields(ReadRecordSlot(session_.databasePath, kRecordSlot));
  if (f.size() != 10) return;
  for (int i = 0; i < 3; ++i) optKind[i]->setChecked(ui::IsSet(f[i]));
  txtR->setText(f[3]);
  txtR2->setText(f[4]);
  txtAngle->setText(f[5]);
  txtLabel->setText(f[6]);
  chkRadii->setChecked(ui::IsSet(f[7]));
  chkMark->setChecked(ui::IsSet(f[8]));
  chkFill->setChecked(ui::IsSet(f[9]));
}

void frmSector::Unload() {
  WriteRecordSlot(session_.databasePath, kRecordSlot,
                  ui::RecordData({ui::Flag(optKind[0]), ui::Flag(optKind[1]), ui::Flag(optKind[2]),
                                  txtR->text(), txtR2->text(), txtAngle->text(), txtLabel->text(),
                                  ui::Flag(chkRadii), ui::Flag(chkMark), ui::Flag(chkFill)}));
}

// A refused size is told and draws nothing; the dialog stays open.
void frmSector::cmdOK_Click() {
  figures::SectorRequest request;
  request.kind = optKind[1]->isChecked()   ? figures::SectorKind::kArc
                 : optKind[2]->isChecked() ? figures::SectorKind::kAnnulus
                                           : figures::SectorKind::kSector;
  request.radius = txtR->text().toStdU16String();
  request.innerRadius = txtR2->text().toStdU16String();
  request.angle = txtAngle->text().toStdU16String();
  request.label = txtLabel->text().toStdU16String();
  request.radii = chkRadii->isChecked();
  request.angleMark = chkMark->isChecked();
  request.filled = chkFill->isChecked();
  request.originX = session_.FigureOriginX;
  request.originY = session_.FigureOriginY;
  const figures::SectorFigure figure = figures::MakeSector(request);
  if (!figure.error.empty()) {
    session_.prompt.MsgBox(figure.error);
    return;
  }
  figures::DrawFigure(session_, figure.shapes, u"扇形");
}

}  // namespace lp
