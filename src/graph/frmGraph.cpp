#include "graph/frmGraph.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "graph/canvas.h"
#include "graph/inputs.h"
#include "graph/qt_preview.h"
#include "graph/scene.h"
#include "graph/word_drawer.h"

namespace lp {
namespace {

QString Q(const char16_t* s) {
  return QString::fromUtf16(s);
}

template <class W>
W* Named(W* widget, const QString& name) {
  widget->setObjectName(name);
  return widget;
}

}  // namespace

frmGraph::frmGraph(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("函数作图"));
  options_ = graph::SessionAxisOptions(session);
  SSTab1 = Named(new QTabWidget(this), QStringLiteral("SSTab1"));
  SSTab1->setStyleSheet(QStringLiteral("QTabBar::tab { padding: 4px 4px; }"));
  SSTab1->setMinimumWidth(660);
  for (const graph::GraphTab& tab : graph::GraphTabs())
    SSTab1->addTab(BuildTab(tab), Q(tab.caption));

  auto* middle = new QVBoxLayout;
  middle->addWidget(SSTab1, 1);
  middle->addLayout(BuildLineSettings());
  auto* left = new QVBoxLayout;
  left->addLayout(BuildView());
  left->addLayout(BuildListArea(), 1);
  auto* top = new QHBoxLayout;
  top->addLayout(left);
  top->addLayout(middle, 1);

  cmdOK = Named(new QPushButton(QStringLiteral("插入Word"), this), QStringLiteral("cmdOK"));
  auto* cmdCancel =
      Named(new QPushButton(QStringLiteral("退出"), this), QStringLiteral("cmdCancel"));
  auto* bottom = new QHBoxLayout;
  bottom->addStretch(1);
  bottom->addWidget(cmdOK);
  bottom->addWidget(cmdCancel);
  auto* all = new QVBoxLayout(this);
  all->addLayout(top, 1);
  all->addLayout(bottom);
  for (auto* b : findChildren<QPushButton*>()) b->setAutoDefault(false);

  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdCancel, u"cmdCancel_Click", [this] { close(); });
  Connect();
  Load();
  ReopenSelectedGraph();
}

QWidget* frmGraph::BuildTab(const graph::GraphTab& tab) {
  auto* page = new QWidget;
  auto* grid = new QGridLayout(page);
  std::map<std::u16string, QButtonGroup*> groups;
  int row = 0, column = 0;
  auto next = [&](int span) {
    if (column + span > 4) row++, column = 0;
    int at = column;
    column += span;
    return at;
  };
  for (const graph::TabControl& c : tab.controls) {
    QString name = Q(c.name), caption = Q(c.caption);
    switch (c.kind) {
      case graph::TabControl::kRow:
        if (column > 0) row++, column = 0;
        break;
      case graph::TabControl::kNote: {
        auto* note = new QLabel(caption, page);
        note->setWordWrap(true);
        if (column > 0) row++, column = 0;
        grid->addWidget(note, row++, 0, 1, 4);
        break;
      }
      case graph::TabControl::kText: {
        int at = next(2);
        grid->addWidget(Named(new QLabel(caption, page), QStringLiteral("lab") + name.mid(3)), row,
                        at, Qt::AlignRight);
        grid->addWidget(Named(new QLineEdit(page), name), row, at + 1);
        break;
      }
      case graph::TabControl::kCheck:
        grid->addWidget(Named(new QCheckBox(caption, page), name), row, next(1));
        break;
      case graph::TabControl::kOption: {
        auto* option = Named(new QRadioButton(caption, page), name);
        QButtonGroup*& group = groups[c.group];
        if (!group) group = new QButtonGroup(page);
        group->addButton(option);
        grid->addWidget(option, row, next(1));
        break;
      }
    }
  }
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  for (const graph::TabButton& b : tab.buttons)
    buttons->addWidget(Named(new QPushButton(Q(b.caption), page), Q(b.name)));
  grid->addLayout(buttons, row + 1, 0, 1, 4);
  grid->setRowStretch(row + 2, 1);
  return page;
}

