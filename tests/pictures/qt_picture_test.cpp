// The Qt entry points: a QImage saved as JPEG, and `lumenpad --jpeg`.

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <cstring>

#include "app/utility_modes.h"
#include "jpeg_test_support.h"
#include "pictures/qt_picture.h"

namespace lp::test {
namespace {

namespace fs = std::filesystem;

QImage ToQImage(const RgbImage& image) {
  QImage q(image.width, image.height, QImage::Format_RGB888);
  for (int y = 0; y < image.height; ++y) {
    std::memcpy(q.scanLine(y), &image.samples[std::size_t(y) * image.width * 3],
                std::size_t(image.width) * 3);
  }
  return q;
}

RgbImage FromQImage(const QImage& q) {
  const QImage rgb = q.convertToFormat(QImage::Format_RGB888);
  RgbImage image{rgb.width(), rgb.height(), 3, {}};
  for (int y = 0; y < rgb.height(); ++y) {
    const auto* row = rgb.constScanLine(y);
    image.samples.insert(image.samples.end(), row, row + 3 * rgb.width());
  }
  return image;
}

int RunJpegMode(std::vector<std::string> args) {
  return JpegMode(ModeArgs{std::move(args), {}});
}

TEST(JpegMode, ConvertsPngBmpAndPpmPictures) {
  const fs::path dir = FreshDirectory("mode");
  const RgbImage source = MakeTestImage(50, 30, 4);
  for (const char* format : {"png", "bmp", "ppm"}) {
    SCOPED_TRACE(format);
    const fs::path in = dir / (std::string("in.") + format), out = dir / "out.jpg";
    ASSERT_TRUE(ToQImage(source).save(QString::fromStdString(in.string()), format));
    ASSERT_EQ(RunJpegMode({in.string(), out.string()}), 0);
    const QImage decoded(QString::fromStdString(out.string()));
    ASSERT_FALSE(decoded.isNull());
    EXPECT_GT(Psnr(FromQImage(decoded), Reference(source, false)), 30.0);
  }
  const fs::path in = dir / "in.png", grey = dir / "grey.jpg";
  ASSERT_EQ(RunJpegMode({in.string(), grey.string(), "--jpeg-options", "1024"}), 0);
  EXPECT_TRUE(QImage(QString::fromStdString(grey.string())).isGrayscale());

  EXPECT_EQ(RunJpegMode({in.string()}), 2);
  EXPECT_EQ(RunJpegMode({in.string(), grey.string(), "--jpeg-options", "x"}), 2);
  EXPECT_EQ(RunJpegMode({(dir / "missing.png").string(), grey.string()}), 1);
}

std::vector<std::string> warnings;

void KeepWarning(QtMsgType, const QMessageLogContext&, const QString& text) {
  warnings.push_back(text.toStdString());
}

TEST(JpegMode, QtReadsEveryLayoutWithoutWarnings) {
  const fs::path out = FreshDirectory("qt") / "out.jpg";
  warnings.clear();
  const QtMessageHandler previous = qInstallMessageHandler(KeepWarning);
  for (const auto& [w, h] : {std::pair{1, 1}, {7, 9}, {17, 33}, {4097, 3}}) {
    for (std::uint32_t options : {0u, 256u, 512u, 768u, 1024u, 100u | 768u}) {
      SCOPED_TRACE(std::to_string(w) + "x" + std::to_string(h) + " " + std::to_string(options));
      ASSERT_TRUE(SavePictureAsJPEG(ToQImage(MakeTestImage(w, h, options)), out.string(), options));
      const QImage decoded(QString::fromStdString(out.string()));
      EXPECT_EQ(decoded.size(), QSize(w, h));
    }
  }
  qInstallMessageHandler(previous);
  EXPECT_TRUE(warnings.empty()) << warnings.front();
}

TEST(JpegMode, TransparentPartsBecomeWhite) {
  const fs::path out = FreshDirectory("alpha") / "out.jpg";
  QImage clear(16, 16, QImage::Format_ARGB32);
  clear.fill(Qt::transparent);
  ASSERT_TRUE(SavePictureAsJPEG(clear, out.string(), 0));
  const QImage decoded(QString::fromStdString(out.string()));
  ASSERT_FALSE(decoded.isNull());
  const QRgb centre = decoded.pixel(8, 8);  // truncating quantisation may lose a step
  EXPECT_GE(std::min({qRed(centre), qGreen(centre), qBlue(centre)}), 253);
  EXPECT_FALSE(SavePictureAsJPEG(QImage(), out.string(), 0));
}

}  // namespace
}  // namespace lp::test
