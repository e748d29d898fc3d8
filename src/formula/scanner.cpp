#include "formula/scanner.h"

#include <algorithm>

#include "formula/driver.h"
#include "runtime/prompt.h"
#include "runtime/text.h"
#include "toolkit/chars.h"

namespace lp {
namespace {

using Test = bool (*)(char16_t);

char16_t UnitAt(const std::u16string& text, int32_t pos) {
  return pos >= 1 && pos <= static_cast<int32_t>(text.size()) ? text[pos - 1] : u'\0';
}

// The text from start for length units, clipped to the text.
std::u16string Cut(const std::u16string& text, int32_t start, int32_t length) {
  int32_t from = std::max(start, 1);
  int32_t to = std::min<int32_t>(start + length, static_cast<int32_t>(text.size()) + 1);
  return to > from ? text.substr(from - 1, to - from) : std::u16string();
}

std::u16string Run(const std::u16string& text, int32_t pos, bool backward, Test test) {
  if (!test(UnitAt(text, pos))) return {};
  int32_t step = backward ? -1 : 1;
  int32_t end = pos;
  while (test(UnitAt(text, end + step))) end += step;
  return backward ? Cut(text, end, pos - end + 1) : Cut(text, pos, end - pos + 1);
}

char16_t Partner(char16_t bracket) {
  switch (bracket) {
    case u'(':
      return u')';
    case u'[':
      return u']';
    case u'{':
      return u'}';
    case u')':
      return u'(';
    case u']':
      return u'[';
    case u'}':
      return u'{';
    default:
      return u'\0';
  }
}

bool IsOpening(char16_t c) {
  return c == u'(' || c == u'[' || c == u'{';
}
bool IsClosing(char16_t c) {
  return c == u')' || c == u']' || c == u'}';
}

}  // namespace

bool IsAlnumChar(char16_t c) {
  return IsDigitChar(c) || IsLetterChar(c);
}

std::u16string CharAt(const std::u16string& text, int32_t pos) {
  return Cut(text, pos, 1);
}

bool BracketsBalanced(const std::u16string& text) {
  return CountOf(text, u"(") == CountOf(text, u")") && CountOf(text, u"[") == CountOf(text, u"]") &&
         CountOf(text, u"{") == CountOf(text, u"}");
}

std::u16string MatchBracket(const std::u16string& text, int32_t pos, Prompt* prompt) {
  char16_t c = UnitAt(text, pos);
  if (IsOpening(c)) {
    for (int32_t j = pos + 1; j <= static_cast<int32_t>(text.size()); ++j) {
      if (UnitAt(text, j) != Partner(c)) continue;
      std::u16string stretch = Cut(text, pos, j - pos + 1);
      if (BracketsBalanced(stretch)) return stretch;
    }
    return Cut(text, pos, static_cast<int32_t>(text.size()));
  }
  if (IsClosing(c)) {
    for (int32_t j = pos - 1; j >= 1; --j) {
      if (UnitAt(text, j) != Partner(c)) continue;
      std::u16string stretch = Cut(text, j, pos - j + 1);
      if (BracketsBalanced(stretch)) return stretch;
    }
    return Cut(text, 1, pos);
  }
  if (prompt) prompt->MsgBox(u"您提供的字符串开始字符不是括号的一部分");
  return {};
}

std::u16string LetterRun(const std::u16string& text, int32_t pos, bool backward) {
  return Run(text, pos, backward, static_cast<Test>(IsLetterChar));
}
std::u16string NumberRun(const std::u16string& text, int32_t pos, bool backward) {
  return Run(text, pos, backward, static_cast<Test>(IsDigitChar));
}
std::u16string AlnumRun(const std::u16string& text, int32_t pos, bool backward) {
  return Run(text, pos, backward, IsAlnumChar);
}

// Scans left from pos. A closing bracket always brings the group at pos, not
// the one at the scan position: after "x\S(2)" the group (2) is taken again
// when the scan meets an earlier ")". Only the length of what was collected
// matters; the operand is that many characters of the text ending at pos.
std::u16string LeftOperand(const std::u16string& text, int32_t pos, Prompt* prompt) {
  std::u16string result;
  int32_t i = pos;
  while (i >= 1) {
    char16_t c = UnitAt(text, i);
    if (c == u')') {
      std::u16string group = MatchBracket(text, pos, prompt);
      // An empty group never moves the scan: the input does not end.
      if (group.empty()) throw FormulaAborted(FormulaAborted::kTimeout);
      result = group + result;
      i -= static_cast<int32_t>(group.size());
    } else if (!IsAlnumChar(c)) {
      if (std::u16string(u"-+,(= ").find(c) != std::u16string::npos) break;
      result.insert(result.begin(), c);
      --i;
    } else if (i == pos) {
      result = IsDigitChar(c) ? NumberRun(text, i, true) : LetterRun(text, i, true);
      int32_t runStart = pos - static_cast<int32_t>(result.size()) + 1;
      if (result.size() == 1 && runStart > 1 && UnitAt(text, runStart - 1) == u'@')
        result = u"@" + result;
      break;
    } else {
      std::u16string run = AlnumRun(text, i, true);
      result = run + result;
      i -= static_cast<int32_t>(run.size());
    }
  }
  int32_t length = static_cast<int32_t>(result.size());
  return Cut(text, std::max(pos - length + 1, 1), std::min(length, pos));
}

// Scans right from pos. After the first character a letter or digit adds the
// run that ends at it, so a long run after a sign counts longer than it is.
std::u16string RightOperand(const std::u16string& text, int32_t pos, Prompt* prompt) {
  char16_t first = UnitAt(text, pos);
  if (first == u'(') return MatchBracket(text, pos, prompt);
  if (IsDigitChar(first)) return NumberRun(text, pos, false);
  if (IsLetterChar(first)) return LetterRun(text, pos, false);
  int32_t length = 0;
  int32_t i = pos;
  while (i <= static_cast<int32_t>(text.size())) {
    char16_t c = UnitAt(text, i);
    if (c == u'-' || c == u'+' || c == u'=') break;
    if (IsAlnumChar(c)) {
      int32_t run = static_cast<int32_t>(AlnumRun(text, i, true).size());
      length += run;
      i += run;
    } else {
      ++length;
      ++i;
    }
  }
  return Cut(text, pos, length);
}

std::u16string StripOuterBrackets(const std::u16string& text) {
  if (text.size() >= 2 && text.front() == u'(' && text.back() == u')')
    return text.substr(1, text.size() - 2);
  return text;
}

std::u16string NextGroup(const std::u16string& text, int32_t pos, Prompt* prompt) {
  return IsOpening(UnitAt(text, pos)) ? MatchBracket(text, pos, prompt) : CharAt(text, pos);
}

// A group in braces may be the argument of a placeholder such as MyRStr3{x}:
// the placeholder's digits and letters come with it.
std::u16string PrevGroup(const std::u16string& text, int32_t pos, Prompt* prompt) {
  char16_t c = UnitAt(text, pos);
  if (!IsClosing(c)) {
    std::u16string one = CharAt(text, pos);
    if (!IsDigitChar(c) && UnitAt(text, pos - 1) == u'@') return u"@" + one;
    return one;
  }
  std::u16string group = MatchBracket(text, pos, prompt);
  if (group.empty() || group.front() != u'{') return group;
  int32_t p = static_cast<int32_t>(text.find(group));  // 0-based start = 1-based position before
  if (!IsDigitChar(UnitAt(text, p))) return group;
  std::u16string digits = NumberRun(text, p, true);
  std::u16string letters = LetterRun(text, p - static_cast<int32_t>(digits.size()), true);
  return letters + digits + group;
}

std::u16string GroupInside(const std::u16string& group) {
  return group.size() >= 2 ? group.substr(1, group.size() - 2) : std::u16string();
}

std::vector<std::u16string> SplitText(const std::u16string& text, char16_t separator) {
  std::vector<std::u16string> parts(1);
  for (char16_t c : text) {
    if (c == separator)
      parts.emplace_back();
    else
      parts.back() += c;
  }
  return parts;
}

std::u16string PiToGreek(const std::u16string& text) {
  std::u16string s = text;
  for (const char16_t* pi : {u"pi", u"pI", u"Pi", u"PI"}) s = Replace(s, pi, u"@p");
  return s;
}

}  // namespace lp
