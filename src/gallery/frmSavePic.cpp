#include "gallery/frmSavePic.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QPixmap>
#include <algorithm>

#include "gallery/picture_settings.h"
#include "gallery/qt_drawing.h"
#include "gallery/selection_drawing.h"
#include "pictures/qt_picture.h"
#include "runtime/utf8.h"
#include "settings/record_slots.h"
#include "ui/named_controls.h"

namespace lp {
namespace {

constexpr int kRecordSlot = 16;
constexpr double kPreviewDpi = 144;
constexpr int kPreviewSide = 320;
constexpr double kMostEnlarged = 3;

}  // namespace

frmSavePic::frmSavePic(Session& session) : ui::Form(session) {
  setWindowTitle(QStringLiteral("保存为图片"));
  picPreview = ui::NamedLabel(this, QStringLiteral("picPreview"), QString());
  picPreview->setMinimumSize(kPreviewSide, kPreviewSide * 3 / 4);
  picPreview->setAlignment(Qt::AlignCenter);
  picPreview->setStyleSheet(QStringLiteral("background: white; border: 1px solid #999;"));
  labSize = ui::NamedLabel(this, QStringLiteral("labSize"), QString());
  txtFile = ui::NamedEdit(this, QStringLiteral("txtFile"), QString());
  txtDpi = ui::NamedEdit(this, QStringLiteral("txtDpi"), QStringLiteral("300"));
  auto* cmdBrowse = ui::NamedButton(this, QStringLiteral("cmdBrowse"), QStringLiteral("浏览…"));
  auto* cmdOK = ui::NamedButton(this, QStringLiteral("cmdOK"), QStringLiteral("保存"));
  auto* cmdExit = ui::NamedButton(this, QStringLiteral("cmdExit"), QStringLiteral("退出"));

  auto* grid = new QGridLayout(this);
  grid->addWidget(picPreview, 0, 0, 1, 3);
  grid->addWidget(labSize, 1, 0, 1, 3);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label1"), QStringLiteral("保存为")), 2, 0);
  grid->addWidget(txtFile, 2, 1);
  grid->addWidget(cmdBrowse, 2, 2);
  grid->addWidget(ui::NamedLabel(this, QStringLiteral("Label2"), QStringLiteral("分辨率（dpi）")),
                  3, 0);
  grid->addWidget(txtDpi, 3, 1);
  grid->addWidget(cmdOK, 4, 1);
  grid->addWidget(cmdExit, 4, 2);

  OnClick(cmdOK, u"cmdOK_Click", [this] { cmdOK_Click(); });
  OnClick(cmdBrowse, u"cmdBrowse_Click", [this] { cmdBrowse_Click(); });
  OnClick(cmdExit, u"cmdExit_Click", [this] { close(); });
  connect(txtDpi, &QLineEdit::textChanged, this,
          Guard(u"txtDpi_Change", [this] { ShowPreview(); }));
  RunGuarded(session_, u"Form_Load", OnError::kReport, [this] { Form_Load(); });
}

void frmSavePic::Form_Load() {
  const QStringList f = ui::RecordFields(ReadRecordSlot(session_.databasePath, kRecordSlot));
  if (f.size() == 2) {
    txtFile->setText(f[0]);
    txtDpi->setText(f[1]);
  }
  gallery::SelectionPicture picture = gallery::SelectionDrawing(session_);
  selectionError_ = picture.error;
  if (picture.error.empty()) drawing_ = std::move(picture.drawing);
  ShowPreview();
  if (!selectionError_.empty()) session_.prompt.MsgBox(selectionError_);
}

void frmSavePic::Unload() {
  WriteRecordSlot(session_.databasePath, kRecordSlot,
                  ui::RecordData({txtFile->text(), txtDpi->text()}));
}

// The preview fits the box; the size line tells the picture the file will get.
void frmSavePic::ShowPreview() {
  if (!drawing_) {
    picPreview->setText(QStringLiteral("（未选中图形或公式）"));
    labSize->clear();
    return;
  }
  const QImage preview = gallery::RenderDrawing(*drawing_, kPreviewDpi);
  const QSize box(kPreviewSide, kPreviewSide * 3 / 4);
  // A small formula is drawn again at the resolution that fills the box; a
  // large figure is shrunk to it.
  const double fill = std::min(static_cast<double>(box.width()) / preview.width(),
                               static_cast<double>(box.height()) / preview.height());
  const QImage shown =
      fill > 1 ? gallery::RenderDrawing(*drawing_, kPreviewDpi * std::min(fill, kMostEnlarged))
               : preview.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  picPreview->setPixmap(QPixmap::fromImage(shown));
  const std::optional<double> dpi = gallery::CheckResolution(txtDpi->text().toStdU16String());
  if (!dpi) {
    labSize->setText(QString::fromStdU16String(gallery::kResolutionRefused));
    return;
  }
  const double scale = *dpi / kPreviewDpi;
  labSize->setText(QStringLiteral("图片大小：约 %1 × %2 像素")
                       .arg(qRound(preview.width() * scale))
                       .arg(qRound(preview.height() * scale)));
}

void frmSavePic::cmdBrowse_Click() {
  if (session_.headless) return;  // no file browser without a teacher
  const QString file =
      QFileDialog::getSaveFileName(this, QStringLiteral("保存为图片"), txtFile->text(),
                                   QStringLiteral("JPEG 图片 (*.jpg *.jpeg)"));
  if (!file.isEmpty()) txtFile->setText(file);
}

// A refused name or resolution, or nothing selected, is told and writes nothing.
void frmSavePic::cmdOK_Click() {
  if (!drawing_) {
    session_.prompt.MsgBox(selectionError_);
    return;
  }
  const gallery::PictureSettings settings = gallery::CheckPictureSettings(
      txtFile->text().toStdU16String(), txtDpi->text().toStdU16String());
  if (!settings.error.empty()) {
    session_.prompt.MsgBox(settings.error);
    return;
  }
  const QImage picture = gallery::RenderDrawing(*drawing_, settings.dpi);
  // The option word 0: three components, no subsampling, the base tables.
  if (!SavePictureAsJPEG(picture, settings.path, 0)) {
    session_.prompt.MsgBox(u"保存失败！");
    return;
  }
  txtFile->setText(QString::fromStdString(settings.path));
  session_.prompt.MsgBox(u"图片已保存：" + FromUtf8(settings.path));
}

}  // namespace lp
