#include <algorithm>
#include <string>
#include <utility>

#include "formula/generators.h"
#include "formula/scanner.h"
#include "runtime/text.h"
#include "toolkit/chars.h"

namespace lp {
namespace {

using S = std::u16string;

// The Symbol font's keyboard layout: the key x of "@x" and its TeX name.
// F, J, V, v, o and O are mapped as the layout has them.
const std::pair<char16_t, const char16_t*> kGreek[] = {
    {u'a', u" \\alpha "},   {u'A', u" \\Alpha "},    {u'b', u" \\beta "},
    {u'B', u" \\Beta "},    {u'c', u" \\chi "},      {u'C', u" \\Chi "},
    {u'd', u" \\delta "},   {u'D', u" \\Delta "},    {u'e', u" \\varepsilon "},
    {u'E', u" \\Epsilon "}, {u'f', u" \\varphi "},   {u'F', u" \\vartheta "},
    {u'g', u" \\gamma "},   {u'G', u" \\Gamma "},    {u'h', u" \\eta "},
    {u'H', u" \\Eta "},     {u'i', u" \\iota "},     {u'I', u" \\Iota "},
    {u'j', u" \\phi "},     {u'J', u" \\Phi "},      {u'k', u" \\kappa "},
    {u'K', u" \\Kappa "},   {u'l', u" \\lambda "},   {u'L', u" \\Lambda "},
    {u'm', u" \\mu "},      {u'M', u" \\Mu "},       {u'n', u" \\nu "},
    {u'N', u" \\Nu "},      {u'o', u" o "},          {u'O', u" {\\mathrm O} "},
    {u'p', u" \\pi "},      {u'P', u" \\Pi "},       {u'q', u" \\theta "},
    {u'Q', u" \\Theta "},   {u'r', u" \\rho "},      {u'R', u" \\Rho "},
    {u's', u" \\sigma "},   {u'S', u" \\Sigma "},    {u't', u" \\tau "},
    {u'T', u" \\Tau "},     {u'u', u" \\upsilon "},  {u'U', u" \\Upsilon "},
    {u'v', u" \\varpi "},   {u'V', u" \\varsigma "}, {u'w', u" \\omega "},
    {u'W', u" \\Omega "},   {u'x', u" \\xi "},       {u'X', u" \\Xi "},
    {u'y', u" \\psi "},     {u'Y', u" \\Psi "},      {u'z', u" \\zeta "},
    {u'Z', u" \\Zeta "},
};

S Digits(size_t n) {
  std::string ascii = std::to_string(n);
  return S(ascii.begin(), ascii.end());
}

S ReplaceFirst(const S& s, const S& find, const S& with) {
  size_t at = s.find(find);
  return at == S::npos ? s : s.substr(0, at) + with + s.substr(at + find.size());
}

const char16_t* GreekName(const S& key) {
  if (key.size() != 1) return nullptr;
  for (const auto& [letter, name] : kGreek)
    if (letter == key[0]) return name;
  return nullptr;
}

class LatexGenerator {
 public:
  LatexGenerator(const FormulaSettings& settings, LatexPlaceholders& marks,
                 const DriverControl& control)
      : settings_(settings), marks_(marks), control_(control) {}

  S Convert(const S& text) {
    S s = RunFormulaDriver(
        PiToGreek(text), GeneratorKind::kLatex,
        [this](const S& t, int op, int32_t pos) { return RewriteAt(t, op, pos); }, control_);
    return LatexGreek(FinalSigns(s));
  }

 private:
  S RewriteAt(const S& s, int op, int32_t pos) {
    switch (op) {
      case 1:
        return Root(s, pos, 3);
      case 2:
        return Root(s, pos, 1);
      case 3:
        return Script(s, pos, u"^");
      case 4:
        return Script(s, pos, u"_");
      case 5:
        return Fraction(s, pos);
      case 6:
      case 7:
      case 8:
        return Arrangement(s, pos);
      case 9:
        return s;  // no arc in TeX: the driver meets hu forever
      case 10:
        return Vector(s, pos);
      case 11:
        return EquationSystem(s, pos);
      default:
        return Overline(s, pos);
    }
  }

  S Group(const S& s, int32_t pos) { return MatchBracket(s, pos, control_.prompt); }

  // One character only behind a short root, "@" included; the text behind
  // a root is always kept.
  S Root(const S& s, int32_t pos, int32_t opLength) {
    S before = Left(s, pos - 1);
    int32_t at = pos + opLength;
    S c = CharAt(s, at);
    if (c != u"(") {
      S mark = marks_.NewPlaceholder(u"\\sqrt");
      return before + mark + u"{" + c + u"}" + Mid(s, at + 1);
    }
    S g = Group(s, at);
    S rest = Mid(s, at + static_cast<int32_t>(g.size()));
    S inner = GroupInside(CountOf(g, u"(") >= 2 ? Convert(g) : g);
    S mark = marks_.NewPlaceholder(u"\\sqrt");
    int32_t comma = InStr(inner, u",");
    if (comma == 0) return before + mark + u"{" + inner + u"}" + rest;
    return before + mark + u" [" + Left(inner, comma - 1) + u"]{" + Mid(inner, comma + 1) + u"}" +
           rest;
  }

