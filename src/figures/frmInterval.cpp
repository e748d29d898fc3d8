#include "figures/frmInterval.h"

#include <QColorDialog>
#include <QGridLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

#include "ui/named_controls.h"

namespace lp {

using namespace ui;

namespace {

QString Q(const std::u16string& s) {
  return QString::fromStdU16String(s);
}

// The picture of a kind: the axis, the raised line and the dots at its ends.
QPixmap KindPicture(IntervalKind kind) {
  QPixmap picture(72, 24);
  picture.fill(Qt::white);
  QPainter p(&picture);
  p.setRenderHint(QPainter::Antialiasing);
  p.drawLine(2, 18, 70, 18);
  int a = IsTwoEnded(kind) ? 18 : 36, b = 54;
  bool right = kind == kBigThanA || kind == kNoLessThanA;
  int far = IsTwoEnded(kind) ? b : right ? 70 : 2;
  p.setPen(QPen(Qt::blue, 1.5));
  p.drawPolyline(QPolygon({{a, 18}, {a, 8}, {far, 8}, {far, IsTwoEnded(kind) ? 18 : 8}}));
  std::u16string name = IntervalKindName(kind);
  auto dot = [&](int x, bool solid) {
    p.setPen(Qt::black);
    p.setBrush(solid ? Qt::black : Qt::white);
    p.drawEllipse(QPointF(x, 18), 2.5, 2.5);
  };
  if (!IsTwoEnded(kind)) {
    dot(a, name.find(u"No") != std::u16string::npos);
  } else {
    dot(a, name.find(u"NLTa") != std::u16string::npos);
    dot(b, name.find(u"NBTb") != std::u16string::npos);
  }
  return picture;
}

const char* const kKindCaptions[] = {"x>a",   "x≥a",   "x<a",   "x≤a",
                                     "a<x<b", "a≤x<b", "a<x≤b", "a≤x≤b"};

}  // namespace

frmInterval::frmInterval(Session& session) : ui::Form(session) {
  Guard(u"Form_Load", [this] { form_ = LoadIntervalForm(session_); })();
  auto* grid = new QGridLayout(this);
  grid->addWidget(MakeFrame2(), 0, 0);
  grid->addWidget(MakeFrame1(), 1, 0);
  grid->addWidget(MakeColours(), 2, 0);
  grid->addWidget(
      NamedLabel(this, "Label5",
                 QStringLiteral("注意：在画区间之前应先设置好x的范围i，使以后所画区间的端"
                                "点都在所给的范围内。建议长度值为100~300")),
      3, 0);
  auto* buttons = new QHBoxLayout;
  auto* cmdOK = NamedButton(this, "cmdOK", QStringLiteral("确定"));
  auto* cmdCancel = NamedButton(this, "cmdCancel", QStringLiteral("退出"));
  buttons->addStretch();
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdCancel);
  grid->addLayout(buttons, 4, 0);
  // A text the evaluator refuses ends the run: the click has no handler.
  OnClick(
      cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); }, OnError::kEndRun);
  OnClick(cmdCancel, u"cmdCancel_Click", [this] { close(); });
  ShowControls();
}

