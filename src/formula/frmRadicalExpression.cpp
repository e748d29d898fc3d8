#include "formula/frmRadicalExpression.h"

#include <QGridLayout>

#include "formula/exact_forms.h"
#include "settings/record_slots.h"
#include "ui/named_controls.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 13;

}  // namespace

frmRadicalExpression::frmRadicalExpression(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("根式化简"));
  txtXiShu = ui::NamedEdit(this, QStringLiteral("txtXiShu"), QStringLiteral("1"));
  txtGenZhiShu = ui::NamedEdit(this, QStringLiteral("txtGenZhiShu"), QStringLiteral("2"));
  txtBeiKaiFang = ui::NamedEdit(this, QStringLiteral("txtBeiKaiFang"), QStringLiteral("12"));
  labResult = ui::NamedLabel(this, QStringLiteral("labResult"), QString());
  auto* cmdOK = ui::NamedButton(this, QStringLiteral("cmdOK"), QStringLiteral("插入"));
  auto* cmdExit = ui::NamedButton(this, QStringLiteral("cmdExit"), QStringLiteral("退出"));

  auto* grid = new QGridLayout(this);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label1"), QStringLiteral("系数")), 0, 0);
  grid->addWidget(txtXiShu, 0, 1);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label2"), QStringLiteral("根指数")), 1, 0);
  grid->addWidget(txtGenZhiShu, 1, 1);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label3"), QStringLiteral("被开方数")), 2, 0);
  grid->addWidget(txtBeiKaiFang, 2, 1);
  grid->addWidget(labResult, 3, 0, 1, 2);
  grid->addWidget(cmdOK, 4, 0);
  grid->addWidget(cmdExit, 4, 1);

  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdExit, u"cmdExit_Click", [this] { close(); });
  RunGuarded(session_, u"Form_Load", OnError::kReport, [this] { Form_Load(); });
}

void frmRadicalExpression::Form_Load() {
  QStringList f = ui::RecordFields(ReadRecordSlot(session_.databasePath, kRecordSlot));
  if (f.size() != 3) return;
  txtXiShu->setText(f[0]);
  txtGenZhiShu->setText(f[1]);
  txtBeiKaiFang->setText(f[2]);
}

void frmRadicalExpression::Unload() {
  WriteRecordSlot(session_.databasePath, kRecordSlot,
                  ui::RecordData({txtXiShu->text(), txtGenZhiShu->text(), txtBeiKaiFang->text()}));
}

void frmRadicalExpression::cmdOK_Click() {
  const ExactForm form =
      SimplifyRadicalForm(txtXiShu->text().toStdU16String(), txtGenZhiShu->text().toStdU16String(),
                          txtBeiKaiFang->text().toStdU16String(), session_.prompt);
  if (InsertExactForm(session_, form))
    labResult->setText(QString::fromStdU16String(ReadableForm(form.notation)));
}

}  // namespace lp