  S Script(S s, int32_t pos, const S& literal) {
    if (CharAt(s, pos + 1) == u"(") {
      S g = Group(s, pos + 1);
      s = Replace(s, g, u"{" + GroupInside(g) + u"}");
    }
    return Left(s, pos - 1) + marks_.NewPlaceholder(literal) + Mid(s, pos + 1);
  }

  S Fraction(const S& s, int32_t pos) {
    S rawL = PrevGroup(s, pos - 1, control_.prompt);
    S rawR = NextGroup(s, pos + 1, control_.prompt);
    S l = StripOuterBrackets(rawL);
    S r = StripOuterBrackets(rawR);
    S target =
        settings_.blFS ? u"\\frac{" + r + u"}{" + l + u"}" : u"\\frac{" + l + u"}{" + r + u"}";
    return Replace(s, rawL + u"/" + rawR, target);
  }

  S Arrangement(const S& s, int32_t pos) {
    S letter = CharAt(s, pos);
    S g = Group(s, pos + 1);
    std::vector<S> pieces = SplitText(GroupInside(g), u',');
    pieces.resize(std::max<size_t>(pieces.size(), 2));
    if (settings_.blPLZH) std::swap(pieces[0], pieces[1]);
    return Replace(s, letter + g, letter + u"^{" + pieces[0] + u"}_{" + pieces[1] + u"}");
  }

  S Vector(const S& s, int32_t pos) {
    if (CharAt(s, pos + 2) != u"(") return s;
    S g = Group(s, pos + 2);
    return Replace(s, u"xl" + g, u"\\vec{" + Trim(GroupInside(g)) + u"}");
  }

  S EquationSystem(const S& s, int32_t pos) {
    if (CharAt(s, pos + 3) != u"(") return s;
    S g = Group(s, pos + 3);
    S joined;
    bool first = true;
    for (const S& piece : SplitText(GroupInside(StrConvNarrow(g)), u',')) {
      joined += (first ? u"" : u" \\\\ ") + Trim(Convert(piece));
      first = false;
    }
    return Replace(s, u"fcz" + g,
                   u"\\left\\{ \\begin{align} " + joined + u" \\\\ \\end{align}\\right.");
  }

  S Overline(const S& s, int32_t pos) {
    S x = CharAt(s, pos - 1);
    if (x != u")") return Replace(s, x + u"bar", u"\\overline{" + x + u"}");
    S g = Group(s, pos - 1);
    return Replace(s, g + u"bar", u"\\overline{" + GroupInside(g) + u"}");
  }

  static S FinalSigns(S s) {
    static const std::pair<const char16_t*, const char16_t*> signs[] = {{u">=", u" \\ge "},
                                                                        {u"<=", u" \\le "},
                                                                        {u"<>", u" \\ne "},
                                                                        {u"+-", u" \\pm "},
                                                                        {u"-+", u" \\mp "}};
    for (const auto& [from, to] : signs) s = Replace(s, from, to);
    return s;
  }

  const FormulaSettings& settings_;
  LatexPlaceholders& marks_;
  const DriverControl& control_;
};

}  // namespace

S LatexPlaceholders::NewPlaceholder(const S& literal) {
  LatexTexts.push_back(literal);
  LatexMarks.push_back(u"MyRStr" + Digits(LatexMarks.size()));
  return LatexMarks.back();
}

S LatexPlaceholders::RestorePlaceholders(const S& text) const {
  S s = text;
  for (size_t n = 1; n < LatexMarks.size(); ++n) s = Replace(s, LatexMarks[n], LatexTexts[n]);
  return s;
}

// Keys first become grave accents; then each key, in order, names the first
// accent left. A key outside the table leaves its accent for the next one.
S LatexGreek(const S& text) {
  S s;
  std::vector<S> keys;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] != u'@') {
      s += text[i];
      continue;
    }
    s += u'`';
    keys.push_back(i + 1 < text.size() ? S(1, text[i + 1]) : S());
    ++i;
  }
  for (const S& key : keys)
    if (const char16_t* name = GreekName(key)) s = ReplaceFirst(s, u"`", name);
  return s;
}

S FormulaToLatex(const S& text, const FormulaSettings& settings, LatexPlaceholders& marks,
                 const DriverControl& control) {
  return LatexGenerator(settings, marks, control).Convert(text);
}

S FormulaToFinishedLatex(const S& text, const FormulaSettings& settings,
                         const DriverControl& control) {
  LatexPlaceholders marks;
  return marks.RestorePlaceholders(FormulaToLatex(text, settings, marks, control));
}

}  // namespace lp
