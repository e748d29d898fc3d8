// EQ field codes as LaTeX: the switches the formula engine writes
// (fractions, radicals, raised and lowered scripts, overstrikes, brackets,
// arrays) become the typesetter's commands; anything else stays as text.

#include <cctype>
#include <vector>

#include "gallery/drawing_list.h"

namespace lp::gallery {
namespace {

struct Switch {
  std::u16string name;                                             // upper case
  std::vector<std::pair<std::u16string, std::u16string>> options;  // name upper case, value
  std::vector<std::u16string> args;
};

bool IsLetter(char16_t c) {
  return c < 128 && std::isalpha(static_cast<unsigned char>(c));
}

std::u16string Upper(std::u16string s) {
  for (char16_t& c : s)
    if (c >= u'a' && c <= u'z') c = static_cast<char16_t>(c - u'a' + u'A');
  return s;
}

std::u16string Escaped(char16_t c) {
  if (c == u'{' || c == u'}') return std::u16string(u"\\") + c;
  return std::u16string(1, c);
}

class EqParser {
 public:
  explicit EqParser(const std::u16string& code) : s_(code) {}

  // The whole code: an unmatched ',' or ')' stands for itself.
  std::u16string All() {
    std::u16string out = Sequence();
    while (i_ < s_.size()) {
      out += s_[i_++];
      out += Sequence();
    }
    return out;
  }

  // Text up to an unmatched ',' or ')' (or the end).
  std::u16string Sequence() {
    std::u16string out;
    while (i_ < s_.size() && s_[i_] != u',' && s_[i_] != u')') {
      if (s_[i_] == u'\\') {
        out += Command();
      } else if (s_[i_] == u'(') {
        ++i_;
        out += u"(" + Sequence();
        if (i_ < s_.size() && s_[i_] == u')') out += s_[i_++];
      } else {
        out += Escaped(s_[i_++]);
      }
    }
    return out;
  }

 private:
  std::u16string Letters() {
    std::u16string name;
    while (i_ < s_.size() && IsLetter(s_[i_])) name += s_[i_++];
    return Upper(name);
  }

  std::u16string Command() {
    ++i_;  // the backslash
    Switch sw;
    sw.name = Letters();
    if (sw.name.empty()) return i_ < s_.size() ? Escaped(s_[i_++]) : u"";
    while (i_ + 1 < s_.size() && s_[i_] == u'\\' && IsLetter(s_[i_ + 1])) {
      ++i_;
      std::u16string option = Letters(), value;
      if (option == u"LC" || option == u"RC" || option == u"BC") {
        if (i_ < s_.size() && s_[i_] == u'\\') ++i_;
        if (i_ < s_.size()) value = s_[i_++];
      } else {
        while (i_ < s_.size() && (std::isdigit(s_[i_] < 128 ? s_[i_] : 'x') || s_[i_] == u' '))
          value += s_[i_++];
      }
      sw.options.emplace_back(option, value);
    }
    if (i_ < s_.size() && s_[i_] == u'(') {
      ++i_;
      sw.args.push_back(Sequence());
      while (i_ < s_.size() && s_[i_] == u',') {
        ++i_;
        sw.args.push_back(Sequence());
      }
      if (i_ < s_.size()) ++i_;  // ')'
    }
    return Latex(sw);
  }

  static std::u16string Option(const Switch& sw, const std::u16string& name) {
    for (const auto& [option, value] : sw.options)
      if (option == name) return value.empty() ? u" " : value;
    return {};
  }

  static std::u16string Brace(std::u16string s) { return u"{" + s + u"}"; }

  static std::u16string Delimiter(const std::u16string& d, const char16_t* fallback) {
    if (d.empty()) return fallback;
    if (d == u"{") return u"\\{";
    if (d == u"}") return u"\\}";
    return d;
  }

  static std::u16string Overstrike(const Switch& sw) {
    std::u16string mark, base;
    for (const std::u16string& arg : sw.args) {
      if (arg.find(u'→') != std::u16string::npos)
        mark = u"\\vec";
      else if (arg.find(u'⌒') != std::u16string::npos)
        mark = u"\\overarc";
      else if (arg.find(u'˙') != std::u16string::npos)
        mark = u"\\dot";
      else if (arg == u"^{-}")
        mark = u"\\overline";
      else
        base += arg;
    }
    return mark.empty() ? base : mark + Brace(base);
  }

  static std::u16string Latex(const Switch& sw) {
    const auto arg = [&](size_t n) { return n < sw.args.size() ? sw.args[n] : std::u16string(); };
    std::u16string all;
    for (const std::u16string& a : sw.args) all += (all.empty() ? u"" : u",") + a;
    if (sw.name == u"F") return u"\\frac" + Brace(arg(0)) + Brace(arg(1));
    if (sw.name == u"R") {
      if (sw.args.size() < 2) return u"\\sqrt" + Brace(arg(0));
      return u"\\sqrt" + (arg(0).empty() ? u"" : u"[" + arg(0) + u"]") + Brace(arg(1));
    }
    if (sw.name == u"S") return (Option(sw, u"DO").empty() ? u"^" : u"_") + Brace(arg(0));
    if (sw.name == u"O") return Overstrike(sw);
    if (sw.name == u"B") {
      const std::u16string left = Option(sw, u"LC"), right = Option(sw, u"RC");
      if (!left.empty() && right.empty())
        return u"\\left" + Delimiter(left, u"(") + all + u"\\right.";
      return u"\\left" + Delimiter(left, u"(") + all + u"\\right" + Delimiter(right, u")");
    }
    if (sw.name == u"A") {
      std::u16string rows;
      for (const std::u16string& a : sw.args) rows += (rows.empty() ? u"" : u"\\\\") + a;
      return u"\\begin{array}{l}" + rows + u"\\end{array}";
    }
    return all;
  }

  const std::u16string& s_;
  size_t i_ = 0;
};

}  // namespace

std::u16string EqCodeToLatex(const std::u16string& code) {
  EqParser parser(code);
  std::u16string latex = parser.All();
  const size_t first = latex.find_first_not_of(u' ');
  if (first == std::u16string::npos) return {};
  return latex.substr(first, latex.find_last_not_of(u' ') - first + 1);
}

}  // namespace lp::gallery
