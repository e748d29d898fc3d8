#include "figures/frmDot.h"

#include <QGridLayout>
#include <QGroupBox>

#include "figures/draw_list.h"
#include "figures/point_labels.h"
#include "settings/record_slots.h"
#include "ui/named_controls.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 4;

// The places in the order of figures::LabelPlace, and where each option
// stands in the compass around the dot.
const struct {
  const char16_t* caption;
  int row, column;
} kPlaces[8] = {{u"上", 0, 1},   {u"下", 2, 1},   {u"左", 1, 0},   {u"右", 1, 2},
                {u"左上", 0, 0}, {u"右上", 0, 2}, {u"左下", 2, 0}, {u"右下", 2, 2}};

}  // namespace

frmDot::frmDot(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("标点"));
  optMode[0] = ui::NamedOption(this, QStringLiteral("optMode_0"), QStringLiteral("单个点"));
  optMode[1] = ui::NamedOption(this, QStringLiteral("optMode_1"), QStringLiteral("线段上的点"));
  optMode[0]->setChecked(true);
  txtNames = ui::NamedEdit(this, QStringLiteral("txtNames"), QStringLiteral("A"));
  txtCount = ui::NamedEdit(this, QStringLiteral("txtCount"), QStringLiteral("3"));
  txtLength = ui::NamedEdit(this, QStringLiteral("txtLength"), QStringLiteral("4"));
  chkSegment = ui::NamedCheck(this, QStringLiteral("chkSegment"), QStringLiteral("画出线段"));
  chkSegment->setChecked(true);
  txtDx = ui::NamedEdit(this, QStringLiteral("txtDx"), QStringLiteral("0"));
  txtDy = ui::NamedEdit(this, QStringLiteral("txtDy"), QStringLiteral("0"));
  txtSize = ui::NamedEdit(this, QStringLiteral("txtSize"), QStringLiteral("10.5"));
  auto* cmdOK = ui::NamedButton(this, QStringLiteral("cmdOK"), QStringLiteral("确定"));
  auto* cmdExit = ui::NamedButton(this, QStringLiteral("cmdExit"), QStringLiteral("退出"));

  auto* places = new QGroupBox(QStringLiteral("名称的位置"), this);
  auto* compass = new QGridLayout(places);
  for (int i = 0; i < 8; ++i) {
    optPlace[i] = ui::NamedOption(places, QStringLiteral("optPlace_%1").arg(i),
                                  QString::fromStdU16String(kPlaces[i].caption));
    compass->addWidget(optPlace[i], kPlaces[i].row, kPlaces[i].column);
  }
  compass->addWidget(ui::NamedLabel(places, QStringLiteral("lblDot"), QStringLiteral("●")), 1, 1,
                     Qt::AlignCenter);
  optPlace[4]->setChecked(true);

  auto* grid = new QGridLayout(this);
  grid->addWidget(optMode[0], 0, 0);
  grid->addWidget(optMode[1], 0, 1);
  const std::pair<QString, QLineEdit*> rows[] = {
      {QStringLiteral("名称（空格隔开）"), txtNames}, {QStringLiteral("点数"), txtCount},
      {QStringLiteral("线段长（cm）"), txtLength},    {QStringLiteral("右移（磅）"), txtDx},
      {QStringLiteral("下移（磅）"), txtDy},          {QStringLiteral("字号"), txtSize}};
  for (int i = 0; i < 6; ++i) {
    grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label%1").arg(i + 1), rows[i].first),
                    i + 1, 0);
    grid->addWidget(rows[i].second, i + 1, 1);
  }
  grid->addWidget(chkSegment, 7, 1);
  grid->addWidget(places, 0, 2, 7, 1);
  grid->addWidget(cmdOK, 8, 1);
  grid->addWidget(cmdExit, 8, 2);

  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdExit, u"cmdExit_Click", [this] { close(); });
  RunGuarded(session_, u"Form_Load", OnError::kReport, [this] { Form_Load(); });
}

int frmDot::PlaceIndex() const {
  for (int i = 0; i < 8; ++i)
    if (optPlace[i]->isChecked()) return i;
  return 4;
}

void frmDot::Form_Load() {
  QStringList f = ui::RecordFields(ReadRecordSlot(session_.databasePath, kRecordSlot));
  if (f.size() != 9) return;
  optMode[ui::IsSet(f[0]) ? 1 : 0]->setChecked(true);
  txtNames->setText(f[1]);
  txtCount->setText(f[2]);
  txtLength->setText(f[3]);
  chkSegment->setChecked(ui::IsSet(f[4]));
  const int place = f[5].toInt();
  optPlace[place >= 0 && place < 8 ? place : 4]->setChecked(true);
  txtDx->setText(f[6]);
  txtDy->setText(f[7]);
  txtSize->setText(f[8]);
}

void frmDot::Unload() {
  WriteRecordSlot(
      session_.databasePath, kRecordSlot,
      ui::RecordData({ui::Flag(optMode[1]), txtNames->text(), txtCount->text(), txtLength->text(),
                      ui::Flag(chkSegment), QString::number(PlaceIndex()), txtDx->text(),
                      txtDy->text(), txtSize->text()}));
}

// A refused input is told and draws nothing; the dialog stays open.
void frmDot::cmdOK_Click() {
  figures::PointLabelRequest request;
  request.alongSegment = optMode[1]->isChecked();
  request.names = txtNames->text().trimmed().toStdU16String();
  request.count = txtCount->text().trimmed().toStdU16String();
  request.length = txtLength->text().trimmed().toStdU16String();
  request.drawSegment = chkSegment->isChecked();
  request.place = static_cast<figures::LabelPlace>(PlaceIndex());
  request.dx = txtDx->text().trimmed().toStdU16String();
  request.dy = txtDy->text().trimmed().toStdU16String();
  request.size = txtSize->text().trimmed().toStdU16String();
  request.originX = session_.FigureOriginX;
  request.originY = session_.FigureOriginY;
  const figures::PointLabelFigure figure = figures::MakePointLabels(request);
  if (!figure.error.empty()) {
    session_.prompt.MsgBox(figure.error);
    return;
  }
  figures::DrawFigure(session_, figure.shapes, u"标点");
}

}  // namespace lp
