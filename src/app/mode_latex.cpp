#include "app/formula_modes.h"

namespace lp {

// LaTeX with its placeholders restored, without the dollar signs.
int LatexMode(const ModeArgs& in) {
  return FormulaMode(in, FormulaToFinishedLatex);
}

}  // namespace lp
