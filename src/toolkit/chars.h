#pragma once
// Character tests and counting shared by the normaliser and the formula
// engine. A "character" is a string of length 1; the code tests look at its
// first unit, the exact tests at the whole string. Only ASCII counts: a
// Chinese character is neither digit nor letter.

#include <cstdint>
#include <string>

namespace lp {

// Code tests: an empty string raises "Invalid procedure call" (5), as taking
// the code of an empty string did.
bool IsDigitChar(const std::u16string& c);   // 0-9
bool IsLetterChar(const std::u16string& c);  // a-z, A-Z
bool IsDigitChar(char16_t c);
bool IsLetterChar(char16_t c);

// Exact tests.
bool IsOperatorChar(const std::u16string& c);  // - + * /  ("^" isn't one)
bool IsBracketChar(const std::u16string& c);   // { } [ ] ( )
bool IsOpenBracket(const std::u16string& c);   // [ { (
bool IsCloseBracket(const std::u16string& c);  // ] } )

// Matches of needle at every position, overlapping ones included:
// CountOf("aaa", "aa") is 2.
int32_t CountOf(const std::u16string& text, const std::u16string& needle);
int32_t CountOpenBrackets(const std::u16string& text);
int32_t CountCloseBrackets(const std::u16string& text);

}  // namespace lp
