#include "formula/frmGS.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPixmap>
#include <QPushButton>

#include "formula/commands.h"
#include "formula/gs_rules.h"
#include "formula/insert.h"
#include "runtime/text.h"

// The rule pictures are compiled into the UI library, a static library, whose
// resources are registered only when asked for by name.
static void LoadRulePictures() {
  Q_INIT_RESOURCE(formula_img);
}

namespace lp {
namespace {

QString Q(const std::u16string& s) {
  return QString::fromStdU16String(s);
}

}  // namespace

frmGS::frmGS(Session& session) : ui::Form(session) {
  LoadRulePictures();
  setWindowTitle(QStringLiteral("单击下方蓝色文字可显示对应公式录入规则"));
  txtGS = new QLineEdit(this);
  txtGS->setObjectName(QStringLiteral("txtGS"));
  txtGS->installEventFilter(this);
  auto* cmdOK = new QPushButton(QStringLiteral("确定"), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  auto* cmdExit = new QPushButton(QStringLiteral("退出"), this);
  cmdExit->setObjectName(QStringLiteral("cmdExit"));
  for (auto* button : {cmdOK, cmdExit}) button->setAutoDefault(false);
  Image1 = new QLabel(this);
  Image1->setObjectName(QStringLiteral("Image1"));
  Image1->setMinimumSize(240, 120);

  auto* grid = new QGridLayout(this);
  grid->addWidget(txtGS, 0, 0, 1, 4);
  // The links sit in two rows of four, close together as a line of text.
  auto* links = new QGridLayout;
  links->setHorizontalSpacing(16);
  links->setColumnStretch(4, 1);
  grid->addLayout(links, 1, 0, 2, 4);
  for (int i = 0; i <= 8; ++i) {
    const GsRule* rule = GsRuleAt(i);
    lbhelp[i] = new QLabel(rule ? Q(rule->link) : Q(kGsHelpStart), this);
    lbhelp[i]->setObjectName(QStringLiteral("lbhelp_%1").arg(i));
    if (!rule) continue;
    lbhelp[i]->setStyleSheet(QStringLiteral("color: blue; text-decoration: underline;"));
    lbhelp[i]->setCursor(Qt::PointingHandCursor);
    lbhelp[i]->installEventFilter(this);
    links->addWidget(lbhelp[i], (i - 1) / 4, (i - 1) % 4);
  }
  lbhelp[0]->setWordWrap(true);
  grid->addWidget(lbhelp[0], 3, 0, 1, 2);
  grid->addWidget(Image1, 3, 2, 1, 2);
  grid->addWidget(cmdOK, 4, 2);
  grid->addWidget(cmdExit, 4, 3);

  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdExit, u"cmdExit_Click", [this] { close(); });
  lbhelp_Click(1);
}

void frmGS::lbhelp_Click(int index) {
  const GsRule* rule = GsRuleAt(index);
  if (!rule) return;
  lbhelp[0]->setText(Q(GsRuleText(*rule)));
  Image1->setPixmap(QPixmap(QStringLiteral(":/formula/img/") + Q(rule->picture)));
}

bool frmGS::eventFilter(QObject* watched, QEvent* event) {
  if (watched == txtGS && event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
      Guard(u"cmdOK_Click", [this] { cmdOK_Click(); })();
      return true;
    }
    const QString typed = key->text();
    if (typed.size() == 1) lbhelp_Click(GsRuleForKey(typed.at(0).unicode()));
    return false;
  }
  if (event->type() == QEvent::MouseButtonRelease) {
    for (int i = 1; i <= 8; ++i)
      if (watched == lbhelp[i]) lbhelp_Click(i);
  }
  return ui::Form::eventFilter(watched, event);
}

// Closing the dialog while a formula converts cancels the conversion; the
// dialog then closes as usual.
void frmGS::closeEvent(QCloseEvent* event) {
  if (converting_) {
    cancelled_ = true;
    event->ignore();
    return;
  }
  ui::Form::closeEvent(event);
}

void frmGS::cmdOK_Click() {
  if (txtGS->text().isEmpty() || converting_) return;
  Convert();
  close();
}

void frmGS::Convert() {
  const std::u16string text = StrConvNarrow(txtGS->text().toStdU16String());
  DriverControl control = FormulaControl(session_, [this] {
    QCoreApplication::processEvents();
    return !cancelled_;
  });
  control.prompt = &session_.prompt;
  converting_ = true;
  struct Done {
    bool& converting;
    ~Done() { converting = false; }
  } done{converting_};
  try {
    if (session_.config.blMathType)
      InsertFormulaAsMathType(session_, text, control);
    else
      InsertFormulaAsField(session_, text, control);
  } catch (const FormulaAborted& e) {
    if (e.reason() == FormulaAborted::kTimeout) {
      session_.prompt.MsgBox(kFormulaTimedOut);
      session_.exitStatus = kExitTimedOut;
    }
  }
}

}  // namespace lp
