#include "figures/frmFangGe.h"

#include <QGridLayout>

#include "figures/draw_list.h"
#include "figures/grid_paper.h"
#include "settings/record_slots.h"
#include "ui/named_controls.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 10;

}  // namespace

frmFangGe::frmFangGe(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("方格纸"));
  const QString kinds[] = {QStringLiteral("方格"), QStringLiteral("田字格"),
                           QStringLiteral("米字格"), QStringLiteral("坐标纸")};
  for (int i = 0; i < 4; ++i)
    optKind[i] = ui::NamedOption(this, QStringLiteral("optKind_%1").arg(i), kinds[i]);
  optKind[1]->setChecked(true);
  txtRows = ui::NamedEdit(this, QStringLiteral("txtRows"), QStringLiteral("2"));
  txtSize = ui::NamedEdit(this, QStringLiteral("txtSize"), QStringLiteral("1.5"));
  auto* cmdOK = ui::NamedButton(this, QStringLiteral("cmdOK"), QStringLiteral("确定"));
  auto* cmdExit = ui::NamedButton(this, QStringLiteral("cmdExit"), QStringLiteral("退出"));

  auto* grid = new QGridLayout(this);
  for (int i = 0; i < 4; ++i) grid->addWidget(optKind[i], 0, i);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label1"), QStringLiteral("行数")), 1, 0);
  grid->addWidget(txtRows, 1, 1);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label2"), QStringLiteral("格宽（cm）")), 1,
                  2);
  grid->addWidget(txtSize, 1, 3);
  grid->addWidget(cmdOK, 2, 2);
  grid->addWidget(cmdExit, 2, 3);

  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdExit, u"cmdExit_Click", [this] { close(); });
  RunGuarded(session_, u"Form_Load", OnError::kReport, [this] { Form_Load(); });
}

void frmFangGe::Form_Load() {
  QStringList f = ui::RecordFields(ReadRecordSlot(session_.databasePath, kRecordSlot));
  if (f.size() != 6) return;
  for (int i = 0; i < 4; ++i) optKind[i]->setChecked(ui::IsSet(f[i]));
  txtRows->setText(f[4]);
  txtSize->setText(f[5]);
}

void frmFangGe::Unload() {
  WriteRecordSlot(session_.databasePath, kRecordSlot,
                  ui::RecordData({ui::Flag(optKind[0]), ui::Flag(optKind[1]), ui::Flag(optKind[2]),
                                  ui::Flag(optKind[3]), txtRows->text(), txtSize->text()}));
}

// A refused size is told and draws nothing; the dialog stays open.
void frmFangGe::cmdOK_Click() {
  figures::GridRequest request;
  const figures::GridKind kinds[] = {figures::GridKind::kSquare, figures::GridKind::kTian,
                                     figures::GridKind::kMi, figures::GridKind::kCoordinate};
  for (int i = 0; i < 4; ++i)
    if (optKind[i]->isChecked()) request.kind = kinds[i];
  request.rows = txtRows->text().toStdU16String();
  request.cellCm = txtSize->text().toStdU16String();
  word::PageSetup& page = session_.WordApp->ActiveDocument().PageSetup();
  request.textWidth = page.PageWidth() - page.LeftMargin() - page.RightMargin();
  request.originX = session_.FigureOriginX;
  request.originY = session_.FigureOriginY;
  const figures::GridFigure figure = figures::MakeGridPaper(request);
  if (!figure.error.empty()) {
    session_.prompt.MsgBox(figure.error);
    return;
  }
  figures::DrawFigure(session_, figure.shapes, u"方格");
}

}  // namespace lp
