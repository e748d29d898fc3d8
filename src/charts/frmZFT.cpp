#include "charts/frmZFT.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QPixmap>
#include <QVBoxLayout>

#include "figures/draw_list.h"
#include "runtime/convert.h"
#include "runtime/text.h"
#include "settings/record_slots.h"
#include "ui/named_controls.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 5;
constexpr int kRecordFields = 16;
const QString kCaption = QStringLiteral("直方图");

QString Q(const char16_t* text) {
  return QString::fromUtf16(text);
}

std::u16string U(const QLineEdit* edit) {
  return edit->text().toStdU16String();
}

// A small picture of a style: bars, and either short value lines (style 2)
// or long ones under an open frame (style 1).
QLabel* StyleSample(QWidget* parent, int style) {
  QPixmap picture(64, 44);
  picture.fill(Qt::white);
  QPainter p(&picture);
  p.drawLine(6, 40, 60, 40);
  p.drawLine(6, 40, 6, 2);
  const int heights[] = {14, 26, 20};
  for (int i = 0; i < 3; ++i) p.drawRect(12 + 14 * i, 40 - heights[i], 14, heights[i]);
  p.setPen(Qt::DashLine);
  for (int i = 0; i < 3; ++i) {
    int right = style == 1 ? 56 : 12 + 14 * i;
    p.drawLine(6, 40 - heights[i], right, 40 - heights[i]);
  }
  if (style == 1) {
    p.setPen(Qt::SolidLine);
    p.drawPolyline(QPolygon({QPoint(6, 8), QPoint(56, 8), QPoint(56, 40)}));
  }
  p.end();
  QLabel* label = ui::NamedLabel(parent, QStringLiteral("imgStyle_%1").arg(style), {});
  label->setPixmap(picture);
  return label;
}

QGroupBox* Box(QWidget* parent, const QString& title, QLayout* layout) {
  auto* box = new QGroupBox(title, parent);
  box->setLayout(layout);
  return box;
}

}  // namespace

frmZFT::frmZFT(Session& session) : ui::Form(session) {
  setWindowTitle(kCaption);
  auto* cmdFX = ui::NamedButton(this, QStringLiteral("cmdFX"), QStringLiteral("分析"));
  auto* cmdOK0 = ui::NamedButton(this, QStringLiteral("cmdOK_0"), QStringLiteral("确定"));
  auto* cmdOK1 = ui::NamedButton(this, QStringLiteral("cmdOK_1"), QStringLiteral("退出"));
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdFX);
  buttons->addStretch();
  buttons->addWidget(cmdOK0);
  buttons->addWidget(cmdOK1);

  auto* grid = new QGridLayout(this);
  grid->addWidget(MakeTypeBox(), 0, 0);
  grid->addWidget(MakeDataBox(), 1, 0);
  grid->addWidget(MakeStyleBox(), 2, 0);
  grid->addWidget(MakeConfigBox(), 0, 1, 2, 1);
  grid->addWidget(MakeScaleBox(), 2, 1);
  grid->addLayout(buttons, 3, 0, 1, 2);

  for (int i = 0; i < 3; ++i) {
    connect(optZFT[i], &QRadioButton::toggled, this, Guard(u"optZFT_Click", [this, i] {
              if (optZFT[i]->isChecked()) optZFT_Click(i);
            }));
  }
  connect(chkYKd, &QCheckBox::toggled, this, Guard(u"chkYKd_Click", [this] { chkYKd_Click(); }));
  OnClick(cmdFX, u"cmdFX_Click", [] {});
  // A chart that cannot be computed (all values equal, a value beyond the
  // 16-bit range) has no handler: the error ends the run, before the
  // document changes.
  OnClick(
      cmdOK0, u"cmdOK_Click", [this] { cmdOK_Click(); }, OnError::kEndRun);
  OnClick(cmdOK1, u"cmdOK_Click", [this] { close(); });
  optZFT[0]->setChecked(true);
  optData[0]->setChecked(true);
  optStyle[0]->setChecked(true);
  optColor[0]->setChecked(true);
  chkYKd_Click();
  RunGuarded(session_, u"Form_Load", OnError::kReport, [this] { Form_Load(); });
}

QWidget* frmZFT::MakeTypeBox() {
  const char16_t* captions[] = {u"频数分布直方图", u"频率分布直方图", u"条形图"};
  auto* layout = new QVBoxLayout;
  for (int i = 0; i < 3; ++i) {
    optZFT[i] = ui::NamedOption(this, QStringLiteral("optZFT_%1").arg(i), Q(captions[i]));
    layout->addWidget(optZFT[i]);
  }
  return Box(this, QStringLiteral("图表类型"), layout);
}

