// Formulas as the typesetter gets them, and the picture dialog's checks.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "gallery/drawing_list.h"
#include "gallery/picture_settings.h"
#include "runtime/utf8.h"

namespace lp::gallery {
namespace {

std::vector<std::string> Columns(const std::string& line) {
  std::vector<std::string> columns;
  std::istringstream in(line);
  for (std::string column; std::getline(in, column, '\t');) columns.push_back(column);
  return columns;
}

// eq_latex_rows.tsv: name, EQ field code, the LaTeX expected (which the
// gallery.eq_latex_katex test parses with KaTeX).
TEST(EqCodeToLatex, TheTreeOfEachKindAndRefusedCodes) {
  std::ifstream rows(LP_EQ_LATEX_ROWS);
  ASSERT_TRUE(rows) << LP_EQ_LATEX_ROWS;
  int count = 0;
  for (std::string line; std::getline(rows, line);) {
    if (line.empty() || line[0] == '#') continue;
    const std::vector<std::string> row = Columns(line);
    ASSERT_EQ(row.size(), 3u) << line;
    EXPECT_EQ(ToUtf8(EqCodeToLatex(FromUtf8(row[1]))), row[2]) << row[0];
    ++count;
  }
  EXPECT_GE(count, 30);
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