QLayout* frmGraph::BuildView() {
  Picture1 = Named(new graph::GraphPreview(this), QStringLiteral("Picture1"));
  Picture1->setFixedSize(320, 320);
  labZS = Named(new QLabel(this), QStringLiteral("labZS"));
  labYS = Named(new QLabel(this), QStringLiteral("labYS"));
  labZX = Named(new QLabel(this), QStringLiteral("labZX"));
  labYX = Named(new QLabel(this), QStringLiteral("labYX"));
  HScrollx = Named(new QScrollBar(Qt::Horizontal, this), QStringLiteral("HScrollx"));
  HScrolly = Named(new QScrollBar(Qt::Vertical, this), QStringLiteral("HScrolly"));
  for (QScrollBar* bar : {HScrollx, HScrolly}) bar->setRange(-10, 10);
  auto* grid = new QGridLayout;
  grid->addWidget(labZS, 0, 0, Qt::AlignLeft);
  grid->addWidget(labYS, 0, 0, Qt::AlignRight);
  grid->addWidget(Picture1, 1, 0);
  grid->addWidget(HScrolly, 1, 1);
  grid->addWidget(new QLabel(QStringLiteral("上移"), this), 0, 1);
  grid->addWidget(labZX, 2, 0, Qt::AlignLeft);
  grid->addWidget(labYX, 2, 0, Qt::AlignRight);
  grid->addWidget(HScrollx, 3, 0);
  grid->addWidget(new QLabel(QStringLiteral("右移"), this), 3, 1);

  auto* zoom = new QHBoxLayout;
  const char16_t* signs[] = {u"-", u"+"};
  const char16_t* tips[] = {u"缩小", u"放大"};
  for (int i = 0; i < 2; ++i) {
    auto* b = Named(new QPushButton(Q(signs[i]), this), QStringLiteral("Command1_%1").arg(i));
    b->setToolTip(Q(tips[i]));
    b->setFixedWidth(28);
    OnClick(b, u"Command1_Click", [this, i] { ZoomBy(i == 0 ? -2 : 2); });
    zoom->addWidget(b);
  }
  txtLenOfAxis_x = Named(new QLineEdit(this), QStringLiteral("txtLenOfAxis_x"));
  txtLenOfAxis_y = Named(new QLineEdit(this), QStringLiteral("txtLenOfAxis_y"));
  QLineEdit* texts[] = {txtLenOfAxis_x, txtLenOfAxis_y};
  for (int i = 0; i < 2; ++i) {
    udLenOfAxis[i] = Named(new QSpinBox(this), QStringLiteral("udLenOfAxis_%1").arg(i));
    udLenOfAxis[i]->setRange(2, 2000);
    udLenOfAxis[i]->setSingleStep(2);
    udLenOfAxis[i]->setValue(10);
    udLenOfAxis[i]->setFixedWidth(20);  // the arrows beside the typed length
    texts[i]->setFixedWidth(44);
    zoom->addWidget(new QLabel(i == 0 ? QStringLiteral("x轴长") : QStringLiteral("y轴长"), this));
    zoom->addWidget(texts[i]);
    zoom->addWidget(udLenOfAxis[i]);
  }
  zoom->addStretch(1);
  grid->addLayout(zoom, 4, 0, 1, 2);
  return grid;
}

