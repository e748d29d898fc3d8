#pragma once
// The pieces every worked solution is typed from: signs for display, x terms,
// EQ fields for fractions and roots, powers raised, the empty set, the delta.

#include <string>

#include "session/session.h"

namespace lp {

// ">" and "<" stay; "<=" is "≤", ">=" "≥", "<>" "≠".
std::u16string SignToDisplay(const std::u16string& op);

// "x" for 1, "-x" for -1, otherwise the trimmed number and "x".
std::u16string XTerm(double coefficient);

// The numerator and denominator of an answer text "n/d" (blanks around the
// slash allowed), trimmed; the sign stays with the numerator.
struct FractionParts {
  std::u16string numerator, denominator;
};
FractionParts SplitFraction(const std::u16string& text);

// A field with the code, added at the selection, the caret behind it.
void AddField(word::Selection& selection, const std::u16string& code);
// "EQ \F(n,d)" for an answer text "n/d".
void AddFractionField(word::Selection& selection, const std::u16string& text);

// Types text with each power raised: "*" is left out, and "^" with the
// character after it becomes a raised 2, whatever that character was.
void Insert_Quadratic_Equation_To_Word(word::Selection& selection, const std::u16string& text);

// The empty set, from the Symbol font.
void TypeEmptySet(word::Selection& selection);

// The delta sign: code 68 of the program's font "lumenpad", which the
// document then embeds; where the font is not beside the program, code 68 of
// Symbol, which is a delta too.
void TypeDelta(Session& session);

}  // namespace lp
