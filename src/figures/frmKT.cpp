#include "figures/frmKT.h"

#include <QGridLayout>

#include "figures/draw_list.h"
#include "figures/flow_chart.h"
#include "settings/record_slots.h"
#include "ui/named_controls.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 14;

}  // namespace

frmKT::frmKT(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("流程图"));
  txtSteps = new QPlainTextEdit(this);
  txtSteps->setObjectName(QStringLiteral("txtSteps"));
  txtSteps->setPlainText(QStringLiteral("输入 x\nx≥0？\n否：y=-x\ny=x\n输出 y"));
  chkStartEnd =
      ui::NamedCheck(this, QStringLiteral("chkStartEnd"), QStringLiteral("自动加上“开始”和“结束”"));
  chkStartEnd->setChecked(true);
  chkJoin = ui::NamedCheck(this, QStringLiteral("chkJoin"),
                           QStringLiteral("“否”的一步做完后接回主线（选择结构）"));
  chkJoin->setChecked(true);
  txtWidth = ui::NamedEdit(this, QStringLiteral("txtWidth"), QStringLiteral("3"));
  optYN[0] = ui::NamedOption(this, QStringLiteral("optYN_0"), QStringLiteral("是 / 否"));
  optYN[1] = ui::NamedOption(this, QStringLiteral("optYN_1"), QStringLiteral("Y / N"));
  optYN[0]->setChecked(true);
  auto* cmdOK = ui::NamedButton(this, QStringLiteral("cmdOK"), QStringLiteral("确定"));
  auto* cmdExit = ui::NamedButton(this, QStringLiteral("cmdExit"), QStringLiteral("退出"));

  auto* grid = new QGridLayout(this);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label1"),
                                 QStringLiteral("步骤，每行一步：以“？”结尾的是判断框，"
                                                "“是”向下走；\n下一行写“否：…”是“否”的去向，"
                                                "不写则“否”通向结束。")),
                  0, 0, 1, 3);
  grid->addWidget(txtSteps, 1, 0, 1, 3);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label2"), QStringLiteral("框宽（cm）")), 2,
                  0);
  grid->addWidget(txtWidth, 2, 1);
  grid->addWidget(chkStartEnd, 2, 2);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label3"), QStringLiteral("判断的出口")), 3,
                  0);
  grid->addWidget(optYN[0], 3, 1);
  grid->addWidget(optYN[1], 3, 2);
  grid->addWidget(chkJoin, 4, 0, 1, 3);
  grid->addWidget(cmdOK, 5, 1);
  grid->addWidget(cmdExit, 5, 2);

  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdExit, u"cmdExit_Click", [this] { close(); });
  RunGuarded(session_, u"Form_Load", OnError::kReport, [this] { Form_Load(); });
}

void frmKT::Form_Load() {
  QStringList f = ui::RecordFields(ReadRecordSlot(session_.databasePath, kRecordSlot));
  if (f.size() != 5) return;
  txtSteps->setPlainText(f[0]);
  chkStartEnd->setChecked(ui::IsSet(f[1]));
  txtWidth->setText(f[2]);
  optYN[ui::IsZero(f[3]) ? 0 : 1]->setChecked(true);
  chkJoin->setChecked(ui::IsSet(f[4]));
}

void frmKT::Unload() {
  WriteRecordSlot(session_.databasePath, kRecordSlot,
                  ui::RecordData({txtSteps->toPlainText(), ui::Flag(chkStartEnd), txtWidth->text(),
                                  ui::ZeroIfSet(optYN[0]), ui::Flag(chkJoin)}));
}

// Refused steps are told and nothing is drawn; the dialog stays open.
void frmKT::cmdOK_Click() {
  figures::FlowChartRequest request;
  request.steps = txtSteps->toPlainText().toStdU16String();
  request.addStartEnd = chkStartEnd->isChecked();
  request.width = txtWidth->text().trimmed().toStdU16String();
  request.yesNoWords = optYN[0]->isChecked();
  request.joinNo = chkJoin->isChecked();
  request.originX = session_.FigureOriginX;
  request.originY = session_.FigureOriginY;
  const figures::FlowChartFigure figure = figures::MakeFlowChart(request);
  if (!figure.error.empty()) {
    session_.prompt.MsgBox(figure.error);
    return;
  }
  figures::DrawFigure(session_, figure.shapes, u"流程图");
}

}  // namespace lp
