// Every formula of the corpus through both generators: no crash, and a
// conversion that does not end only where the notation says it may not.
#include <gtest/gtest.h>

#include <fstream>

#include "formula/generators.h"
#include "runtime/utf8.h"

namespace lp {
namespace {

std::vector<std::string> Corpus() {
  std::ifstream in(LP_FORMULA_CORPUS);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// hu, xl and fcz without their bracket, and hu anywhere on the LaTeX route.
bool MayNeverEnd(const std::string& formula) {
  return formula.find("hu") != std::string::npos || formula.find("xl") != std::string::npos ||
         formula.find("fcz") != std::string::npos;
}

TEST(FormulaCorpus, EveryFormulaConvertsOrMayNeverEnd) {
  const auto corpus = Corpus();
  ASSERT_GE(corpus.size(), 300u);
  const FormulaSettings settings[] = {{false, false}, {true, true}};
  for (const std::string& formula : corpus) {
    for (const FormulaSettings& s : settings) {
      for (bool latex : {false, true}) {
        auto control = DriverControl::WithTimeout(std::chrono::milliseconds(60));
        try {
          if (latex)
            FormulaToFinishedLatex(FromUtf8(formula), s, control);
          else
            FormulaToEq(FromUtf8(formula), s, control);
        } catch (const FormulaAborted&) {
          EXPECT_TRUE(MayNeverEnd(formula)) << formula << (latex ? " (LaTeX)" : " (EQ)");
        }
      }
    }
  }
}

}  // namespace
}  // namespace lp