QGroupBox* frmInterval::MakeFrame2() {
  Frame2 = new QGroupBox(QStringLiteral("画数轴"), this);
  Frame2->setObjectName(QStringLiteral("Frame2"));
  txtLengthOfAxis = NamedEdit(Frame2, "txtLengthOfAxis", {});
  txtXmin = NamedEdit(Frame2, "txtXmin", {});
  txtXmax = NamedEdit(Frame2, "txtXmax", {});
  optKD = {NamedOption(Frame2, "optKD_0", QStringLiteral("自动刻度")),
           NamedOption(Frame2, "optKD_1", QStringLiteral("指定刻度"))};
  txtNumberList = NamedEdit(Frame2, "txtNumberList", {});
  chkNumberAxisOnly = NamedCheck(Frame2, "chkNumberAxisOnly", QStringLiteral("仅画数轴"));
  chkNoX = NamedCheck(Frame2, "chkNoX", QStringLiteral("去x"));
  auto* grid = new QGridLayout(Frame2);
  grid->addWidget(new QLabel(QStringLiteral("长度"), Frame2), 0, 0);
  grid->addWidget(txtLengthOfAxis, 0, 1);
  grid->addWidget(new QLabel(QStringLiteral("cm"), Frame2), 0, 2);
  grid->addWidget(new QLabel(QStringLiteral("范围"), Frame2), 1, 0);
  grid->addWidget(txtXmin, 1, 1);
  grid->addWidget(new QLabel(QStringLiteral("～"), Frame2), 1, 2);
  grid->addWidget(txtXmax, 1, 3);
  grid->addWidget(chkNumberAxisOnly, 2, 0, 1, 2);
  grid->addWidget(chkNoX, 2, 2, 1, 2);
  grid->addWidget(optKD[0], 3, 0, 1, 2);
  grid->addWidget(optKD[1], 3, 2, 1, 2);
  grid->addWidget(txtNumberList, 4, 0, 1, 4);
  auto* Label6 = NamedLabel(Frame2, "Label6",
                            QStringLiteral("刻度中，根号用g或sqr表示，如g2或sqr(2)表示根号2"));
  Label6->setWordWrap(true);
  grid->addWidget(Label6, 5, 0, 1, 4);
  OnClick(chkNumberAxisOnly, u"chkNumberAxisOnly_Click", [this] { chkNumberAxisOnly_Click(); });
  for (int i = 0; i < 2; ++i)
    OnClick(optKD[i], u"optKD_Click", [this, i] { txtNumberList->setEnabled(i == 1); });
  for (QLineEdit* edit : {txtXmin, txtXmax, txtNumberList}) edit->installEventFilter(this);
  return Frame2;
}

QGroupBox* frmInterval::MakeFrame1() {
  Frame1 = new QGroupBox(QStringLiteral("请选择区间类型"), this);
  Frame1->setObjectName(QStringLiteral("Frame1"));
  auto* grid = new QGridLayout(Frame1);
  for (int i = 0; i < 8; ++i) {
    auto kind = static_cast<IntervalKind>(i);
    std::string name = QString::fromStdU16String(IntervalOptionName(kind)).toStdString();
    kinds[i] = NamedOption(Frame1, name.c_str(), QString::fromUtf8(kKindCaptions[i]));
    imgInterval[i] = NamedLabel(Frame1, ("imgInterval_" + std::to_string(i)).c_str(), {});
    imgInterval[i]->setPixmap(KindPicture(kind));
    imgInterval[i]->installEventFilter(this);
    grid->addWidget(imgInterval[i], i % 4, (i / 4) * 2);
    grid->addWidget(kinds[i], i % 4, (i / 4) * 2 + 1);
    connect(kinds[i], &QRadioButton::toggled, this, Guard(u"optInterval_Click", [this, i] {
              if (kinds[i]->isChecked()) Kind_Click(i);
            }));
  }
  txtA = NamedEdit(Frame1, "txtA", {});
  txtB = NamedEdit(Frame1, "txtB", {});
  chkKD = NamedCheck(Frame1, "chkKD", QStringLiteral("全刻度"));
  grid->addWidget(new QLabel(QStringLiteral("a="), Frame1), 4, 0);
  grid->addWidget(txtA, 4, 1);
  grid->addWidget(new QLabel(QStringLiteral("b="), Frame1), 4, 2);
  grid->addWidget(txtB, 4, 3);
  grid->addWidget(chkKD, 5, 0, 1, 2);
  for (QLineEdit* edit : {txtA, txtB}) edit->installEventFilter(this);
  return Frame1;
}

QWidget* frmInterval::MakeColours() {
  auto* box = new QWidget(this);
  optColor = {NamedOption(box, "optColor_0", QStringLiteral("随机")),
              NamedOption(box, "optColor_1", QStringLiteral("指定"))};
  labIntervalColor = NamedLabel(box, "labIntervalColor", {});
  labIntervalColor->setFixedSize(40, 18);
  labIntervalColor->setAutoFillBackground(true);
  labIntervalColor->setFrameStyle(QFrame::Box);
  labIntervalColor->installEventFilter(this);
  auto* row = new QHBoxLayout(box);
  row->addWidget(new QLabel(QStringLiteral("颜色："), box));
  row->addWidget(optColor[0]);
  row->addWidget(optColor[1]);
  row->addWidget(labIntervalColor);
  row->addStretch();
  return box;
}

