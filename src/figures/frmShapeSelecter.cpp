#include "figures/frmShapeSelecter.h"

#include <QGridLayout>
#include <algorithm>

#include "settings/record_slots.h"
#include "ui/named_controls.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 15;

// The boxes in the order of figures::ShapeFamily: control name and caption.
const std::pair<const char*, const char16_t*> kKinds[figures::kShapeFamilyCount] = {
    {"chkLine", u"直线"},      {"chkCurve", u"曲线"},   {"chkTextBox", u"文本框"},
    {"chkGroup", u"组合图形"}, {"chkPicture", u"图片"}, {"chkAutoShape", u"其他自选图形"}};

}  // namespace

frmShapeSelecter::frmShapeSelecter(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("选择图形"));
  auto* grid = new QGridLayout(this);
  grid->addWidget(
      ui::NamedLabel(this, QStringLiteral("Label1"), QStringLiteral("选定本页中以下类型的图形：")),
      0, 0, 1, 3);
  for (int i = 0; i < figures::kShapeFamilyCount; ++i) {
    chkKind[i] = ui::NamedCheck(this, QString::fromLatin1(kKinds[i].first),
                                QString::fromStdU16String(kKinds[i].second));
    grid->addWidget(chkKind[i], 1 + i / 3, i % 3);
  }
  chkKind[0]->setChecked(true);
  lblCount = ui::NamedLabel(this, QStringLiteral("lblCount"), QString());
  grid->addWidget(lblCount, 3, 0, 1, 3);
  auto* cmdAll = ui::NamedButton(this, QStringLiteral("cmdAll"), QStringLiteral("全部类型"));
  auto* cmdOK = ui::NamedButton(this, QStringLiteral("cmdOK"), QStringLiteral("选定"));
  auto* cmdExit = ui::NamedButton(this, QStringLiteral("cmdExit"), QStringLiteral("取消"));
  grid->addWidget(cmdAll, 4, 0);
  grid->addWidget(cmdOK, 4, 1);
  grid->addWidget(cmdExit, 4, 2);

  OnClick(cmdAll, u"cmdAll_Click", [this] { cmdAll_Click(); });
  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdExit, u"cmdExit_Click", [this] { close(); });
  RunGuarded(session_, u"Form_Load", OnError::kReport, [this] { Form_Load(); });
}

// The page's count of each kind stands beside the boxes, so the teacher sees
// what a choice will take in.
void frmShapeSelecter::Form_Load() {
  QStringList f = ui::RecordFields(ReadRecordSlot(session_.databasePath, kRecordSlot));
  if (f.size() == figures::kShapeFamilyCount)
    for (int i = 0; i < figures::kShapeFamilyCount; ++i) chkKind[i]->setChecked(ui::IsSet(f[i]));
  const figures::FamilyCounts counts = figures::CountPageShapes(*session_.WordApp);
  QStringList parts;
  for (int i = 0; i < figures::kShapeFamilyCount; ++i)
    parts
        << QStringLiteral("%1 %2").arg(QString::fromStdU16String(kKinds[i].second)).arg(counts[i]);
  lblCount->setText(QStringLiteral("本页：") + parts.join(QStringLiteral("，")));
}

void frmShapeSelecter::Unload() {
  QStringList fields;
  for (QCheckBox* box : chkKind) fields << ui::Flag(box);
  WriteRecordSlot(session_.databasePath, kRecordSlot, ui::RecordData(fields));
}

void frmShapeSelecter::cmdAll_Click() {
  for (QCheckBox* box : chkKind) box->setChecked(true);
}

// With nothing to select the dialog says so and stays; otherwise the shapes
// are selected and the dialog closes, leaving the selection to the next tool.
void frmShapeSelecter::cmdOK_Click() {
  figures::FamilyChoice chosen{};
  for (int i = 0; i < figures::kShapeFamilyCount; ++i) chosen[i] = chkKind[i]->isChecked();
  if (std::find(chosen.begin(), chosen.end(), true) == chosen.end()) {
    session_.prompt.MsgBox(u"请至少选择一种图形。");
    return;
  }
  if (figures::SelectPageShapes(*session_.WordApp, chosen) == 0) {
    session_.prompt.MsgBox(u"本页没有所选类型的图形。");
    return;
  }
  close();
}

}  // namespace lp
