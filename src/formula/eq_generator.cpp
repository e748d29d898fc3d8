#include "formula/generators.h"
#include "formula/scanner.h"
#include "runtime/text.h"
#include "toolkit/chars.h"

#include <algorithm>

namespace lp {
namespace {

using S = std::u16string;

int32_t Length(const S& s) {
  return static_cast<int32_t>(s.size());
}

class EqGenerator {
 public:
  EqGenerator(const FormulaSettings& settings, const DriverControl& control)
      : settings_(settings), control_(control) {}

  S Convert(const S& text) {
    S s = PiToGreek(Replace(text, u"sqrt", u"sqr"));
    return RunFormulaDriver(
        s, GeneratorKind::kEq,
        [this](const S& t, int op, int32_t pos) { return RewriteAt(t, op, pos); }, control_);
  }

 private:
  S RewriteAt(const S& s, int op, int32_t pos) {
    switch (op) {
      case 1:
        return Root(s, pos, 3);
      case 2:
        return Root(s, pos, 1);
      case 3:
        return Superscript(s, pos);
      case 4:
        return Subscript(s, pos);
      case 5:
        return Fraction(s, pos);
      case 6:
      case 7:
      case 8:
        return Arrangement(s, pos);
      case 9:
        return Accent(s, pos, 2, u"\\o\\ac(\\S\\UP7(⌒),");
      case 10:
        return Accent(s, pos, 2, u"\\o\\ac(\\S\\UP7(→),");
      case 11:
        return EquationSystem(s, pos);
      default:
        return Overline(s, pos);
    }
  }

  S Group(const S& s, int32_t pos) { return MatchBracket(s, pos, control_.prompt); }

  // sqr and g differ only in what a root with an index does to the text
  // behind it: g keeps it, sqr drops it.
  S Root(const S& s, int32_t pos, int32_t opLength) {
    S op = Mid(s, pos, opLength);
    S before = Left(s, pos - 1);
    int32_t at = pos + opLength;
    S x = CharAt(s, at);
    if (x != u"(") {
      S operand = x == u"@" ? Mid(s, at, 2) : x;
      return Replace(s, op + operand, u"\\R(," + operand + u")");
    }
    S g = Group(s, at);
    S squareRoot = before + u"\\R(," + Mid(s, at + 1);
    if (CountOf(g, u"(") >= 2) {
      S inner = Convert(g);
      return inner.find(u',') == S::npos ? squareRoot : before + u"\\R" + inner;
    }
    int32_t comma = InStr(g, u",");
    if (comma == 0) return squareRoot;
    S index = Mid(g, 2, comma - 2);
    S radicand = Mid(g, comma + 1, std::max(Length(g) - 1 - comma, 0));
    S rest = opLength == 1 ? Mid(s, at + Length(g)) : S();
    return before + u"\\R(\\S\\DO(" + index + u")," + radicand + u")" + rest;
  }

  S Superscript(const S& s, int32_t pos) {
    S x = CharAt(s, pos + 1);
    if (x != u"(") return Replace(s, u"^" + x, u"\\S(" + x + u")");
    S g = Group(s, pos + 1);
    bool fraction = InStr(g, u"/") > 0 || InStr(g, u"\\F") > 0;
    return Left(s, pos - 1) + (fraction ? u"\\S\\UP8(" : u"\\S\\UP6(") + Mid(s, pos + 2);
  }

  S Subscript(const S& s, int32_t pos) {
    S x = CharAt(s, pos + 1);
    if (x == u"(") return Left(s, pos - 1) + u"\\S\\DO(" + Mid(s, pos + 2);
    if (!x.empty() && IsDigitChar(x[0])) x = NumberRun(s, pos + 1, false);
    return Replace(s, u"_" + x, u"\\S\\DO(" + x + u")");
  }

  S Fraction(const S& s, int32_t pos) {
    S rawL = LeftOperand(s, pos - 1, control_.prompt);
    S rawR = RightOperand(s, pos + 1, control_.prompt);
    S n = rawL;
    if (CharAt(s, pos - 1) == u")" && Group(s, pos - 1) == rawL) n = GroupInside(rawL);
    S d = rawR;
    if (CharAt(s, pos + 1) == u"(" && Group(s, pos + 1) == rawR) d = GroupInside(rawR);
    S target = settings_.blFS ? u"\\F(" + d + u"," + n + u")" : u"\\F(" + n + u"," + d + u")";
    return Replace(s, rawL + u"/" + rawR, target);
  }

  // A(n,m), P(n,m), C(n,m): the split pieces keep the group's own brackets.
  S Arrangement(const S& s, int32_t pos) {
    S letter = CharAt(s, pos);
    S g = Group(s, pos + 1);
    std::vector<S> parts = SplitText(g, u',');
    parts.resize(std::max<size_t>(parts.size(), 2));
    S above = parts[0];
    S below = parts[1];
    if (settings_.blPLZH) {
      above = u"(" + Left(parts[1], std::max(Length(parts[1]) - 1, 0));
      below = Mid(parts[0], 2) + u")";
    }
    return Replace(s, letter + g, letter + u"\\o(\\S\\UP5" + above + u"),\\S\\DO3(" + below + u")");
  }

  // hu and xl: without a bracket behind them the text stays as it is, and
  // the driver meets the same operator again.
  S Accent(const S& s, int32_t pos, int32_t opLength, const S& head) {
    if (CharAt(s, pos + opLength) != u"(") return s;
    S g = Group(s, pos + opLength);
    return Replace(s, Mid(s, pos, opLength) + g, head + Trim(GroupInside(g)) + u")");
  }

  S EquationSystem(const S& s, int32_t pos) {
    if (CharAt(s, pos + 3) != u"(") return s;
    S g = Group(s, pos + 3);
    S joined;
    bool first = true;
    for (const S& piece : SplitText(GroupInside(StrConvNarrow(g)), u',')) {
      joined += (first ? u"" : u",") + Trim(Convert(piece));
      first = false;
    }
    return Replace(s, u"fcz" + g, u"\\B\\lc\\{(\\a\\al(" + joined + u"))");
  }

  S Overline(const S& s, int32_t pos) {
    S x = CharAt(s, pos - 1);
    if (x != u")") return Replace(s, x + u"bar", u"\\o\\ac(\\S\\UP7(-)," + x + u")");
    S g = Group(s, pos - 1);
    return Replace(s, g + u"bar", u"\\x\\to(" + Trim(GroupInside(g)) + u")");
  }

  const FormulaSettings& settings_;
  const DriverControl& control_;
};

}  // namespace

S FormulaToEq(const S& text, const FormulaSettings& settings, const DriverControl& control) {
  return EqGenerator(settings, control).Convert(text);
}

MaskedGreek MaskGreek(const S& text) {
  MaskedGreek out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == u'@' && i + 1 < text.size()) {
      out.text += u'`';
      out.GreekChars.push_back(S(1, text[++i]));
      out.GreekUsed = true;
    } else {
      out.text += text[i];
    }
  }
  return out;
}

const std::vector<std::pair<S, S>>& WideSigns() {
  static const std::vector<std::pair<S, S>> signs = {{u">=", u"≥"}, {u"<=", u"≤"}, {u"+", u"＋"},
                                                     {u"-", u"－"}, {u"=", u"＝"}, {u">", u"＞"},
                                                     {u"<", u"＜"}};
  return signs;
}

S SignsToWide(const S& text) {
  S s = text;
  for (const auto& [from, to] : WideSigns()) s = Replace(s, from, to);
  return s;
}

}  // namespace lp
