// The delta of the discriminant line comes from the program's own font, which
// the saved document carries embedded; without the font it is Symbol's delta.
#include <fstream>
#include <iterator>

#include "solver_fixture.h"
#include "solvers/equation.h"
#include "toolkit/solve.h"
#include "word/docx/docx_document.h"
#include "word/docx/embedded_fonts.h"

namespace lp {
namespace {

using testing::SolverDocument;

class EmbeddedFont : public SolverDocument {
 protected:
  std::string TypeQuadratic() {
    std::optional<QuadraticSolution> q = SolveQuadratic(u"x^2-5x+6=0", prompt);
    TypeQuadraticSolution(*session, u"x^2-5x+6=0", *q, true);
    return Text();
  }
};

std::string FileBytes(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::string Between(const std::string& text, const std::string& before, const std::string& after) {
  size_t start = text.find(before);
  if (start == std::string::npos) return {};
  start += before.size();
  return text.substr(start, text.find(after, start) - start);
}

TEST_F(EmbeddedFont, TheDocumentCarriesTheProgramFont) {
  std::filesystem::copy_file(LP_FONT_FILE, dir / "lumenpad.ttf");
  app->Document().SetFontFolder(dir);
  std::string typed = TypeQuadratic();
  EXPECT_NE(typed.find("∵ <lumenpad:F044>="), std::string::npos) << typed;
  EXPECT_NE(Part("word/settings.xml").find("<w:embedTrueTypeFonts"), std::string::npos);
  std::string table = Part("word/fontTable.xml");
  std::string key = Between(table, "w:fontKey=\"", "\"");
  ASSERT_EQ(key.size(), 38u) << table;
  std::string id = Between(table, "<w:embedRegular r:id=\"", "\"");
  std::string rels = Part("word/_rels/fontTable.xml.rels");
  std::string target = Between(rels, "Id=\"" + id + "\"", "/>");
  ASSERT_NE(target.find("Target=\"fonts/font1.odttf\""), std::string::npos) << rels;
  // unzip reads "[" as the start of a pattern.
  EXPECT_NE(Part("\\[Content_Types].xml").find("obfuscatedFont"), std::string::npos);
  std::string stored = Part("word/fonts/font1.odttf");
  std::string font = FileBytes(LP_FONT_FILE);
  EXPECT_NE(stored.substr(0, 32), font.substr(0, 32));
  EXPECT_EQ(word::docx::ObfuscateFont(stored, key), font);
}

TEST_F(EmbeddedFont, WithoutTheFontSymbolGivesTheDelta) {
  app->Document().SetFontFolder(dir);
  EXPECT_NE(TypeQuadratic().find("∵ <Symbol:F044>="), std::string::npos);
  EXPECT_EQ(Part("word/fontTable.xml").find("embedRegular"), std::string::npos);
}

}  // namespace
}  // namespace lp
