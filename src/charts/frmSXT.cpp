#include "charts/frmSXT.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>

#include "charts/pie_chart.h"
#include "figures/draw_list.h"
#include "settings/record_slots.h"
#include "ui/named_controls.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 7;

QGroupBox* Row(QWidget* parent, QWidget* a, QWidget* b) {
  auto* box = new QGroupBox(parent);
  auto* layout = new QHBoxLayout(box);
  layout->addWidget(a);
  layout->addWidget(b);
  return box;
}

}  // namespace

frmSXT::frmSXT(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("扇形统计图"));
  txtData = ui::NamedEdit(this, QStringLiteral("txtData"), QStringLiteral("10：35：25：30"));
  auto* cmdCls = ui::NamedButton(this, QStringLiteral("cmdCls"), QStringLiteral("清空"));
  optData[0] = ui::NamedOption(this, QStringLiteral("optData_0"), QStringLiteral("输入角度比"));
  optData[1] = ui::NamedOption(this, QStringLiteral("optData_1"), QStringLiteral("输入面积比"));
  txtR = ui::NamedEdit(this, QStringLiteral("txtR"), QStringLiteral("2"));
  chkColor = ui::NamedCheck(this, QStringLiteral("chkColor"), QStringLiteral("填充扇形"));
  optColor[0] = ui::NamedOption(this, QStringLiteral("optColor_0"), QStringLiteral("随机颜色"));
  optColor[1] = ui::NamedOption(this, QStringLiteral("optColor_1"), QStringLiteral("随机阴影"));
  auto* cmdOK0 = ui::NamedButton(this, QStringLiteral("cmdOK_0"), QStringLiteral("确定"));
  auto* cmdOK1 = ui::NamedButton(this, QStringLiteral("cmdOK_1"), QStringLiteral("退出"));

  auto* grid = new QGridLayout(this);
  grid->addWidget(Row(this, optData[0], optData[1]), 0, 0, 1, 4);
  grid->addWidget(txtData, 1, 0, 1, 3);
  grid->addWidget(cmdCls, 1, 3);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("labR"), QStringLiteral("扇形半径")), 2, 0);
  grid->addWidget(txtR, 2, 1, 1, 2);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("labCm"), QStringLiteral("cm")), 2, 3);
  grid->addWidget(chkColor, 3, 0);
  grid->addWidget(Row(this, optColor[0], optColor[1]), 3, 1, 1, 3);
  grid->addWidget(cmdOK0, 4, 2);
  grid->addWidget(cmdOK1, 4, 3);
  // Each pair of options is exclusive only once it sits in its own box.
  optData[0]->setChecked(true);
  optColor[0]->setChecked(true);

  OnClick(cmdCls, u"cmdCls_Click", [this] { txtData->clear(); });
  // Parts that add up to 0 have no handler: the error ends the run, before
  // the document changes.
  OnClick(
      cmdOK0, u"cmdOK_Click", [this] { cmdOK_Click(); }, OnError::kEndRun);
  OnClick(cmdOK1, u"cmdOK_Click", [this] { close(); });
  RunGuarded(session_, u"Form_Load", OnError::kReport, [this] { Form_Load(); });
}

void frmSXT::cmdOK_Click() {
  charts::PieRequest request;
  request.data = txtData->text().toStdU16String();
  request.radius = txtR->text().toStdU16String();
  request.fill = chkColor->isChecked();
  request.shading = optColor[1]->isChecked();
  request.originX = session_.FigureOriginX;
  request.originY = session_.FigureOriginY;
  figures::DrawFigure(session_, charts::PieChart(request, charts::ClockRandom()), u"组合");
  setWindowTitle(QStringLiteral(" 扇形图绘制完成！"));
}

void frmSXT::Form_Load() {
  QStringList f = ui::RecordFields(ReadRecordSlot(session_.databasePath, kRecordSlot));
  if (f.size() != 4) return;
  optColor[ui::IsZero(f[0]) ? 0 : 1]->setChecked(true);
  txtR->setText(f[1]);
  optData[ui::IsZero(f[2]) ? 0 : 1]->setChecked(true);
  txtData->setText(f[3]);
}

void frmSXT::Unload() {
  WriteRecordSlot(session_.databasePath, kRecordSlot,
                  ui::RecordData({ui::ZeroIfSet(optColor[0]), txtR->text(),
                                  ui::ZeroIfSet(optData[0]), txtData->text()}));
}

}  // namespace lp