QWidget* frmZFT::MakeDataBox() {
  optData[0] =
      ui::NamedOption(this, QStringLiteral("optData_0"), QStringLiteral("输入y轴刻度数据"));
  optData[1] = ui::NamedOption(this, QStringLiteral("optData_1"), QStringLiteral("输入频数"));
  txtData = ui::NamedEdit(this, QStringLiteral("txtData"), QStringLiteral("3,5,6,4,7,5,4"));
  auto* cmdCls = ui::NamedButton(this, QStringLiteral("cmdCls"), QStringLiteral("清空"));
  OnClick(cmdCls, u"cmdCls_Click", [this] { txtData->clear(); });
  auto* layout = new QGridLayout;
  layout->addWidget(optData[0], 0, 0);
  layout->addWidget(optData[1], 0, 1);
  layout->addWidget(txtData, 1, 0, 1, 2);
  layout->addWidget(cmdCls, 1, 2);
  return Box(this, QStringLiteral("数据"), layout);
}

QWidget* frmZFT::MakeConfigBox() {
  txtLenX = ui::NamedEdit(this, QStringLiteral("txtLenX"), QStringLiteral("6"));
  txtLenY = ui::NamedEdit(this, QStringLiteral("txtLenY"), QStringLiteral("4"));
  auto* txtCZ = ui::NamedEdit(this, QStringLiteral("txtCZ"), QStringLiteral("初值"));
  txtCZ->setReadOnly(true);
  txtCZ->setFrame(false);
  txtChuZhi = ui::NamedEdit(this, QStringLiteral("txtChuZhi"), QStringLiteral("20"));
  txtZJ = ui::NamedEdit(this, QStringLiteral("txtZJ"), QStringLiteral("10"));
  txtTextX = ui::NamedEdit(this, QStringLiteral("txtTextX"), QStringLiteral("样本"));
  txtTextY = ui::NamedEdit(this, QStringLiteral("txtTextY"), QStringLiteral("频数"));
  txtXSWS = ui::NamedEdit(this, QStringLiteral("txtXSWS"), QStringLiteral("3"));
  chkZX = ui::NamedCheck(this, QStringLiteral("chkZX"), QStringLiteral("折线开始"));
  auto* layout = new QGridLayout;
  int row = 0;
  auto add = [&](const char* name, const QString& caption, QWidget* field) {
    layout->addWidget(ui::NamedLabel(this, QString::fromLatin1(name), caption), row, 0);
    layout->addWidget(field, row++, 1);
  };
  add("labLenX", QStringLiteral("x轴长度"), txtLenX);
  add("labLenY", QStringLiteral("y轴长度"), txtLenY);
  layout->addWidget(txtCZ, row, 0);
  layout->addWidget(txtChuZhi, row++, 1);
  add("labZJ", QStringLiteral("组距"), txtZJ);
  add("labTextX", QStringLiteral("x轴文字"), txtTextX);
  add("labTextY", QStringLiteral("y轴文字"), txtTextY);
  add("labXSWS", QStringLiteral("保留小数位数"), txtXSWS);
  layout->addWidget(chkZX, row, 0, 1, 2);
  return Box(this, QStringLiteral("配置区(长度单位为cm)"), layout);
}

QWidget* frmZFT::MakeScaleBox() {
  chkYKd = ui::NamedCheck(this, QStringLiteral("chkYKd"), QStringLiteral("指定y轴刻度"));
  const char* captions[] = {"初值", "终值", "跨度"};
  const char* defaults[] = {"100", "700", "100"};
  auto* layout = new QGridLayout;
  layout->addWidget(chkYKd, 0, 0, 1, 2);
  for (int i = 0; i < 3; ++i) {
    txtYkd[i] =
        ui::NamedEdit(this, QStringLiteral("txtYkd_%1").arg(i), QString::fromLatin1(defaults[i]));
    layout->addWidget(
        ui::NamedLabel(this, QStringLiteral("labYkd_%1").arg(i), QString::fromUtf8(captions[i])),
        i + 1, 0);
    layout->addWidget(txtYkd[i], i + 1, 1);
  }
  return Box(this, QStringLiteral("y轴刻度"), layout);
}

