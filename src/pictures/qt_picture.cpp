#include "pictures/qt_picture.h"

#include <QPainter>
#include <cstring>

#include "pictures/jpeg_writer.h"

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

}  // namespace

bool SavePictureAsJPEG(const QImage& picture, const std::string& path, std::uint32_t options) {
  if (picture.isNull()) return false;
  const QImage bgr = OpaqueBgr(picture);
  Picture bitmap;
  bitmap.header = {bgr.width(), bgr.height(), 24};
  const std::size_t stride = BitmapStride(bgr.width(), 24);
  bitmap.bits.resize(stride * bgr.height());
  for (int y = 0; y < bgr.height(); ++y) {  // a bitmap stores its bottom row first
    std::memcpy(&bitmap.bits[stride * (bgr.height() - 1 - y)], bgr.constScanLine(y),
                3 * static_cast<std::size_t>(bgr.width()));
  }
  return SavePictureAsJPEG(bitmap, path, options);
}

}  // namespace lp
