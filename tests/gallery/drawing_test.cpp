// Formulas as the typesetter gets them, and the picture dialog's checks.

#include <gtest/gtest.h>

#include "gallery/drawing_list.h"
#include "gallery/picture_settings.h"

namespace lp::gallery {
namespace {

struct EqRow {
  const char* name;
  std::u16string code;
  std::u16string latex;
};

TEST(EqCodeToLatex, TheSwitchesTheFormulaEngineWrites) {
  const EqRow rows[] = {
      {"fraction", u"\\F(1,2)", u"\\frac{1}{2}"},
      {"fraction with a raised script", u"\\F(x\\S(2),2)", u"\\frac{x^{2}}{2}"},
      {"square root", u"\\R(,3)", u"\\sqrt{3}"},
      {"cube root", u"\\R(3,x)", u"\\sqrt[3]{x}"},
      {"raised", u"x\\S\\UP6(2)", u"x^{2}"},
      {"lowered", u"a\\S\\DO3(n)", u"a_{n}"},
      {"vector", u"\\o\\ac(\\S\\UP7(→),AB)", u"\\vec{AB}"},
      {"arc", u"\\o\\ac(\\S\\UP7(⌒),AB)", u"\\overarc{AB}"},
      {"recurring digit", u"0.1\\o(\\s\\up 3(˙),2)", u"0.1\\dot{2}"},
      {"system", u"\\B\\lc\\{(\\a\\al(x＋y＝1,x－y＝3))",
       u"\\left\\{\\begin{array}{l}x＋y＝1\\\\x－y＝3\\end{array}\\right."},
      {"escaped brace, stray bracket, blanks", u" \\{a) ", u"\\{a)"},
      {"lower case switches", u"\\f(a,b)", u"\\frac{a}{b}"},
  };
  for (const EqRow& row : rows) EXPECT_EQ(EqCodeToLatex(row.code), row.latex) << row.name;
}

struct SettingsRow {
  const char* name;
  std::u16string file, dpi;
  bool refused;
  std::string path;
  double dpiValue;
};

TEST(CheckPictureSettings, NamesAndResolutions) {
  const SettingsRow rows[] = {
      {"extension added", u"图形", u"300", false, "图形.jpg", 300},
      {"jpeg kept", u" a.JPEG ", u"96", false, "a.JPEG", 96},
      {"other extension kept and jpg added", u"a.png", u"72", false, "a.png.jpg", 72},
      {"empty name", u"  ", u"300", true, "", 0},
      {"resolution not a number", u"a", u"三百", true, "", 0},
      {"resolution too small", u"a", u"10", true, "", 0},
      {"resolution too large", u"a", u"5000", true, "", 0},
      {"resolution empty", u"a", u"", true, "", 0},
  };
  for (const SettingsRow& row : rows) {
    const PictureSettings s = CheckPictureSettings(row.file, row.dpi);
    EXPECT_EQ(!s.error.empty(), row.refused) << row.name;
    if (row.refused) continue;
    EXPECT_EQ(s.path, row.path) << row.name;
    EXPECT_EQ(s.dpi, row.dpiValue) << row.name;
  }
}

}  // namespace
}  // namespace lp::gallery
