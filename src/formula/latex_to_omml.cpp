#include "formula/latex_to_omml.h"

#include <map>
#include <set>
#include <stdexcept>
#include <vector>

#include "formula/omml_writer.h"

namespace lp {
namespace {

using namespace omml;

struct BadTex : std::runtime_error {
  BadTex() : std::runtime_error("bad TeX") {}
};

const std::map<std::u16string, std::u16string>& Symbols() {
  static const std::map<std::u16string, std::u16string> symbols = {
      {u"alpha", u"α"},      {u"beta", u"β"},    {u"chi", u"χ"},     {u"delta", u"δ"},
      {u"varepsilon", u"ε"}, {u"epsilon", u"ϵ"}, {u"varphi", u"φ"},  {u"vartheta", u"ϑ"},
      {u"gamma", u"γ"},      {u"eta", u"η"},     {u"iota", u"ι"},    {u"phi", u"ϕ"},
      {u"kappa", u"κ"},      {u"lambda", u"λ"},  {u"mu", u"μ"},      {u"nu", u"ν"},
      {u"pi", u"π"},         {u"theta", u"θ"},   {u"rho", u"ρ"},     {u"sigma", u"σ"},
      {u"tau", u"τ"},        {u"upsilon", u"υ"}, {u"varpi", u"ϖ"},   {u"varsigma", u"ς"},
      {u"omega", u"ω"},      {u"xi", u"ξ"},      {u"psi", u"ψ"},     {u"zeta", u"ζ"},
      {u"Alpha", u"Α"},      {u"Beta", u"Β"},    {u"Chi", u"Χ"},     {u"Delta", u"Δ"},
      {u"Epsilon", u"Ε"},    {u"Gamma", u"Γ"},   {u"Eta", u"Η"},     {u"Iota", u"Ι"},
      {u"Phi", u"Φ"},        {u"Kappa", u"Κ"},   {u"Lambda", u"Λ"},  {u"Mu", u"Μ"},
      {u"Nu", u"Ν"},         {u"Pi", u"Π"},      {u"Theta", u"Θ"},   {u"Rho", u"Ρ"},
      {u"Sigma", u"Σ"},      {u"Tau", u"Τ"},     {u"Upsilon", u"Υ"}, {u"Omega", u"Ω"},
      {u"Xi", u"Ξ"},         {u"Psi", u"Ψ"},     {u"Zeta", u"Ζ"},    {u"ge", u"≥"},
      {u"le", u"≤"},         {u"ne", u"≠"},      {u"pm", u"±"},      {u"mp", u"∓"},
      {u"{", u"{"},          {u"}", u"}"},       {u",", u" "},       {u" ", u" "},
  };
  return symbols;
}

// Recursive descent over the TeX text; each parse routine returns the OMML
// of what it read.
class Parser {
 public:
  explicit Parser(std::u16string tex) : tex_(std::move(tex)) {}

  Xml Document() {
    Xml body = Join(Sequence());
    if (pos_ < tex_.size()) throw BadTex();
    return Math(body);
  }

 private:
  bool AtEnd() const { return pos_ >= tex_.size(); }
  char16_t Peek() const { return AtEnd() ? u'\0' : tex_[pos_]; }
  void SkipBlanks() {
    while (!AtEnd() && (Peek() == u' ' || Peek() == u'&')) ++pos_;
  }
  bool LooksAt(const std::u16string& word) const {
    return tex_.compare(pos_, word.size(), word) == 0;
  }

  // Items up to a closing brace, a row break, \end or \right, and inside
  // parentheses up to the closing one.
  std::vector<Xml> Sequence() {
    std::vector<Xml> items;
    for (SkipBlanks(); !AtEnd(); SkipBlanks()) {
      if (Peek() == u'}' || LooksAt(u"\\\\") || LooksAt(u"\\end") || LooksAt(u"\\right")) break;
      if (Peek() == u')' && openParentheses_ > 0) break;
      if (Peek() == u'^' || Peek() == u'_') {
        Xml base = items.empty() ? Xml() : items.back();
        if (!items.empty()) items.pop_back();
        items.push_back(Scripts(base));
      } else {
        items.push_back(Atom());
      }
    }
    return items;
  }

  // x^a, x_b and x_b^a in either order.
  Xml Scripts(const Xml& base) {
    Xml sup, sub;
    bool hasSup = false, hasSub = false;
    for (SkipBlanks(); (Peek() == u'^' && !hasSup) || (Peek() == u'_' && !hasSub); SkipBlanks()) {
      bool up = Peek() == u'^';
      ++pos_;
      (up ? sup : sub) = Argument();
      (up ? hasSup : hasSub) = true;
    }
    return omml::Scripts(base, sub, sup, hasSub, hasSup);
  }

  // One argument: a braced group, a command with its own arguments, or one
  // character.
  Xml Argument() {
    SkipBlanks();
    if (AtEnd()) throw BadTex();
    return Atom();
  }

  Xml Group() {
    ++pos_;  // {
    Xml inner = Join(Sequence());
    if (Peek() != u'}') throw BadTex();
    ++pos_;
    return inner;
  }