QLayout* frmGraph::BuildLineSettings() {
  chkNoCoordinate =
      Named(new QCheckBox(QStringLiteral("不画坐标轴"), this), QStringLiteral("chkNoCoordinate"));
  chkDrawScale =
      Named(new QCheckBox(QStringLiteral("画刻度"), this), QStringLiteral("chkDrawScale"));
  chkWG = Named(new QCheckBox(QStringLiteral("坐标网格"), this), QStringLiteral("chkWG"));
  chkMultImage = Named(new QCheckBox(QStringLiteral("在同一坐标系下显示多个函数图像"), this),
                       QStringLiteral("chkMultImage"));
  const char16_t* targets[] = {u"坐标系", u"图像", u"网格"};
  auto* settings = new QGroupBox(QStringLiteral("线条设置"), this);
  auto* grid = new QGridLayout(settings);
  for (int i = 0; i < 3; ++i) {
    optXTSZ[i] =
        Named(new QRadioButton(Q(targets[i]), settings), QStringLiteral("optXTSZ_%1").arg(i));
    grid->addWidget(optXTSZ[i], 0, i);
  }
  cmbWidth = Named(new QComboBox(settings), QStringLiteral("cmbWidth"));
  cmbWidth->setEditable(true);
  for (const char* w : {"0.25", "0.5", "0.75", "1", "1.5", "2.25", "3", "4.5", "6"})
    cmbWidth->addItem(QString::fromLatin1(w));
  cmbStyle = Named(new QComboBox(settings), QStringLiteral("cmbStyle"));
  for (int i = 1; i <= 6; ++i) cmbStyle->addItem(QString::number(i));
  labColor = Named(new QLabel(settings), QStringLiteral("labColor"));
  labColor->setFixedWidth(64);
  labColor->setAlignment(Qt::AlignCenter);
  labColor->installEventFilter(this);
  labColor->setToolTip(QStringLiteral("单击选择颜色"));
  grid->addWidget(new QLabel(QStringLiteral("线宽"), settings), 1, 0);
  grid->addWidget(cmbWidth, 1, 1);
  grid->addWidget(new QLabel(QStringLiteral("线型"), settings), 1, 2);
  grid->addWidget(cmbStyle, 1, 3);
  grid->addWidget(new QLabel(QStringLiteral("颜色"), settings), 1, 4);
  grid->addWidget(labColor, 1, 5);
  auto* box = new QVBoxLayout;
  auto* checks = new QHBoxLayout;
  for (QCheckBox* c : {chkNoCoordinate, chkDrawScale, chkWG}) checks->addWidget(c);
  checks->addStretch(1);
  box->addLayout(checks);
  box->addWidget(chkMultImage);
  box->addWidget(settings);
  return box;
}

QLayout* frmGraph::BuildListArea() {
  List1 = Named(new QListWidget(this), QStringLiteral("List1"));
  List1->setMinimumHeight(90);
  cmdChange = Named(new QPushButton(this), QStringLiteral("cmdChange"));
  auto* cmdResult =
      Named(new QPushButton(QStringLiteral("删除"), this), QStringLiteral("cmdResult"));
  auto* cmdReset = Named(new QPushButton(QStringLiteral("重置"), this), QStringLiteral("cmdReset"));
  auto* cmdCls = Named(new QPushButton(QStringLiteral("清屏"), this), QStringLiteral("cmdCls"));
  OnClick(cmdChange, u"cmdChange_Click", [this] { cmdChange_Click(); });
  OnClick(cmdResult, u"cmdResult_Click", [this] { cmdResult_Click(); });
  OnClick(cmdReset, u"cmdReset_Click", [this] { cmdReset_Click(); });
  OnClick(cmdCls, u"cmdCls_Click", [this] { cmdCls_Click(); });
  auto* box = new QVBoxLayout;
  box->addWidget(List1, 1);
  auto* row1 = new QHBoxLayout;
  row1->addWidget(cmdChange);
  row1->addWidget(cmdResult);
  auto* row2 = new QHBoxLayout;
  row2->addWidget(cmdReset);
  row2->addWidget(cmdCls);
  box->addLayout(row1);
  box->addLayout(row2);
  return box;
}

bool frmGraph::eventFilter(QObject* watched, QEvent* event) {
  if (watched == labColor && event->type() == QEvent::MouseButtonRelease) {
    Guard(u"labColor_Click", [this] { PickColour(); })();
    return true;
  }
  return ui::Form::eventFilter(watched, event);
}

}  // namespace lp
