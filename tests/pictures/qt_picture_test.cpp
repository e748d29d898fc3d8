// The Qt entry points: a QImage saved as JPEG, and `lumenpad --jpeg`.

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <cstring>
#include <fstream>

#include "app/utility_modes.h"
#include "jpeg_test_support.h"
#include "pictures/picture_rows.h"
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

TEST(JpegMode, OversizePicturesAreRefusedByTheirSize) {
  const fs::path dir = FreshDirectory("oversize");
  for (const int width : {65501, 65535, 65536}) {
    const fs::path in = dir / "wide.ppm", out = dir / "wide.jpg";
    std::ofstream(in, std::ios::binary) << "P6 " << width << " 1 255\n"
                                        << std::string(3 * width, '\x10');
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(RunJpegMode({in.string(), out.string()}), 1);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "图片太大：" + std::to_string(width) + "×1 像素，JPEG 图片每边最多 65500 像素。\n");
    EXPECT_FALSE(fs::exists(out));
  }
}

// libpng reads each kind of PNG into the pixels Qt reads from it.
TEST(JpegMode, PngStreamsToTheFileOfQtsPixels) {
  const fs::path dir = FreshDirectory("png");
  const QImage colour = ToQImage(MakeTestImage(37, 21, 8));
  QImage deep = colour.convertToFormat(QImage::Format_RGBX64);
  struct Row {
    const char* name;
    QImage image;
  };
  const Row rows[] = {{"colour", colour},
                      {"grey", colour.convertToFormat(QImage::Format_Grayscale8)},
                      {"palette", colour.convertToFormat(QImage::Format_Indexed8)},
                      {"16-bit", deep}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const fs::path png = dir / "in.png";
    ASSERT_TRUE(row.image.save(QString::fromStdString(png.string()), "png"));
    const QImage read(QString::fromStdString(png.string()));
    ASSERT_TRUE(SavePictureAsJPEG(read, (dir / "qt.jpg").string(), 0));
    const std::unique_ptr<RowSource> rows = OpenPngRows(png.string());
    ASSERT_NE(rows, nullptr);
    ASSERT_EQ(EncodeRows(*rows, (dir / "strips.jpg").string(), 0), JpegResult::kWritten);
    EXPECT_EQ(ReadBytes(dir / "strips.jpg"), ReadBytes(dir / "qt.jpg"));
  }
}

TEST(JpegMode, TransparentPngIsLaidOnWhite) {
  const fs::path dir = FreshDirectory("png-alpha");
  QImage picture = ToQImage(MakeTestImage(32, 32, 9)).convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < 32; ++y) {
    for (int x = 0; x < 32; ++x) {
      const QRgb p = picture.pixel(x, y);
      picture.setPixel(x, y, qRgba(qRed(p), qGreen(p), qBlue(p), 8 * x));
    }
  }
  const fs::path png = dir / "in.png";
  ASSERT_TRUE(picture.save(QString::fromStdString(png.string()), "png"));
  ASSERT_TRUE(SavePictureAsJPEG(picture, (dir / "qt.jpg").string(), 100));
  ASSERT_EQ(RunJpegMode({png.string(), (dir / "strips.jpg").string(), "--jpeg-options", "100"}), 0);
  const QImage qt(QString::fromStdString((dir / "qt.jpg").string()));
  const QImage strips(QString::fromStdString((dir / "strips.jpg").string()));
  int worst = 0;
  for (int y = 0; y < 32; ++y) {
    for (int x = 0; x < 32; ++x) {
      const QRgb a = qt.pixel(x, y), b = strips.pixel(x, y);
      worst = std::max({worst, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                        std::abs(qBlue(a) - qBlue(b))});
    }
  }
  EXPECT_LE(worst, 3);
  EXPECT_GE(qGray(strips.pixel(0, 16)), 250);  // alpha 0: white
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
