#pragma once
// An EQ field's code, character by character with its look, turned into a
// native equation: \F a fraction, \R a radical with or without index, \S
// scripts on the character or bracket before them, \O of two scripts both
// scripts, \O of a raised sign an accent (arc, arrow, bar, the dot of a
// recurring decimal), \X\TO an overline, \X all round a box, \B brackets,
// \A an equation array (a matrix with \CO), \L a list; a pair of vertical
// bars encloses an absolute value.
// Symbol-font letters become Greek, the wide signs the font pass made become
// math signs, and every other character keeps its typeface and italic.

#include <optional>
#include <string>
#include <vector>

#include "word/eq_fields.h"

namespace lp {

// "<m:oMath>...</m:oMath>" (UTF-8), or nothing when the code holds a switch,
// an option or a character of a symbol font this converter does not read.
std::optional<std::string> EqFieldToOmml(const std::vector<word::CodeCharacter>& code);

// The Unicode character a character of the Symbol font shows (its code
// either the keyboard's or the font's private one, U+F020 to U+F0FF); 0
// when it has none.
char16_t SymbolFontCharacter(char16_t ch);

}  // namespace lp
