#pragma once
// The string functions of the runtime on UTF-16 text. Positions are 1-based
// UTF-16 units; bad arguments raise "Invalid procedure call" (5), which some
// tools rely on to stop a loop.

#include <cstdint>
#include <string>
#include <vector>

namespace lp {

int32_t Len(const std::u16string& s);
// From start (1-based) for length units, or to the end for length -1. A start
// past the end gives "".
std::u16string Mid(const std::u16string& s, int32_t start, int32_t length = -1);
std::u16string Left(const std::u16string& s, int32_t length);
std::u16string Right(const std::u16string& s, int32_t length);

// Position of find in s from start (1-based), 0 if none. An empty find gives
// start (or 0 when start is past the end).
int32_t InStr(const std::u16string& s, const std::u16string& find);
int32_t InStr(int32_t start, const std::u16string& s, const std::u16string& find);
// The same with text compare: letters match regardless of case.
int32_t InStrText(const std::u16string& s, const std::u16string& find);
int32_t InStrText(int32_t start, const std::u16string& s, const std::u16string& find);
// Last position of find in s whose match ends at or before start (-1: the
// end), 0 if none.
int32_t InStrRev(const std::u16string& s, const std::u16string& find, int32_t start = -1);

// Every occurrence of find, left to right without overlaps; an empty find
// leaves s unchanged.
std::u16string Replace(const std::u16string& s, const std::u16string& find,
                       const std::u16string& with);

// The pieces between the delimiters: one piece more than delimiters, empty
// pieces kept; an empty text gives no piece.
std::vector<std::u16string> Split(const std::u16string& s, const std::u16string& delimiter);

// Remove blanks (the ASCII space and, as on a Chinese system, the
// ideographic space U+3000) at the ends.
std::u16string Trim(const std::u16string& s);
std::u16string LTrim(const std::u16string& s);
std::u16string RTrim(const std::u16string& s);

std::u16string LCase(const std::u16string& s);
std::u16string UCase(const std::u16string& s);

// Full-width to half-width: U+FF01..U+FF5E to ASCII, the ideographic space to
// a space, the full-width cent, pound, not, macron, yen and won signs to
// their narrow forms.
std::u16string StrConvNarrow(const std::u16string& s);
// The same for one UTF-16 unit.
char16_t NarrowUnit(char16_t c);

// One UTF-16 unit and back (the wide forms; no code page is involved).
std::u16string Chr(int32_t code);
// Code of the first unit; an empty string raises error 5.
int32_t Asc(const std::u16string& s);

}  // namespace lp
