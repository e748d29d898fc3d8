// Formula pictures: the shapes a printed formula takes, measured on the laid
// out picture, and a picture file written without any TeX installed.
#include <gtest/gtest.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>
#include <memory>

#include "pictures/qt_formula.h"

namespace lp {
namespace {

class FormulaPictures : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    if (!QGuiApplication::instance()) {
      static int argc = 1;
      static char name[] = "qt_formula_test";
      static char* argv[] = {name, nullptr};
      app_ = std::make_unique<QGuiApplication>(argc, argv);
    }
  }
  // The application goes before the program's static objects do: Qt's font
  // database outliving it crashes the process on exit.
  static void TearDownTestSuite() { app_.reset(); }
  // Rows of the picture that hold ink.
  static int InkRows(const QImage& image) {
    int rows = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (qAlpha(image.pixel(x, y)) > 128) {
          ++rows;
          break;
        }
    return rows;
  }
  static std::unique_ptr<QGuiApplication> app_;
};
std::unique_ptr<QGuiApplication> FormulaPictures::app_;

TEST_F(FormulaPictures, LayoutOfTheConstructs) {
  const double size = 20;
  QSizeF plain = FormulaPicture(QStringLiteral("x"), size).Size();
  QSizeF fraction = FormulaPicture(QStringLiteral("\\frac{ \\pi }{2}"), size).Size();
  QSizeF nested = FormulaPicture(QStringLiteral("\\frac{\\frac{1}{2}}{3}"), size).Size();
  QSizeF root = FormulaPicture(QStringLiteral("\\sqrt [3]{x}"), size).Size();
  QSizeF squared = FormulaPicture(QStringLiteral("x^{2}"), size).Size();
  QSizeF system =
      FormulaPicture(
          QStringLiteral("\\left\\{ \\begin{align} x+y=5 \\\\ 2x-y=1 \\\\ \\end{align}\\right."),
          size)
          .Size();
  EXPECT_GT(fraction.height(), 1.6 * plain.height());  // numerator over denominator
  EXPECT_GT(nested.height(), fraction.height());
  EXPECT_GT(root.width(), plain.width() + 0.5 * size);  // the sign and its index
  EXPECT_GT(squared.height(), plain.height());          // the raised 2
  EXPECT_GT(system.height(), 1.8 * plain.height());     // two lines
  FormulaPicture centred(QStringLiteral("\\frac{3 \\pi }{2}"), size);
  // The bar sits on the maths axis: the baseline lies below the middle.
  EXPECT_GT(centred.Baseline(), centred.Size().height() / 2);
}

TEST_F(FormulaPictures, InkAndFiles) {
  QImage fraction = FormulaPicture(QStringLiteral("$\\frac{ \\pi }{2}$"), 24).Image();
  QImage line = FormulaPicture(QStringLiteral("2 \\pi"), 24).Image();
  EXPECT_GT(InkRows(fraction), 1.6 * InkRows(line));
  // Unknown commands and stray braces still draw.
  EXPECT_GT(FormulaPicture(QStringLiteral("\\unknown{x}}"), 20).Size().width(), 0);
  QTemporaryDir dir;
  QString path = dir.filePath(QStringLiteral("pi.png"));
  ASSERT_TRUE(SaveFormulaPicture(QStringLiteral("\\alpha \\ge \\vec{AB}"), path));
  QImage saved(path);
  EXPECT_FALSE(saved.isNull());
  if (qEnvironmentVariableIsSet("LP_KEEP_FORMULA_PICTURES")) {
    const char* samples[] = {"\\frac{ \\pi }{2}",
                             "\\frac{3 \\pi }{2}",
                             "\\frac{\\sqrt{2}}{2}",
                             "\\sqrt [3]{x}+1",
                             "x^{n+1}+y_2",
                             "\\left\\{ \\begin{align} x+y=5 \\\\ 2x-y=1 \\\\ \\end{align}\\right.",
                             "\\vec{AB}",
                             " \\alpha  \\ge  \\beta ",
                             "\\overline{AB}\\perp CD"};
    int i = 0;
    for (const char* s : samples)
      SaveFormulaPicture(QString::fromUtf8(s), QStringLiteral("/tmp/formula_%1.png").arg(i++), 40);
  }
}

}  // namespace
}  // namespace lp
