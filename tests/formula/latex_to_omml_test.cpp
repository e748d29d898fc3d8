// TeX of the LaTeX generator into Office Math: each construct, and the whole
// corpus against the math schema of the document format.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>

#include "../shared_material.h"
#include "formula/generators.h"
#include "formula/latex_to_omml.h"
#include "math_schema.h"
#include "runtime/utf8.h"

namespace lp {
namespace {

std::vector<std::string> Lines(const char* path) {
  std::ifstream in(path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);)
    if (!line.empty() && line[0] != '#') lines.push_back(line);
  return lines;
}

TEST(LatexToOmml, Constructs) {
  struct Row {
    const char* name;
    const char16_t* tex;
    const char* expected;
  } rows[] = {
      {"Fraction", u"$\\frac{a+b}{c+d}$",
       "<m:f><m:num><m:r><m:t xml:space=\"preserve\">a</m:t></m:r>"},
      {"SquareRoot", u"\\sqrt{2}", "<m:rad><m:radPr><m:degHide m:val=\"1\"/></m:radPr><m:deg/>"},
      {"RootWithIndex", u"\\sqrt [3]{x}+1",
       "<m:rad><m:deg><m:r><m:t xml:space=\"preserve\">3</m:t></m:r></m:deg>"},
      {"Power", u"x^{n+1}", "<m:sSup><m:e><m:r><m:t xml:space=\"preserve\">x</m:t></m:r></m:e>"},
      {"PowerOfFraction", u"x^\\frac{2}{3}", "<m:sup><m:f>"},
      {"Both", u"A^{5}_{3}", "<m:sSubSup>"},
      {"Overline", u"\\overline{ab}", "<m:bar><m:barPr><m:pos m:val=\"top\"/>"},
      {"Vector", u"\\vec{AB}", "<m:acc><m:accPr><m:chr m:val=\"\xE2\x83\x97\"/>"},
      {"Greek", u" \\alpha + \\Omega ", "α</m:t>"},
      {"UprightO", u" {\\mathrm O} ", "<m:sty m:val=\"p\"/></m:rPr><m:t xml:space=\"preserve\">O"},
      {"Signs", u"a \\ge b \\ne c", "≥"},
      {"System", u"\\left\\{ \\begin{align} x+y=1 \\\\ x-y=3 \\\\ \\end{align}\\right.",
       "<m:d><m:dPr><m:begChr m:val=\"{\"/><m:endChr m:val=\"\"/></m:dPr><m:e><m:eqArr><m:e>"},
      {"PowerOfBracket", u"(x-a)^2", "<m:sSup><m:e><m:d><m:e><m:r><m:t xml:space=\"preserve\">x"},
      {"NestedBrackets", u"((a))", "<m:d><m:e><m:d><m:e><m:r>"},
      {"UnmatchedBracket", u"(a+(b)", "<m:r><m:t xml:space=\"preserve\">(</m:t></m:r><m:r>"},
  };
  for (const Row& row : rows) {
    auto omml = LatexToOmml(row.tex);
    ASSERT_TRUE(omml) << row.name;
    EXPECT_NE(omml->find(row.expected), std::string::npos) << row.name << ": " << *omml;
  }
  EXPECT_FALSE(LatexToOmml(u"\\frac{1}{`a"));
  EXPECT_FALSE(LatexToOmml(u"\\unknown"));
  // Text behind many unmatched brackets is read once per bracket, not once
  // per way of pairing them: this returns at once.
  EXPECT_TRUE(LatexToOmml(std::u16string(200, u'(') + u"x"));
}

TEST(LatexToOmml, CorpusGivesSchemaValidMath) {
  LP_SKIP_WITHOUT_SHARED(LP_XSD_DRIVER);
  const auto known = Lines(LP_FORMULA_KNOWN_INVALID);
  const std::set<std::string> invalid(known.begin(), known.end());
  std::string equations;
  for (const std::string& formula : Lines(LP_FORMULA_CORPUS)) {
    std::u16string tex;
    try {
      tex = FormulaToFinishedLatex(FromUtf8(formula), FormulaSettings{},
                                   DriverControl::WithTimeout(std::chrono::milliseconds(60)));
    } catch (const FormulaAborted&) {
      continue;
    }
    auto omml = LatexToOmml(tex);
    if (!invalid.count(formula)) {
      EXPECT_TRUE(omml) << formula << " -> " << ToUtf8(tex);
    }
    if (omml) equations += *omml + "\n";
  }
  const int check = CheckMathAgainstSchema(equations, "latex_omml");
  if (check == -1) GTEST_SKIP() << "no xmllint";
  EXPECT_EQ(check, 0);
}

}  // namespace
}  // namespace lp
