#include "runtime/text.h"

#include <algorithm>

#include "runtime/error.h"

namespace lp {
namespace {

bool IsTrimBlank(char16_t c) {
  return c == u' ' || c == u'\u3000';
}

// ASCII, Latin-1, Greek, Cyrillic and full-width Latin letters.
char16_t LowerUnit(char16_t c) {
  if ((c >= u'A' && c <= u'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7) ||
      (c >= 0x391 && c <= 0x3AB && c != 0x3A2) || (c >= 0x410 && c <= 0x42F) ||
      (c >= 0xFF21 && c <= 0xFF3A))
    return c + 0x20;
  if (c >= 0x400 && c <= 0x40F) return c + 0x50;
  return c;
}

char16_t UpperUnit(char16_t c) {
  if ((c >= u'a' && c <= u'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7) ||
      (c >= 0x3B1 && c <= 0x3CB && c != 0x3C2) || (c >= 0x430 && c <= 0x44F) ||
      (c >= 0xFF41 && c <= 0xFF5A))
    return c - 0x20;
  if (c >= 0x450 && c <= 0x45F) return c - 0x50;
  return c;
}

// Text compare ignores case and width.
char16_t FoldUnit(char16_t c) {
  return LowerUnit(NarrowUnit(c));
}

void CheckStart(int32_t start) {
  if (start < 1) RaiseInvalidProcedureCall();
}

template <typename Equal>
int32_t Search(int32_t start, const std::u16string& s, const std::u16string& find, Equal eq) {
  CheckStart(start);
  if (start > Len(s)) return 0;
  if (find.empty()) return start;
  auto it = std::search(s.begin() + (start - 1), s.end(), find.begin(), find.end(), eq);
  return it == s.end() ? 0 : static_cast<int32_t>(it - s.begin()) + 1;
}

bool SameUnit(char16_t a, char16_t b) {
  return a == b;
}
bool SameUnitText(char16_t a, char16_t b) {
  return FoldUnit(a) == FoldUnit(b);
}

template <typename Map>
std::u16string MapUnits(std::u16string s, Map map) {
  for (char16_t& c : s) c = map(c);
  return s;
}

}  // namespace

char16_t NarrowUnit(char16_t c) {
  if (c >= 0xFF01 && c <= 0xFF5E) return c - 0xFEE0;
  switch (c) {
    case 0x3000:
      return u' ';
    case 0xFFE0:
      return 0xA2;
    case 0xFFE1:
      return 0xA3;
    case 0xFFE2:
      return 0xAC;
    case 0xFFE3:
      return 0xAF;
    case 0xFFE5:
      return 0xA5;
    case 0xFFE6:
      return 0x20A9;
    default:
      return c;
  }
}

int32_t Len(const std::u16string& s) {
  return static_cast<int32_t>(s.size());
}

std::u16string Mid(const std::u16string& s, int32_t start, int32_t length) {
  CheckStart(start);
  if (length < -1) RaiseInvalidProcedureCall();
  if (start > Len(s)) return {};
  return length == -1 ? s.substr(start - 1) : s.substr(start - 1, length);
}

std::u16string Left(const std::u16string& s, int32_t length) {
  if (length < 0) RaiseInvalidProcedureCall();
  return s.substr(0, length);
}

std::u16string Right(const std::u16string& s, int32_t length) {
  if (length < 0) RaiseInvalidProcedureCall();
  return length >= Len(s) ? s : s.substr(s.size() - length);
}

int32_t InStr(const std::u16string& s, const std::u16string& find) {
  return InStr(1, s, find);
}

int32_t InStr(int32_t start, const std::u16string& s, const std::u16string& find) {
  return Search(start, s, find, SameUnit);
}

int32_t InStrText(const std::u16string& s, const std::u16string& find) {
  return InStrText(1, s, find);
}

int32_t InStrText(int32_t start, const std::u16string& s, const std::u16string& find) {
  return Search(start, s, find, SameUnitText);
}

int32_t InStrRev(const std::u16string& s, const std::u16string& find, int32_t start) {
  if (start == 0 || start < -1) RaiseInvalidProcedureCall();
  if (start == -1) start = Len(s);
  if (start > Len(s)) return 0;
  if (find.empty()) return start;
  if (Len(find) > start) return 0;
  size_t at = s.rfind(find, start - find.size());
  return at == std::u16string::npos ? 0 : static_cast<int32_t>(at) + 1;
}

std::u16string Replace(const std::u16string& s, const std::u16string& find,
                       const std::u16string& with) {
  if (find.empty()) return s;
  std::u16string out;
  size_t from = 0;
  for (size_t at; (at = s.find(find, from)) != std::u16string::npos; from = at + find.size())
    out.append(s, from, at - from).append(with);
  return out.append(s, from);
}

std::vector<std::u16string> Split(const std::u16string& s, const std::u16string& delimiter) {
  if (s.empty()) return {};
  if (delimiter.empty()) return {s};
  std::vector<std::u16string> pieces;
  size_t from = 0;
  for (size_t at; (at = s.find(delimiter, from)) != std::u16string::npos;
       from = at + delimiter.size())
    pieces.push_back(s.substr(from, at - from));
  pieces.push_back(s.substr(from));
  return pieces;
}

std::u16string LTrim(const std::u16string& s) {
  auto it = std::find_if_not(s.begin(), s.end(), IsTrimBlank);
  return std::u16string(it, s.end());
}

std::u16string RTrim(const std::u16string& s) {
  auto it = std::find_if_not(s.rbegin(), s.rend(), IsTrimBlank);
  return std::u16string(s.begin(), it.base());
}

std::u16string Trim(const std::u16string& s) {
  return LTrim(RTrim(s));
}

std::u16string LCase(const std::u16string& s) {
  return MapUnits(s, LowerUnit);
}
std::u16string UCase(const std::u16string& s) {
  return MapUnits(s, UpperUnit);
}
std::u16string StrConvNarrow(const std::u16string& s) {
  return MapUnits(s, NarrowUnit);
}

std::u16string Chr(int32_t code) {
  if (code < -32768 || code > 65535) RaiseInvalidProcedureCall();
  return std::u16string(1, static_cast<char16_t>(code < 0 ? code + 65536 : code));
}

int32_t Asc(const std::u16string& s) {
  if (s.empty()) RaiseInvalidProcedureCall();
  return s[0];
}

}  // namespace lp