QWidget* frmZFT::MakeStyleBox() {
  optStyle[0] = ui::NamedOption(this, QStringLiteral("optStyle_0"), QStringLiteral("样式2"));
  optStyle[1] = ui::NamedOption(this, QStringLiteral("optStyle_1"), QStringLiteral("样式1"));
  chkColor = ui::NamedCheck(this, QStringLiteral("chkColor"), QStringLiteral("填充柱状图"));
  optColor[0] = ui::NamedOption(this, QStringLiteral("optColor_0"), QStringLiteral("随机颜色"));
  optColor[1] = ui::NamedOption(this, QStringLiteral("optColor_1"), QStringLiteral("阴影"));
  auto* styles = new QHBoxLayout;
  styles->addWidget(optStyle[0]);
  styles->addWidget(StyleSample(this, 0));
  styles->addWidget(optStyle[1]);
  styles->addWidget(StyleSample(this, 1));
  auto* colours = new QHBoxLayout;
  colours->addWidget(chkColor);
  colours->addWidget(optColor[0]);
  colours->addWidget(optColor[1]);
  auto* layout = new QVBoxLayout;
  layout->addWidget(Box(this, QStringLiteral("样式"), styles));
  layout->addWidget(Box(this, QStringLiteral("填充"), colours));
  auto* holder = new QWidget(this);
  holder->setLayout(layout);
  layout->setContentsMargins(0, 0, 0, 0);
  return holder;
}

// Each chart type brings its own y caption and x axis start.
void frmZFT::optZFT_Click(int index) {
  const char16_t* captions[] = {u"频数", u"频率/组距", u"数量"};
  txtTextY->setText(Q(captions[index]));
  chkZX->setChecked(index != 2);
  optData[1]->setVisible(index == 1);
}

void frmZFT::chkYKd_Click() {
  for (QLineEdit* box : txtYkd) {
    box->setEnabled(chkYKd->isChecked());
    box->setFrame(chkYKd->isChecked());
  }
}

int frmZFT::ChartIndex() const {
  for (int i = 0; i < 3; ++i)
    if (optZFT[i]->isChecked()) return i;
  return 0;
}

charts::HistogramRequest frmZFT::Request() const {
  charts::HistogramRequest r;
  r.type = static_cast<charts::ChartType>(ChartIndex());
  r.data = U(txtData);
  r.lengthX = U(txtLenX);
  r.lengthY = U(txtLenY);
  r.firstValue = U(txtChuZhi);
  r.classWidth = U(txtZJ);
  r.captionX = U(txtTextX);
  r.captionY = U(txtTextY);
  r.fixedYScale = chkYKd->isChecked();
  r.yStart = U(txtYkd[0]);
  r.yEnd = U(txtYkd[1]);
  r.yStep = U(txtYkd[2]);
  r.framed = optStyle[1]->isChecked();
  r.brokenAxis = chkZX->isChecked();
  r.decimals = U(txtXSWS);
  r.fill = chkColor->isChecked();
  r.shading = optColor[1]->isChecked();
  r.originX = session_.FigureOriginX;
  r.originY = session_.FigureOriginY;
  return r;
}

void frmZFT::cmdOK_Click() {
  setWindowTitle(QStringLiteral("正在处理，请稍等..."));
  charts::ChartResult chart = charts::Histogram(Request(), charts::ClockRandom());
  if (!chart.refusal.empty()) {
    session_.prompt.MsgBox(chart.refusal);
    setWindowTitle(kCaption);
    return;
  }
  figures::DrawFigure(session_, chart.shapes, u"组合");
  setWindowTitle(QStringLiteral(" 直方图绘制完成！"));
}

// The chart type comes first, so that the caption and axis start it brings
// give way to the saved ones.
void frmZFT::Form_Load() {
  QStringList f = ui::RecordFields(ReadRecordSlot(session_.databasePath, kRecordSlot));
  if (f.size() != kRecordFields) return;
  int type = CInt(Val(f[0].toStdU16String()));
  if (type >= 0 && type < 3) optZFT[type]->setChecked(true);
  for (int i = 0; i < 10; ++i) TextFields()[i]->setText(f[i + 1]);
  chkColor->setChecked(ui::IsSet(f[11]));
  optColor[ui::IsZero(f[12]) ? 0 : 1]->setChecked(true);
  txtXSWS->setText(f[13]);
  chkZX->setChecked(ui::IsSet(f[14]));
  optStyle[ui::IsZero(f[15]) ? 0 : 1]->setChecked(true);
}

std::array<QLineEdit*, 10> frmZFT::TextFields() const {
  return {txtLenX,  txtLenY,   txtChuZhi, txtZJ,     txtTextX,
          txtTextY, txtYkd[0], txtYkd[1], txtYkd[2], txtData};
}

void frmZFT::Unload() {
  bool anyType = optZFT[0]->isChecked() || optZFT[1]->isChecked() || optZFT[2]->isChecked();
  QStringList f{anyType ? QString::fromStdU16String(Str(ChartIndex())) : QStringLiteral("0")};
  for (QLineEdit* text : TextFields()) f << text->text();
  f << ui::Flag(chkColor) << ui::ZeroIfSet(optColor[0]) << txtXSWS->text() << ui::Flag(chkZX)
    << ui::ZeroIfSet(optStyle[0]);
  WriteRecordSlot(session_.databasePath, kRecordSlot, ui::RecordData(f));
}

}  // namespace lp
