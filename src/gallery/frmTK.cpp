#include "gallery/frmTK.h"

#include <QGridLayout>
#include <QPixmap>
#include <algorithm>

#include "gallery/gallery_figures.h"
#include "gallery/gallery_seed.h"
#include "gallery/qt_drawing.h"
#include "runtime/text.h"
#include "settings/record_slots.h"
#include "ui/named_controls.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 3;
constexpr double kThumbnailDpi = 48;
const QSize kThumbnail(128, 96);

QIcon Thumbnail(const std::optional<gallery::DrawingList>& drawing) {
  QPixmap picture(kThumbnail);
  picture.fill(Qt::white);
  if (drawing && !drawing->Empty()) {
    const QImage image = gallery::RenderDrawing(*drawing, kThumbnailDpi);
    picture = QPixmap::fromImage(
        image.width() > kThumbnail.width() || image.height() > kThumbnail.height()
            ? image.scaled(kThumbnail, Qt::KeepAspectRatio, Qt::SmoothTransformation)
            : image);
  }
  return QIcon(picture);
}

}  // namespace

frmTK::frmTK(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("图库"));
  lstFigures = new QListWidget(this);
  lstFigures->setObjectName(QStringLiteral("lstFigures"));
  lstFigures->setViewMode(QListView::IconMode);
  lstFigures->setIconSize(kThumbnail);
  lstFigures->setGridSize(kThumbnail + QSize(24, 36));
  lstFigures->setResizeMode(QListView::Adjust);
  lstFigures->setMovement(QListView::Static);
  lstFigures->setWordWrap(true);
  lstFigures->setMinimumSize(4 * (kThumbnail.width() + 24) + 24,
                             2 * (kThumbnail.height() + 36) + 8);
  auto* cmdInsert = ui::NamedButton(this, QStringLiteral("cmdInsert"), QStringLiteral("插入"));
  auto* cmdAdd = ui::NamedButton(this, QStringLiteral("cmdAdd"), QStringLiteral("添加选中图形"));
  auto* cmdRename = ui::NamedButton(this, QStringLiteral("cmdRename"), QStringLiteral("重命名"));
  auto* cmdDelete = ui::NamedButton(this, QStringLiteral("cmdDelete"), QStringLiteral("删除"));
  auto* cmdExit = ui::NamedButton(this, QStringLiteral("cmdExit"), QStringLiteral("退出"));

  auto* grid = new QGridLayout(this);
  grid->addWidget(lstFigures, 0, 0, 1, 5);
  grid->addWidget(cmdInsert, 1, 0);
  grid->addWidget(cmdAdd, 1, 1);
  grid->addWidget(cmdRename, 1, 2);
  grid->addWidget(cmdDelete, 1, 3);
  grid->addWidget(cmdExit, 1, 4);

  OnClick(cmdInsert, u"cmdInsert_Click", [this] { cmdInsert_Click(); });
  OnClick(cmdAdd, u"cmdAdd_Click", [this] { cmdAdd_Click(); });
  OnClick(cmdRename, u"cmdRename_Click", [this] { cmdRename_Click(); });
  OnClick(cmdDelete, u"cmdDelete_Click", [this] { cmdDelete_Click(); });
  OnClick(cmdExit, u"cmdExit_Click", [this] { close(); });
  connect(lstFigures, &QListWidget::itemDoubleClicked, this,
          Guard(u"lstFigures_DblClick", [this] { cmdInsert_Click(); }));
  RunGuarded(session_, u"Form_Load", OnError::kReport, [this] { Form_Load(); });
}

void frmTK::Form_Load() {
  if (gallery::GalleryWantsSeeds(session_.databasePath)) gallery::SeedGallery(session_);
  const QStringList f = ui::RecordFields(ReadRecordSlot(session_.databasePath, kRecordSlot));
  Refresh(0, f.size() == 1 ? f[0].toInt() : 0);
}

void frmTK::Unload() {
  WriteRecordSlot(session_.databasePath, kRecordSlot,
                  ui::RecordData({QString::number(lstFigures->currentRow())}));
}

void frmTK::Refresh(long id, int row) {
  entries_ = gallery::ListEntries(session_.databasePath);
  lstFigures->clear();
  for (size_t i = 0; i < entries_.size(); ++i) {
    lstFigures->addItem(new QListWidgetItem(Thumbnail(gallery::EntryDrawing(session_, entries_[i])),
                                            QString::fromStdU16String(entries_[i].name)));
    if (entries_[i].id == id) row = static_cast<int>(i);
  }
  if (!entries_.empty()) lstFigures->setCurrentRow(std::clamp(row, 0, lstFigures->count() - 1));
}

const gallery::GalleryEntry* frmTK::Chosen() {
  const int row = lstFigures->currentRow();
  if (row < 0 || row >= static_cast<int>(entries_.size())) {
    session_.prompt.MsgBox(u"请先在图库中选择一个图形！");
    return nullptr;
  }
  return &entries_[static_cast<size_t>(row)];
}

void frmTK::cmdInsert_Click() {
  if (const gallery::GalleryEntry* entry = Chosen()) gallery::InsertEntry(session_, entry->id);
}

// Nothing selected, a cancelled or empty name: told, and the gallery stays as it was.
void frmTK::cmdAdd_Click() {
  if (std::u16string problem = gallery::SelectionProblem(session_); !problem.empty()) {
    session_.prompt.MsgBox(problem);
    return;
  }
  const std::optional<std::u16string> name =
      session_.prompt.InputBox(u"请输入图形的名称：", u"添加到图库", u"新图形");
  if (!name) {
    session_.prompt.MsgBox(u"已取消，图库没有改变。");
    return;
  }
  if (std::u16string error = gallery::AddSelectionAsEntry(session_, *name); !error.empty()) {
    session_.prompt.MsgBox(error);
    return;
  }
  Refresh(0, static_cast<int>(entries_.size()));
}

void frmTK::cmdRename_Click() {
  const gallery::GalleryEntry* entry = Chosen();
  if (!entry) return;
  const long id = entry->id;
  const std::optional<std::u16string> name =
      session_.prompt.InputBox(u"请输入新的名称：", u"重命名", entry->name);
  if (!name) {
    session_.prompt.MsgBox(u"已取消，图库没有改变。");
    return;
  }
  if (std::u16string refused = gallery::CheckEntryName(*name); !refused.empty()) {
    session_.prompt.MsgBox(refused);
    return;
  }
  gallery::RenameEntry(session_.databasePath, id, Trim(*name));
  Refresh(id, 0);
}

void frmTK::cmdDelete_Click() {
  const gallery::GalleryEntry* entry = Chosen();
  if (!entry) return;
  const int row = lstFigures->currentRow();
  if (session_.prompt.MsgBox(u"确定要从图库中删除“" + entry->name + u"”吗？", vbYesNo | vbQuestion,
                             u"删除") != vbYes)
    return;
  gallery::DeleteEntry(session_.databasePath, entry->id);
  Refresh(0, row);
}

}  // namespace lp
