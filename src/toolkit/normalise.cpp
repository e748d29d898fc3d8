#include "toolkit/normalise.h"

#include "runtime/text.h"
#include "toolkit/chars.h"

namespace lp {
namespace {

// The word rewrites: log is shielded from the root letter g, and both ln and
// log end as the evaluator's natural logarithm.
std::u16string RewriteWords(const std::u16string& text) {
  std::u16string s = LCase(text);
  s = Replace(s, u"log", u"ln");
  s = Replace(s, u"g", u"sqr");
  s = Replace(s, u"ln", u"log");
  return Replace(s, u"sqrt", u"sqr");
}

bool IsValueEnd(const std::u16string& c) {
  return c == u"." || IsDigitChar(c) || c == u"x" || IsCloseBracket(c);
}

bool MoreOpenThanClosed(const std::u16string& ch, const std::u16string& result) {
  return CountOpenBrackets(ch) + CountOpenBrackets(result) >
         CountCloseBrackets(ch) + CountCloseBrackets(result);
}

}  // namespace

std::u16string NormaliseExpression(const std::u16string& text) {
  std::u16string s = RewriteWords(text);
  std::u16string result;
  bool opened = false;
  for (int32_t i = 1; i <= Len(s); ++i) {
    std::u16string c = Mid(s, i, 1);
    std::u16string ch = c;
    if (IsValueEnd(c)) {
      if (i != 1) {
        std::u16string previous = Mid(s, i - 1, 1);
        if (IsLetterChar(previous) && previous != u"x") {
          ch = u"(" + ch;
          opened = true;
        }
      }
      if (i == Len(s)) {
        if (MoreOpenThanClosed(ch, result)) ch += u")";
      } else {
        std::u16string next = Mid(s, i + 1, 1);
        bool nextStartsValue = IsLetterChar(next) || IsOpenBracket(next);
        // A function's own bracket closes before an operator, or before a
        // following factor other than x (sin2x keeps x inside).
        bool mayClose = nextStartsValue ? next != u"x" : IsOperatorChar(next);
        if (opened && mayClose && MoreOpenThanClosed(ch, result)) {
          ch += u")";
          opened = false;
        }
        if (nextStartsValue) ch += u"*";
      }
    } else if (c == u"{" || c == u"[") {
      ch = std::u16string(1, u'(');
    }
    result = Trim(result) + ch;
  }
  result = Replace(result, u"pi", u"3.14159");
  result = Replace(result, u"e", u"2.71828");
  return Replace(result, u"()", u"");
}

bool HasFormulaSymbols(const std::u16string& text) {
  static const char16_t* const kSymbols[] = {u"/",   u"g",   u"^",   u"ln", u"sin", u"cos",
                                             u"tan", u"cot", u"sqr", u"@",  u"pi"};
  std::u16string lower = LCase(text);
  for (const char16_t* symbol : kSymbols)
    if (InStrText(lower, symbol) > 0) return true;
  return false;
}

}  // namespace lp
