#pragma once
// The two generators: the teacher's one-line notation rewritten, string to
// string, into the code of a Word EQ field or into LaTeX. Both run under a
// DriverControl and throw FormulaAborted when it gives up.

#include <string>
#include <utility>
#include <vector>

#include "formula/driver.h"

namespace lp {

struct FormulaSettings {
  bool blFS = false;    // "/" puts its first operand below the bar
  bool blPLZH = false;  // A, P, C put their first argument below
};

// The field code without the word EQ.
std::u16string FormulaToEq(const std::u16string& text, const FormulaSettings& settings,
                           const DriverControl& control);

// Greek keys of an EQ code: each "@x" becomes one grave accent, and the
// letters are kept in order for the font pass.
struct MaskedGreek {
  std::u16string text;
  std::vector<std::u16string> GreekChars;  // letter number k is GreekChars[k - 1]
  bool GreekUsed = false;
};
MaskedGreek MaskGreek(const std::u16string& text);
// Comparison and sign characters in their wide forms, pair by pair in the
// order of WideSigns.
std::u16string SignsToWide(const std::u16string& text);
const std::vector<std::pair<std::u16string, std::u16string>>& WideSigns();

// What each placeholder of a LaTeX text stands for. LaTeX commands hold the
// very letters the driver searches for, so \sqrt, ^ and _ wait under a mark
// until the end. One set serves a formula and all its inner groups.
class LatexPlaceholders {
 public:
  std::u16string NewPlaceholder(const std::u16string& literal);
  // Marks go back in ascending order, so MyRStr1 also hits the head of
  // MyRStr10.
  std::u16string RestorePlaceholders(const std::u16string& text) const;

 private:
  std::vector<std::u16string> LatexTexts{u""};
  std::vector<std::u16string> LatexMarks{u""};
};

// LaTeX with placeholders still in it.
std::u16string FormulaToLatex(const std::u16string& text, const FormulaSettings& settings,
                              LatexPlaceholders& marks, const DriverControl& control);
// A fresh set of placeholders, the conversion, and the marks restored.
std::u16string FormulaToFinishedLatex(const std::u16string& text, const FormulaSettings& settings,
                                      const DriverControl& control);
// Each "@x" becomes the TeX name of its greek letter, by the Symbol font's
// keyboard layout.
std::u16string LatexGreek(const std::u16string& text);

}  // namespace lp
