#pragma once
// Number conversions with exact text forms and overflow rules: the text the
// tools write into documents (Str gives a positive number a leading blank)
// and the overflow checks their handlers rely on.

#include <cstdint>
#include <string>

namespace lp {

// Booleans are 16-bit and True is -1.
constexpr int16_t vbTrue = -1;
constexpr int16_t vbFalse = 0;
constexpr int16_t CBool16(bool b) {
  return b ? vbTrue : vbFalse;
}

// The leading number of the text: blanks, tabs and line feeds anywhere are
// skipped, reading stops at the first character that can't continue a
// number. "&H" and "&O" prefixes read hexadecimal and octal. Never fails.
double Val(const std::u16string& text);

// Up to 15 significant digits, shortest form, a leading blank for a
// non-negative number, no zero before the point (" .5", "-.5"), and E
// notation ("1E+16", " 1E-05") outside the plain range.
std::u16string Str(double value);

// Formats with a numeric pattern: digits "0" always shown, "#" shown only
// when significant, as in "#.##" (0.5 -> ".5", 5 -> "5.") or "0.00".
std::u16string Format(double value, const std::u16string& pattern);

// Round half to even; a result beyond the type raises overflow (error 6).
int16_t CInt(double value);
int32_t CLng(double value);
// Rounds to single precision; beyond the single range raises overflow.
float CSng(double value);

// Largest whole number not above the value (Int(-2.5) = -3).
double Int(double value);
// Whole part, toward zero (Fix(-2.5) = -2).
double Fix(double value);

}  // namespace lp
