#include "figures/frmXDT.h"

#include <QGridLayout>

#include "figures/draw_list.h"
#include "figures/segment_diagram.h"
#include "settings/record_slots.h"
#include "ui/named_controls.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 6;

}  // namespace

frmXDT::frmXDT(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("线段图"));
  txtLen0 = ui::NamedEdit(this, QStringLiteral("txtLen_0"), QStringLiteral("8"));
  txtLen1 = ui::NamedEdit(this, QStringLiteral("txtLen_1"), QStringLiteral("2"));
  optBL = ui::NamedOption(this, QStringLiteral("optBL"), QStringLiteral("按比例"));
  txtBL = ui::NamedEdit(this, QStringLiteral("txtBL"), QStringLiteral("2:1:1"));
  optDF = ui::NamedOption(this, QStringLiteral("optDF"), QStringLiteral("n等分"));
  txtDF = ui::NamedEdit(this, QStringLiteral("txtDF"), QStringLiteral("3"));
  optBL->setChecked(true);
  auto* cmdOK = ui::NamedButton(this, QStringLiteral("cmdOK"), QStringLiteral("确定"));
  auto* cmdExit = ui::NamedButton(this, QStringLiteral("cmdExit"), QStringLiteral("退出"));

  auto* grid = new QGridLayout(this);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label1"), QStringLiteral("长度")), 0, 0);
  grid->addWidget(txtLen0, 0, 1);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label2"), QStringLiteral("cm")), 0, 2);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label3"), QStringLiteral("高度")), 1, 0);
  grid->addWidget(txtLen1, 1, 1);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label4"), QStringLiteral("mm")), 1, 2);
  grid->addWidget(optBL, 2, 0);
  grid->addWidget(txtBL, 2, 1, 1, 2);
  grid->addWidget(optDF, 3, 0);
  grid->addWidget(txtDF, 3, 1, 1, 2);
  grid->addWidget(cmdOK, 4, 1);
  grid->addWidget(cmdExit, 4, 2);

  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdExit, u"cmdExit_Click", [this] { close(); });
  RunGuarded(session_, u"Form_Load", OnError::kReport, [this] { Form_Load(); });
}

void frmXDT::Form_Load() {
  QStringList f = ui::RecordFields(ReadRecordSlot(session_.databasePath, kRecordSlot));
  if (f.size() != 6) return;
  txtLen0->setText(f[0]);
  txtLen1->setText(f[1]);
  optBL->setChecked(ui::IsSet(f[2]));
  txtBL->setText(f[3]);
  optDF->setChecked(ui::IsSet(f[4]));
  txtDF->setText(f[5]);
}

void frmXDT::Unload() {
  WriteRecordSlot(session_.databasePath, kRecordSlot,
                  ui::RecordData({txtLen0->text(), txtLen1->text(), ui::Flag(optBL), txtBL->text(),
                                  ui::Flag(optDF), txtDF->text()}));
}

// A ratio without a colon or no parts draw nothing and leave the dialog open.
void frmXDT::cmdOK_Click() {
  figures::SegmentRequest request;
  request.length = txtLen0->text().toStdU16String();
  request.height = txtLen1->text().toStdU16String();
  request.equalParts = optDF->isChecked();
  request.ratio = txtBL->text().toStdU16String();
  request.parts = txtDF->text().toStdU16String();
  request.originX = session_.FigureOriginX;
  request.originY = session_.FigureOriginY;
  figures::DrawFigure(session_, figures::SegmentDiagram(request), u"区间");
}

}  // namespace lp
