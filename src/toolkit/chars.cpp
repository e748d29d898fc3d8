#include "toolkit/chars.h"

#include "runtime/text.h"

namespace lp {

bool IsDigitChar(char16_t c) {
  return c >= 48 && c <= 57;
}
bool IsLetterChar(char16_t c) {
  return (c >= 97 && c <= 122) || (c >= 65 && c <= 90);
}
bool IsDigitChar(const std::u16string& c) {
  return IsDigitChar(static_cast<char16_t>(Asc(c)));
}
bool IsLetterChar(const std::u16string& c) {
  return IsLetterChar(static_cast<char16_t>(Asc(c)));
}

bool IsOperatorChar(const std::u16string& c) {
  return c == u"-" || c == u"+" || c == u"*" || c == u"/";
}

bool IsBracketChar(const std::u16string& c) {
  return IsOpenBracket(c) || IsCloseBracket(c);
}
bool IsOpenBracket(const std::u16string& c) {
  return c == u"[" || c == u"{" || c == u"(";
}
bool IsCloseBracket(const std::u16string& c) {
  return c == u"]" || c == u"}" || c == u")";
}

int32_t CountOf(const std::u16string& text, const std::u16string& needle) {
  int32_t count = 0;
  for (int32_t i = 1; i <= Len(text) - Len(needle) + 1; ++i)
    if (Mid(text, i, Len(needle)) == needle) ++count;
  return count;
}

int32_t CountOpenBrackets(const std::u16string& text) {
  return CountOf(text, u"{") + CountOf(text, u"[") + CountOf(text, u"(");
}

int32_t CountCloseBrackets(const std::u16string& text) {
  return CountOf(text, u"}") + CountOf(text, u"]") + CountOf(text, u")");
}

}  // namespace lp
