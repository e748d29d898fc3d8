#pragma once
// The code of an EQ field read into a tree: the switches lumenpad and Word
// write (\F fraction, \R radical, \S script with \UP and \DO, \O overstrike,
// \X box, \B brackets, \A array, \L list, \I integral, sum or product, \D
// displacement) over the characters of the code, each of which remembers
// where it stood, so that its font can be found again. An overstrike of a
// circle, square, triangle or diamond with a text is the enclosed character
// Word's own command writes.

#include <stdexcept>
#include <string>
#include <vector>

namespace lp {

struct EqCodeError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

enum class EqKind {
  kChar,        // one character of the code; a blank only between two words
  kFraction,    // rows: numerator, denominator
  kRadical,     // rows: index (maybe empty), radicand
  kRaised,      // rows: the raised text
  kLowered,     // rows: the lowered text
  kOverstrike,  // rows: the texts printed over each other
  kOverline,    // rows: the text under the line
  kUnderline,   // rows: the text over the line
  kBrackets,    // rows: the bracketed text; open and close
  kArray,       // rows: one per element, `columns` to a line
  kBox,         // rows: the boxed text
  kList,        // rows: the listed texts
  kNary,        // rows: lower limit, upper limit, integrand; ch the sign
  kDisplace,    // no rows; `points` forward (negative: back), `line` under the gap
  kEnclosed,    // rows: the enclosed text; ch the enclosure (○, □, △ or ◇)
};

struct EqNode;
using EqRow = std::vector<EqNode>;

struct EqNode {
  EqKind kind = EqKind::kChar;
  char16_t ch = 0;               // kChar; the sign of kNary; the enclosure of kEnclosed
  size_t source = 0;             // kChar: its index in the code
  char16_t open = 0, close = 0;  // kBrackets; 0 draws no bracket
  size_t columns = 1;            // kArray
  bool besideLimits = false;     // kNary: limits to the right of the sign, not over and under
  bool grows = false;            // kNary: the sign as tall as the integrand
  int points = 0;                // kDisplace; kRaised, kLowered: how far, 0 unsaid
  bool line = false;             // kDisplace
  std::vector<EqRow> rows;
};

// The code, "EQ" (any case) first; throws EqCodeError for what it can't read:
// unbalanced brackets, an unknown switch or option, a switch without its
// arguments, or a construct nested deeper than any formula needs.
EqRow ParseEqCode(const std::u16string& code);

}  // namespace lp