  Xml Atom() {
    char16_t c = Peek();
    if (c == u'{') return Group();
    if (c == u'}') throw BadTex();
    if (c == u'\\') return Command();
    if (c == u'(') return Parenthesised();
    ++pos_;
    return Run(std::u16string(1, c));
  }

  // (x-a) becomes one delimiter, so that a script behind it raises the whole
  // bracket as a built-up equation does, and readers that pair brackets
  // never see a lone one. An unmatched "(" stays a plain character; it is
  // remembered, so that text behind many of them is read once, not once per
  // way of pairing them.
  Xml Parenthesised() {
    const size_t open = pos_++;
    if (unmatched_.count(open)) return Run(u"(");
    ++openParentheses_;
    Xml inner = Join(Sequence());
    --openParentheses_;
    if (Peek() != u')') {
      unmatched_.insert(open);
      pos_ = open + 1;
      return Run(u"(");
    }
    ++pos_;
    return Wrap("d", Wrap("e", inner));
  }

  std::u16string CommandName() {
    ++pos_;  // backslash
    size_t start = pos_;
    while (!AtEnd() && ((Peek() >= u'a' && Peek() <= u'z') || (Peek() >= u'A' && Peek() <= u'Z')))
      ++pos_;
    if (pos_ == start && !AtEnd()) ++pos_;  // a one-character command such as \{
    return tex_.substr(start, pos_ - start);
  }

  Xml Command() {
    std::u16string name = CommandName();
    if (name == u"frac") {
      Xml num = Argument();
      return Fraction(num, Argument());
    }
    if (name == u"sqrt") return Root();
    if (name == u"overline") return Bar(Argument());
    if (name == u"vec") return Accent(u"\u20D7", Argument());
    if (name == u"mathrm") return Upright();
    if (name == u"left") return Delimited();
    if (name == u"begin") return Aligned();
    auto symbol = Symbols().find(name);
    if (symbol == Symbols().end()) throw BadTex();
    return Run(symbol->second);
  }

  Xml Root() {
    SkipBlanks();
    if (Peek() != u'[') return Radical({}, Argument());
    ++pos_;
    std::vector<Xml> degree;
    for (SkipBlanks(); Peek() != u']'; SkipBlanks()) {
      if (AtEnd()) throw BadTex();
      degree.push_back(Atom());
    }
    ++pos_;
    return Radical(Join(degree), Argument());
  }

  // {\mathrm O}: the letter set upright.
  Xml Upright() {
    SkipBlanks();
    std::u16string text;
    if (Peek() != u'{') {
      text = std::u16string(1, Peek());
      ++pos_;
      return Run(text, "p");
    }
    for (++pos_; Peek() != u'}'; ++pos_) {
      if (AtEnd()) throw BadTex();
      if (Peek() != u' ') text += Peek();
    }
    ++pos_;
    return Run(text, "p");
  }

  std::u16string Delimiter() {
    SkipBlanks();
    if (AtEnd()) throw BadTex();
    if (Peek() == u'\\') {
      std::u16string name = CommandName();
      if (name == u"{" || name == u"}") return name;
      throw BadTex();
    }
    std::u16string d(1, Peek());
    ++pos_;
    return d == u"." ? std::u16string() : d;
  }

  Xml Delimited() {
    std::u16string open = Delimiter();
    Xml inner = Join(Sequence());
    if (!LooksAt(u"\\right")) throw BadTex();
    pos_ += 6;
    std::u16string close = Delimiter();
    return omml::Delimited(open, close, inner);
  }

  // \begin{align} rows \\ rows \\ \end{align}: one equation array.
  Xml Aligned() {
    std::u16string env = EnvironmentName();
    std::vector<Xml> rows;
    for (;;) {
      Xml row = Join(Sequence());
      if (LooksAt(u"\\\\")) {
        pos_ += 2;
        rows.push_back(row);
        continue;
      }
      if (!LooksAt(u"\\end")) throw BadTex();
      if (!row.empty()) rows.push_back(row);
      pos_ += 4;
      if (EnvironmentName() != env) throw BadTex();
      return EquationArray(rows);
    }
  }

  std::u16string EnvironmentName() {
    SkipBlanks();
    if (Peek() != u'{') throw BadTex();
    size_t close = tex_.find(u'}', pos_);
    if (close == std::u16string::npos) throw BadTex();
    std::u16string name = tex_.substr(pos_ + 1, close - pos_ - 1);
    pos_ = close + 1;
    return name;
  }

  std::u16string tex_;
  size_t pos_ = 0;
  int openParentheses_ = 0;
  std::set<size_t> unmatched_;
};

std::u16string WithoutDollars(std::u16string tex) {
  while (!tex.empty() && tex.front() == u'$') tex.erase(0, 1);
  while (!tex.empty() && tex.back() == u'$') tex.pop_back();
  return tex;
}

}  // namespace

std::optional<std::string> LatexToOmml(const std::u16string& tex) {
  try {
    return Parser(WithoutDollars(tex)).Document();
  } catch (const BadTex&) {
    return std::nullopt;
  }
}

}  // namespace lp