// The dialog's controls as the form's values say.
void frmInterval::ShowControls() {
  const IntervalControls& c = form_.controls;
  txtLengthOfAxis->setText(Q(c.txtLengthOfAxis));
  txtXmin->setText(Q(c.txtXmin));
  txtXmax->setText(Q(c.txtXmax));
  txtNumberList->setText(Q(c.txtNumberList));
  chkNumberAxisOnly->setChecked(c.chkNumberAxisOnly);
  optKD[c.optKD]->setChecked(true);
  chkNoX->setChecked(c.chkNoX);
  chkKD->setChecked(c.chkKD);
  if (c.kind != kNoKind) kinds[c.kind]->setChecked(true);
  txtA->setText(Q(c.txtA));
  txtB->setText(Q(c.txtB));
  optColor[c.randomColour ? 0 : 1]->setChecked(true);
  Frame1->setEnabled(!c.chkNumberAxisOnly);
  optKD[0]->setEnabled(c.chkNumberAxisOnly);
  optKD[1]->setEnabled(c.chkNumberAxisOnly);
  txtNumberList->setEnabled(c.chkNumberAxisOnly && c.optKD == 1);
  txtB->setEnabled(IsTwoEnded(c.kind));
  Frame2->setEnabled(c.frame2Enabled);
  setWindowTitle(Q(c.caption));
}

void frmInterval::ReadControls() {
  IntervalControls& c = form_.controls;
  c.txtLengthOfAxis = txtLengthOfAxis->text().toStdU16String();
  c.txtXmin = txtXmin->text().toStdU16String();
  c.txtXmax = txtXmax->text().toStdU16String();
  c.txtNumberList = txtNumberList->text().toStdU16String();
  c.chkNumberAxisOnly = chkNumberAxisOnly->isChecked();
  c.optKD = optKD[1]->isChecked() ? 1 : 0;
  c.chkNoX = chkNoX->isChecked();
  c.chkKD = chkKD->isChecked();
  c.kind = kNoKind;
  for (int i = 0; i < 8; ++i)
    if (kinds[i]->isChecked()) c.kind = static_cast<IntervalKind>(i);
  c.txtA = txtA->text().toStdU16String();
  c.txtB = txtB->text().toStdU16String();
  c.randomColour = optColor[0]->isChecked();
  QColor colour = labIntervalColor->palette().color(QPalette::Window);
  c.labIntervalColor = colour.red() + colour.green() * 256L + colour.blue() * 65536L;
}

void frmInterval::chkNumberAxisOnly_Click() {
  ReadControls();
  ApplyAxisOnlyRule(form_.controls);
  ShowControls();
}

void frmInterval::Kind_Click(int kind) {
  kinds[kind]->setChecked(true);
  txtB->setEnabled(IsTwoEnded(static_cast<IntervalKind>(kind)));
  txtB->setFrame(IsTwoEnded(static_cast<IntervalKind>(kind)));
}

void frmInterval::labIntervalColor_Click() {
  if (!optColor[1]->isChecked()) return;
  QColor chosen = QColorDialog::getColor(labIntervalColor->palette().color(QPalette::Window), this);
  if (!chosen.isValid()) return;
  QPalette palette = labIntervalColor->palette();
  palette.setColor(QPalette::Window, chosen);
  labIntervalColor->setPalette(palette);
}

void frmInterval::cmdOK_Click() {
  ReadControls();
  IntervalClick click = IntervalOK(form_, session_);
  ShowControls();
  if (click == IntervalClick::kDrawnAndClose) close();
}

void frmInterval::Unload() {
  ReadControls();
  CloseIntervalForm(form_, session_);
}

// Pictures choose their kind, the colour label opens the colour dialog, and
// the text boxes select their text on focus (the tick list on a click too,
// and a double click empties it).
bool frmInterval::eventFilter(QObject* watched, QEvent* event) {
  auto* edit = qobject_cast<QLineEdit*>(watched);
  if (event->type() == QEvent::MouseButtonPress) {
    for (int i = 0; i < 8; ++i)
      if (watched == imgInterval[i] && Frame1->isEnabled()) Kind_Click(i);
    if (watched == labIntervalColor)
      Guard(u"labIntervalColor_Click", [this] { labIntervalColor_Click(); })();
    if (watched == txtNumberList) {
      txtNumberList->setFocus();
      txtNumberList->selectAll();
      return true;
    }
  }
  if (event->type() == QEvent::MouseButtonDblClick && watched == txtNumberList) {
    txtNumberList->clear();
    return true;
  }
  if (event->type() == QEvent::FocusIn && edit)
    QMetaObject::invokeMethod(edit, &QLineEdit::selectAll, Qt::QueuedConnection);
  return ui::Form::eventFilter(watched, event);
}

}  // namespace lp
