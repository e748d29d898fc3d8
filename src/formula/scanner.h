#pragma once
// The scanner routines every formula generator shares. There is no tokeniser:
// a generator finds an operator by substring search and cuts its operands out
// with these routines, so their exact reach is what the notation means.
// Positions are 1-based UTF-16 units; a position outside the text reads as an
// empty character and never raises.

#include <cstdint>
#include <string>
#include <vector>

namespace lp {

class Prompt;

// Letters or digits by code (IsLetterChar, IsDigitChar): only ASCII counts,
// so Chinese text has no class.
bool IsAlnumChar(char16_t c);

// The character at pos as a string, empty outside the text.
std::u16string CharAt(const std::u16string& text, int32_t pos);

// Counts of (), [] and {} agree; order is not looked at, so ")(" passes.
bool BracketsBalanced(const std::u16string& text);

// The bracket group opened or closed at pos, brackets included. At a
// character that is no bracket the teacher is told (when a prompt is given)
// and the result is empty.
std::u16string MatchBracket(const std::u16string& text, int32_t pos, Prompt* prompt = nullptr);

// Longest run of letters, digits or both with one end at pos.
std::u16string LetterRun(const std::u16string& text, int32_t pos, bool backward);
std::u16string NumberRun(const std::u16string& text, int32_t pos, bool backward);
std::u16string AlnumRun(const std::u16string& text, int32_t pos, bool backward);

// The operands of an infix operator of the EQ generator.
std::u16string LeftOperand(const std::u16string& text, int32_t pos, Prompt* prompt = nullptr);
std::u16string RightOperand(const std::u16string& text, int32_t pos, Prompt* prompt = nullptr);

std::u16string StripOuterBrackets(const std::u16string& text);
// The operands of "/" in the LaTeX generator: one character or one group.
std::u16string NextGroup(const std::u16string& text, int32_t pos, Prompt* prompt = nullptr);
std::u16string PrevGroup(const std::u16string& text, int32_t pos, Prompt* prompt = nullptr);

// The text between a group's first and last character.
std::u16string GroupInside(const std::u16string& group);
// Pieces between the separators, as many as separators plus one.
std::vector<std::u16string> SplitText(const std::u16string& text, char16_t separator);

// pi, pI, Pi and PI all become the greek key @p.
std::u16string PiToGreek(const std::u16string& text);

}  // namespace lp
