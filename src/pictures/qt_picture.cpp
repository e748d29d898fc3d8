#include "pictures/qt_picture.h"

#include <QPainter>
#include <cstring>

#include "pictures/picture_rows.h"

namespace lp {

namespace {

// Transparent parts are laid on white, as they would show on paper.
QImage OpaqueBgr(const QImage& picture) {
  if (!picture.hasAlphaChannel()) return picture.convertToFormat(QImage::Format_BGR888);
  QImage opaque(picture.size(), QImage::Format_RGB32);
  opaque.fill(Qt::white);
  QPainter painter(&opaque);
  painter.drawImage(0, 0, picture);
  painter.end();
  return opaque.convertToFormat(QImage::Format_BGR888);
}

class QImageRows final : public RowSource {
 public:
  explicit QImageRows(const QImage& picture) : bgr_(OpaqueBgr(picture)) {}

  std::int64_t Width() const override { return bgr_.width(); }
  std::int64_t Height() const override { return bgr_.height(); }

  bool ReadRows(std::uint8_t* rows, int count) override {
    const std::size_t rowBytes = 3 * static_cast<std::size_t>(bgr_.width());
    for (int r = 0; r < count; ++r, ++next_) {
      std::memcpy(rows + r * rowBytes, bgr_.constScanLine(next_), rowBytes);
    }
    return true;
  }

 private:
  QImage bgr_;
  int next_ = 0;
};

}  // namespace

bool SavePictureAsJPEG(const QImage& picture, const std::string& path, std::uint32_t options) {
  if (picture.isNull()) return false;
  QImageRows rows(picture);
  return EncodeRows(rows, path, options) == JpegResult::kWritten;
}

std::unique_ptr<RowSource> OpenPicture(const std::string& path) {
  if (auto rows = OpenPictureRows(path)) return rows;
  const QImage picture(QString::fromUtf8(path.data(), static_cast<qsizetype>(path.size())));
  if (picture.isNull()) return nullptr;
  return std::make_unique<QImageRows>(picture);
}

}  // namespace lp
