// What the graph dialog does on each event: the object tabs, the list, the
// view controls and the insertion.
#include <QAbstractButton>
#include <QColorDialog>
#include <algorithm>

#include "graph/canvas.h"
#include "graph/frmGraph.h"
#include "graph/inputs.h"
#include "graph/qt_preview.h"
#include "graph/scene.h"
#include "graph/word_drawer.h"
#include "runtime/text.h"

namespace lp {
namespace {

QString Q(const std::u16string& s) {
  return QString::fromStdU16String(s);
}

constexpr char16_t kResetQuestion[] =
    u"重置操作将取消当前所有作图操作并返回到初始状态，您确信您要执行重置操作吗？";

long RgbOf(const QColor& c) {
  return c.red() | (c.green() << 8) | (c.blue() << 16);
}

}  // namespace

void frmGraph::Connect() {
  for (int tab = 0; tab < SSTab1->count(); ++tab) {
    const graph::GraphTab& tabDef = graph::GraphTabs()[tab];
    QWidget* page = SSTab1->widget(tab);
    for (const graph::TabButton& b : tabDef.buttons) {
      auto* button = page->findChild<QPushButton*>(Q(b.name));
      std::u16string tag = b.tag;
      if (tag.empty())
        OnClick(button, std::u16string(b.name) + u"_Click", [this, tab] { ResetTab(tab); });
      else
        OnClick(button, std::u16string(b.name) + u"_Click",
                [this, tab, tag] { ConfirmObject(tab, tag); });
    }
    for (auto* option : page->findChildren<QRadioButton*>())
      connect(option, &QRadioButton::toggled, this,
              Guard(u"opt_Click", [this, tab] { ShowFormCaptions(tab); }));
  }
  connect(SSTab1, &QTabWidget::currentChanged, this,
          [this](int tab) { Guard(u"SSTab1_Click", [this, tab] { SSTab1_Click(tab); })(); });
  connect(List1, &QListWidget::currentRowChanged, this,
          Guard(u"List1_Click", [this] { List1_Click(); }));
  connect(chkNoCoordinate, &QCheckBox::toggled, this, Guard(u"chkNoCoordinate_Click", [this] {
            graph_.ShowAxes(!chkNoCoordinate->isChecked());
            RedrawPreview();
          }));
  connect(chkDrawScale, &QCheckBox::toggled, this, Guard(u"chkDrawScale_Click", [this] {
            graph_.Axes().drawScale = chkDrawScale->isChecked();
            RedrawPreview();
          }));
  connect(chkWG, &QCheckBox::toggled, this, Guard(u"chkWG_Click", [this] { chkWG_Click(); }));
  connect(cmbWidth, &QComboBox::currentTextChanged, this,
          Guard(u"cmbWidth_Change", [this] { LineSettingsChanged(); }));
  connect(cmbStyle, &QComboBox::currentTextChanged, this,
          Guard(u"cmbStyle_Change", [this] { LineSettingsChanged(); }));
  for (int axis = 0; axis < 2; ++axis) {
    connect(udLenOfAxis[axis], &QSpinBox::valueChanged, this, [this, axis](int v) {
      Guard(u"udLenOfAxis_Change", [this, axis, v] { ChangeLength(axis, v); })();
    });
    QLineEdit* text = axis == 0 ? txtLenOfAxis_x : txtLenOfAxis_y;
    connect(text, &QLineEdit::textChanged, this, [this, axis](const QString& t) {
      Guard(u"txtLenOfAxis_Change", [this, axis, t] {
        bool ok = false;
        int length = t.trimmed().toInt(&ok);
        if (ok && length >= 2 && length != lengths_[axis]) udLenOfAxis[axis]->setValue(length);
      })();
    });
    QScrollBar* bar = axis == 0 ? HScrollx : HScrolly;
    connect(bar, &QScrollBar::valueChanged, this, [this, axis](int v) {
      Guard(u"HScroll_Change", [this, axis, v] { Scroll(axis, v); })();
    });
  }
}

void frmGraph::Load() {
  loading_ = true;
  graph_.SetRange(graph::View{});
  lengths_ = {10, 10};
  for (QSpinBox* ud : udLenOfAxis) ud->setValue(10);
  txtLenOfAxis_x->setText(QStringLiteral("10"));
  txtLenOfAxis_y->setText(QStringLiteral("10"));
  cmbWidth->setCurrentText(QStringLiteral("0.75"));
  cmbStyle->setCurrentText(QStringLiteral("1"));
  labColor->setText(QStringLiteral("#000000"));
  LineSettingsChanged();
  chkNoCoordinate->setChecked(false);
  chkDrawScale->setChecked(false);
  chkWG->setChecked(false);
  chkMultImage->setChecked(true);
  optXTSZ[1]->setChecked(true);
  optXTSZ[2]->setEnabled(false);
  cmdChange->setText(Q(graph::kAddCaption));
  graph_.Load(LineSettings());
  for (int tab = 0; tab < SSTab1->count(); ++tab) ResetTab(tab);
  loading_ = false;
  ApplyScale();
  RedrawPreview();
}

// With a graph of ours selected, the dialog opens on it: list, view and
// switches as they were when it was inserted.
void frmGraph::ReopenSelectedGraph() {
  reopened_ = graph::SelectedGraph(session_, graph_);
  if (!reopened_) return;
  const graph::View& v = graph_.Range();
  lengths_ = {static_cast<int>(v.xmax - v.xmin), static_cast<int>(v.ymax - v.ymin)};
  const std::vector<std::u16string>& list = graph_.List();
  auto listed = [&list](const char16_t* line) {
    return std::find(list.begin(), list.end(), line) != list.end();
  };
  for (QObject* control :
       std::initializer_list<QObject*>{chkDrawScale, chkNoCoordinate, chkWG, udLenOfAxis[0],
                                       udLenOfAxis[1], txtLenOfAxis_x, txtLenOfAxis_y})
    control->blockSignals(true);
  chkDrawScale->setChecked(graph_.Axes().drawScale);
  chkNoCoordinate->setChecked(!listed(graph::kAxesLine));
  chkWG->setChecked(listed(graph::kGridLine));
  optXTSZ[2]->setEnabled(chkWG->isChecked());
  for (int axis = 0; axis < 2; ++axis) SyncLengthText(axis);
  for (QObject* control :
       std::initializer_list<QObject*>{chkDrawScale, chkNoCoordinate, chkWG, udLenOfAxis[0],
                                       udLenOfAxis[1], txtLenOfAxis_x, txtLenOfAxis_y})
    control->blockSignals(false);
  ApplyScale();
  RedrawPreview();
}

void frmGraph::RedrawPreview() {
  if (loading_) return;
  int row = List1->currentRow();
  List1->blockSignals(true);
  List1->clear();
  for (const std::u16string& line : graph_.List()) List1->addItem(Q(line));
  List1->setCurrentRow(row < List1->count() ? row : -1);
  List1->blockSignals(false);
  Picture1->Show(graph::BuildScene(graph_, options_), graph_.Range(), options_);
}

void frmGraph::ApplyScale() {
  const graph::View& v = graph_.Range();
  labZS->setText(Q(graph::CornerText(v.xmin, v.ymax)));
  labZX->setText(Q(graph::CornerText(v.xmin, v.ymin)));
  labYS->setText(Q(graph::CornerText(v.xmax, v.ymax)));
  labYX->setText(Q(graph::CornerText(v.xmax, v.ymin)));
}

// The zero of the axis stays put; each end moves by half the change.
void frmGraph::ChangeLength(int axis, int length) {
  int half = (length - lengths_[axis]) / 2;
  if (half == 0) return;
  graph::View v = graph_.Range();
  (axis == 0 ? v.xmin : v.ymin) -= half;
  (axis == 0 ? v.xmax : v.ymax) += half;
  lengths_[axis] += 2 * half;
  graph_.SetRange(v);
  SyncLengthText(axis);
  ApplyScale();
  RedrawPreview();
}

void frmGraph::SyncLengthText(int axis) {
  QLineEdit* text = axis == 0 ? txtLenOfAxis_x : txtLenOfAxis_y;
  QString length = QString::number(lengths_[axis]);
  if (text->text().trimmed() != length) text->setText(length);
  if (udLenOfAxis[axis]->value() != lengths_[axis]) udLenOfAxis[axis]->setValue(lengths_[axis]);
}

void frmGraph::Scroll(int axis, int value) {
  if (value == 0) return;
  graph::View v = graph_.Range();
  (axis == 0 ? v.xmin : v.ymin) -= value;
  (axis == 0 ? v.xmax : v.ymax) -= value;
  graph_.SetRange(v);
  QScrollBar* bar = axis == 0 ? HScrollx : HScrolly;
  bar->blockSignals(true);
  bar->setValue(0);
  bar->blockSignals(false);
  ApplyScale();
  RedrawPreview();
}

void frmGraph::ZoomBy(int delta) {
  for (QSpinBox* ud : udLenOfAxis)
    if (delta > 0 || ud->value() >= 3) ud->setValue(ud->value() + delta);
}

graph::FormState frmGraph::TabState(int tab) const {
  graph::FormState state;
  QWidget* page = SSTab1->widget(tab);
  for (const graph::TabControl& c : graph::GraphTabs()[tab].controls) {
    if (auto* e = page->findChild<QLineEdit*>(Q(c.name)))
      state[c.name] = e->text().toStdU16String();
    else if (auto* b = page->findChild<QAbstractButton*>(Q(c.name)))
      state[c.name] = b->isChecked() ? u"1" : u"0";
  }
  return state;
}

void frmGraph::SetTabState(int tab, const graph::FormState& state) {
  QWidget* page = SSTab1->widget(tab);
  for (const auto& [name, value] : state) {
    if (auto* e = page->findChild<QLineEdit*>(Q(name)))
      e->setText(Q(value));
    else if (auto* b = page->findChild<QAbstractButton*>(Q(name)))
      b->setChecked(value == u"1");
  }
  ShowFormCaptions(tab);
}

void frmGraph::ResetTab(int tab) {
  graph::FormState defaults;
  for (const graph::TabControl& c : graph::GraphTabs()[tab].controls)
    if (c.kind == graph::TabControl::kText || c.kind == graph::TabControl::kCheck ||
        c.kind == graph::TabControl::kOption)
      defaults[c.name] = c.value;
  SetTabState(tab, defaults);
}

// Each equation form names its coefficient boxes; boxes a form does not use hide.
void frmGraph::ShowFormCaptions(int tab) {
  QWidget* page = SSTab1->widget(tab);
  for (const graph::FormCaptions& f : graph::GraphTabs()[tab].forms) {
    int form = 0;
    for (size_t i = 0; i < f.captions.size(); ++i) {
      auto* option =
          page->findChild<QRadioButton*>(QStringLiteral("optType_%1_%2").arg(Q(f.group)).arg(i));
      if (option && option->isChecked()) form = static_cast<int>(i);
    }
    const std::vector<const char16_t*>& captions = f.captions[form];
    for (size_t i = 0; i < captions.size(); ++i) {
      QString box = QStringLiteral("%1_%2").arg(Q(f.boxes)).arg(i);
      auto* label = page->findChild<QLabel*>(QStringLiteral("lab") + box.mid(3));
      auto* edit = page->findChild<QLineEdit*>(box);
      bool used = captions[i][0] != 0;
      if (label) label->setText(QString::fromUtf16(captions[i]));
      if (label) label->setVisible(used);
      if (edit) edit->setVisible(used);
    }
  }
}

void frmGraph::ConfirmObject(int tab, const std::u16string& tag) {
  graph::FormState state = TabState(tab);
  graph::TabInput input(state, graph_.Range(), session_.prompt);
  std::optional<graph::Params> params = graph::ReaderOf(tag)(input);
  if (!params) return;
  if (!chkMultImage->isChecked() && !graph_.Editing()) {
    // One image at a time: the new object replaces the others.
    for (int i = static_cast<int>(graph_.List().size()) - 1; i >= 0; --i)
      if (graph_.List()[i] != graph::kAxesLine && graph_.List()[i] != graph::kGridLine)
        graph_.DeleteLine(i);
  }
  graph_.Confirm(tag, {LineSettings(), std::move(*params), std::move(state)});
  RedrawPreview();
}

graph::Look frmGraph::LineSettings() const {
  graph::Look look;
  look.style = static_cast<int16_t>(cmbStyle->currentText().toInt());
  look.weight = cmbWidth->currentText().toFloat();
  look.color = RgbOf(QColor(labColor->text()));
  return look;
}

void frmGraph::ShowLook(const graph::Look& look) {
  cmbStyle->setCurrentText(QString::number(look.style));
  cmbWidth->setCurrentText(QString::number(look.weight));
  QColor c(look.color & 0xFF, (look.color >> 8) & 0xFF, (look.color >> 16) & 0xFF);
  labColor->setText(c.name());
}

void frmGraph::LineSettingsChanged() {
  QColor c(labColor->text());
  labColor->setStyleSheet(QStringLiteral("background:%1; color:%2")
                              .arg(c.name(), c.lightness() < 128 ? "white" : "black"));
  if (loading_) return;
  if (optXTSZ[0]->isChecked()) graph_.Axes().look = LineSettings();
  if (optXTSZ[2]->isChecked()) graph_.Grid() = LineSettings();
  if (!optXTSZ[1]->isChecked()) RedrawPreview();
}

void frmGraph::PickColour() {
  QColor picked = QColorDialog::getColor(QColor(labColor->text()), this);
  if (!picked.isValid()) return;
  labColor->setText(picked.name());
  LineSettingsChanged();
}

void frmGraph::cmdOK_Click() {
  setWindowTitle(QStringLiteral("正在绘制函数图像，请稍候 :-)"));
  // A reopened graph is replaced in place; a new one goes to the caret.
  graph::PlacedGraph placed = graph::InsertGraph(session_, graph_, reopened_);
  if (reopened_) reopened_ = placed;
  setWindowTitle(QStringLiteral("图像插入Word已经完成！"));
  session_.WordApp->SetScreenUpdating(true);
}

void frmGraph::cmdChange_Click() {
  cmdChange->setText(Q(graph_.ToggleEditing(cmdChange->text().toStdU16String())));
}

void frmGraph::List1_Click() {
  std::optional<graph::LineRef> ref = graph_.SelectLine(List1->currentRow());
  if (!ref) return;
  const graph::GraphObject* record = graph_.Record(*ref);
  int tab = graph::TabOfTag(ref->tag);
  if (!record || tab < 0) return;
  loading_ = true;  // turning to the tab must not reset it
  SSTab1->setCurrentIndex(tab);
  loading_ = false;
  SetTabState(tab, record->texts);
  ShowLook(record->look);
}

void frmGraph::cmdResult_Click() {
  graph::Look saved = LineSettings();
  int row = List1->currentRow();
  if (row < 0 || List1->item(row)->text().isEmpty()) {
    session_.prompt.MsgBox(u"您没有选择任何需要删除的对象", vbOKOnly);
    return;
  }
  graph_.DeleteLine(row);
  RedrawPreview();
  ShowLook(saved);
}

void frmGraph::cmdReset_Click() {
  if (session_.prompt.MsgBox(kResetQuestion, vbOKCancel) != vbOK) return;
  graph_.ClearList();
  Load();
}

void frmGraph::cmdCls_Click() {
  graph_.ClearList();
  graph_.ShowAxes(!chkNoCoordinate->isChecked());
  if (chkWG->isChecked()) graph_.ShowGrid(true, graph_.Grid());
  RedrawPreview();
}

void frmGraph::SSTab1_Click(int tab) {
  if (loading_) return;
  optXTSZ[1]->setChecked(true);
  ResetTab(tab);
}

void frmGraph::chkWG_Click() {
  graph_.ShowGrid(chkWG->isChecked(), LineSettings());
  optXTSZ[2]->setEnabled(chkWG->isChecked());
  RedrawPreview();
}

}  // namespace lp
