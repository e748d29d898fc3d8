#include "formula/eq_to_omml.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>

#include "formula/enclosed_characters.h"
#include "formula/eq_code.h"
#include "formula/omml_writer.h"

namespace lp {
namespace {

using omml::Xml;

// The Symbol font's characters from U+0020 to U+00FF; \0 where it draws a
// piece of a larger sign rather than a character of its own.
constexpr char16_t kSymbolFont[] =
    u" !∀#∃%&∋()∗+,−./0123456789:;<=>?≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_\0"
    u"αβχδεφγηιϕκλμνοπθρστυϖωξψζ{|}∼\0"
    u"\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
    u"ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓°±″≥×∝∂•÷≠≡≈…\0\0↵"
    u"ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓◊〈®©™∑\0\0\0\0\0\0\0\0\0\0\0〉∫"
    u"\0\0\0\0\0\0\0\0\0\0\0\0\0";
static_assert(sizeof(kSymbolFont) / sizeof(char16_t) == 0xE0 + 1);

bool Named(const std::u16string& font, const std::u16string& name) {
  if (font.size() != name.size()) return false;
  for (size_t i = 0; i < font.size(); ++i) {
    char16_t a = font[i] >= u'A' && font[i] <= u'Z' ? font[i] - u'A' + u'a' : font[i];
    if (a != name[i]) return false;
  }
  return true;
}

bool IsLetter(char16_t c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'Α' && c <= u'ω') ||
         c == u'ϑ' || c == u'ϕ' || c == u'ϖ' || c == u'ϒ';
}

// The signs the font pass widened, and the hyphen, as math writes them.
char16_t MathSign(char16_t c) {
  switch (c) {
    case u'＋':
      return u'+';
    case u'－':
    case u'-':
      return u'−';
    case u'＝':
      return u'=';
    case u'＞':
      return u'>';
    case u'＜':
      return u'<';
    default:
      return 0;
  }
}

std::string Style(const word::CodeCharacter& c, char16_t shown) {
  if (!IsLetter(shown)) return c.bold ? "b" : "";
  return c.bold ? (c.italic ? "bi" : "b") : (c.italic ? "i" : "p");
}

class OmmlBuilder {
 public:
  explicit OmmlBuilder(const std::vector<word::CodeCharacter>& code) : code_(code) {
    for (const auto& c : code) mainSize_ = std::max(mainSize_, c.size);
  }

  Xml Row(const EqRow& row) {
    std::vector<Item> items;
    std::vector<size_t> open;  // the items that open a bracket or a bar not yet closed
    for (size_t i = 0; i < row.size(); ++i) {
      const EqNode& n = row[i];
      const char16_t ch = n.kind == EqKind::kChar ? n.ch : 0;
      if (IsScript(n)) {
        const bool pair = i + 1 < row.size() && IsScript(row[i + 1]) && row[i + 1].kind != n.kind;
        items.push_back({ScriptsOn(items, n, pair ? &row[++i] : nullptr)});
      } else if (n.kind == EqKind::kOverstrike) {
        items.push_back({Overstrike(items, n)});
      } else if (n.kind == EqKind::kDisplace) {
        if (Xml gap = Gap(n); !gap.empty()) items.push_back({gap});
      } else if (!Close(items, open, ch)) {
        if (ch == u'(' || ch == u'|') open.push_back(items.size());
        items.push_back({Node(n), ch});
      }
    }
    return Join(items, 0);
  }

 private:
  struct Item {
    Xml xml;
    char16_t ch = 0;  // the character of a character's run
  };

  static Xml Join(const std::vector<Item>& items, size_t from) {
    Xml out;
    for (size_t i = from; i < items.size(); ++i) out += items[i].xml;
    return out;
  }

  // A ")" or "|" that closes what an earlier "(" or "|" opened makes the
  // items between them one delimiter, so that a script behind it raises the
  // whole bracket and the bracket grows with what it holds.
  static bool Close(std::vector<Item>& items, std::vector<size_t>& open, char16_t ch) {
    if (ch != u')' && ch != u'|') return false;
    const char16_t opening = ch == u')' ? u'(' : u'|';
    auto it = std::find_if(open.rbegin(), open.rend(),
                           [&](size_t at) { return items[at].ch == opening; });
    if (it == open.rend()) return false;
    const size_t at = *it;
    open.erase(std::prev(it.base()), open.end());
    const std::u16string left(1, opening), right(1, ch);
    items[at] = {omml::Delimited(left, right, Join(items, at + 1))};
    items.resize(at + 1);
    return true;
  }

  // What a script stands on: the item before it.
  static Xml TakeBase(std::vector<Item>& items) {
    if (items.empty()) return {};
    Xml base = std::move(items.back().xml);
    items.pop_back();
    return base;
  }

  static bool IsScript(const EqNode& n) {
    return n.kind == EqKind::kRaised || n.kind == EqKind::kLowered;
  }

  Xml ScriptsOn(std::vector<Item>& items, const EqNode& a, const EqNode* b) {
    Xml sub, sup;
    bool hasSub = false, hasSup = false;
    for (const EqNode* s : {&a, b}) {
      if (!s) continue;
      const bool down = s->kind == EqKind::kLowered;
      (down ? sub : sup) = Row(s->rows[0]);
      (down ? hasSub : hasSup) = true;
    }
    return omml::Scripts(TakeBase(items), sub, sup, hasSub, hasSup);
  }

  // The one sign a raised part of an overstrike holds, or 0.
  static char16_t RaisedSign(const EqRow& row) {
    if (row.size() != 1 || row[0].kind != EqKind::kRaised || row[0].rows[0].size() != 1) return 0;
    const EqNode& sign = row[0].rows[0][0];
    return sign.kind == EqKind::kChar ? sign.ch : 0;
  }

  // \O of a raised and a lowered script: both on the character before; \O
  // of a raised sign and a text: the sign as an accent of the text; of a
  // raised text and a text: the one over the other.
  Xml Overstrike(std::vector<Item>& items, const EqNode& n) {
    if (n.rows.size() != 2) throw EqCodeError("overstrike of other than two parts");
    const EqRow &a = n.rows[0], &b = n.rows[1];
    if (a.size() == 1 && b.size() == 1 && IsScript(a[0]) && IsScript(b[0]) &&
        a[0].kind != b[0].kind)
      return ScriptsOn(items, a[0], &b[0]);
    const bool signFirst = RaisedSign(a) != 0;
    const char16_t sign = signFirst ? RaisedSign(a) : RaisedSign(b);
    const Xml base = Row(signFirst ? b : a);
    switch (sign) {
      case u'⌒':
        return omml::GroupCharacter(u"\u23DC", base);
      case u'→':
        return omml::Accent(u"\u20D7", base);
      case u'˙':
      case u'·':
      case u'.':
        return omml::Accent(u"\u0307", base);
      case u'-':
      case u'－':
      case u'¯':
      case u'‾':
      case u'−':
        return omml::Bar(base);
      default:
        break;
    }
    // A raised text over another: the reading over its characters, as
    // Word's phonetic guide writes it.
    const bool overFirst = IsRaisedText(a);
    if (!overFirst && !IsRaisedText(b)) throw EqCodeError("overstrike lumenpad does not convert");
    const EqRow &over = overFirst ? a : b, &under = overFirst ? b : a;
    return omml::UpperLimit(Row(under), Row(over[0].rows[0]));
  }

  static bool IsRaisedText(const EqRow& row) {
    return row.size() == 1 && row[0].kind == EqKind::kRaised;
  }

  Xml Node(const EqNode& n) {
    switch (n.kind) {
      case EqKind::kChar:
        return Char(n);
      case EqKind::kFraction:
        return omml::Fraction(Row(n.rows[0]), Row(n.rows[1]));
      case EqKind::kRadical:
        return omml::Radical(Degree(n.rows[0]), Row(n.rows[1]));
      case EqKind::kOverline:
      case EqKind::kUnderline:
        return omml::Bar(Row(n.rows[0]), n.kind == EqKind::kOverline);
      case EqKind::kBrackets:
        return omml::Delimited(Side(n.open), Side(n.close), Row(n.rows[0]));
      case EqKind::kArray: {
        std::vector<Xml> rows;
        for (const EqRow& r : n.rows) rows.push_back(Row(r));
        return n.columns > 1 ? omml::Matrix(rows, n.columns) : omml::EquationArray(rows);
      }
      case EqKind::kBox:
        return omml::BorderBox(Row(n.rows[0]));
      case EqKind::kNary: {
        const bool sumOrProduct = n.ch == u'∑' || n.ch == u'∏';
        const omml::NaryLook look{std::u16string(1, n.ch), sumOrProduct && !n.besideLimits,
                                  n.grows};
        return omml::Nary(look, Row(n.rows[0]), Row(n.rows[1]), !n.rows[0].empty(),
                          !n.rows[1].empty(), Row(n.rows[2]));
      }
      case EqKind::kEnclosed:
        return Enclosed(n);
      case EqKind::kList: {
        Xml list;
        for (size_t i = 0; i < n.rows.size(); ++i)
          list += (i ? omml::Run(u",") : "") + Row(n.rows[i]);
        return list;
      }
      default:  // scripts and overstrikes are read by Row
        throw EqCodeError("script outside a row");
    }
  }

  static std::u16string Side(char16_t bracket) {
    return bracket ? std::u16string(1, bracket) : std::u16string();
  }

  // The index of a radical is written as a lowered script: its text.
  Xml Degree(const EqRow& row) {
    if (row.size() == 1 && IsScript(row[0])) return Row(row[0].rows[0]);
    return Row(row);
  }

  // A character as it shows: its look, and the Unicode character of a
  // symbol font's one or of a sign the font pass widened.
  struct Shown {
    word::CodeCharacter look;
    char16_t ch;
    std::u16string font;
  };

  Shown Show(const EqNode& n) const {
    const word::CodeCharacter c =
        n.source < code_.size() ? code_[n.source] : word::CodeCharacter{n.ch, {}, false, false, 0};
    Shown out{c, c.ch, c.font};
    if (Named(c.font, u"symbol")) {
      out = {c, SymbolFontCharacter(c.ch), {}};
    } else if (c.ch == 0xF06D && Named(c.font, u"euclid extra")) {
      out = {c, u'∓', {}};
    } else if (char16_t sign = MathSign(c.ch)) {
      out = {c, sign, {}};
    } else if (c.ch >= 0xE000 && c.ch <= 0xF8FF) {
      out.ch = 0;  // a private character of a font this converter does not know
    }
    if (out.ch == 0) throw EqCodeError("a character of a symbol font");
    return out;
  }

  Xml RunOf(const Shown& s, const std::u16string& text) const {
    return omml::Run(text, Style(s.look, s.ch), WordProps(s.font));
  }

  // A blank between words is ordinary text: math text drops its spaces.
  Xml Char(const EqNode& n) const {
    const Shown s = Show(n);
    if (s.ch == u' ' || s.ch == u'\u3000')
      return omml::NormalText(std::u16string(1, s.ch), WordProps(s.font));
    return RunOf(s, std::u16string(1, s.ch));
  }

  // A move forward is space: em, en and thin spaces as near the distance as
  // they come at the formula's size; with \LI a line under it, the blank a
  // pupil writes in. A move back overlaps, which an equation cannot: the
  // text just follows.
  Xml Gap(const EqNode& n) const {
    const float size = mainSize_ > 0 ? mainSize_ : 10.5f;
    const long quarters = std::lround(n.points / size * 4);
    if (quarters <= 0) return {};
    std::u16string space(static_cast<size_t>(quarters / 4), u'\u2003');
    if (quarters % 4 >= 2) space += u'\u2002';
    if (quarters % 2) space += u'\u2009';
    const Xml run = omml::NormalText(space, WordProps({}));
    return n.line ? omml::Bar(run, false) : run;
  }

  // The character in a circle as the one character Unicode has for it (①,
  // Ⓐ, ㊞); else the text in a box for the square, or the one character
  // with the combining enclosure for the others, as ordinary text, which
  // lays a combining mark round its character where math text does not.
  Xml Enclosed(const EqNode& n) {
    const EqRow& text = n.rows[0];
    std::u16string chars;
    for (const EqNode& c : text) chars += c.kind == EqKind::kChar ? Show(c).ch : u'\0';
    if (char16_t one = EnclosedCharacter(n.ch, chars)) return RunOf(Show(text[0]), {one});
    if (n.ch == u'□') return omml::BorderBox(Row(text));
    if (text.size() != 1 || text[0].kind != EqKind::kChar)
      throw EqCodeError("more than one character in a circle, triangle or diamond");
    const char16_t mark = n.ch == u'○' ? u'\u20DD' : n.ch == u'◇' ? u'\u20DF' : u'\u20E4';
    const Shown s = Show(text[0]);
    return omml::NormalText({s.ch, mark}, WordProps(s.font));
  }

  std::string WordProps(const std::u16string& font) const {
    std::string props;
    if (!font.empty()) {
      const Xml name = omml::Escape(font);
      props += "<w:rFonts w:ascii=\"" + name + "\" w:hAnsi=\"" + name + "\"/>";
    }
    if (mainSize_ > 0) {
      char size[32];
      std::snprintf(size, sizeof size, "%d", static_cast<int>(mainSize_ * 2 + 0.5f));
      props += std::string("<w:sz w:val=\"") + size + "\"/>";
    }
    return props;
  }

  const std::vector<word::CodeCharacter>& code_;
  float mainSize_ = 0;  // the formula's own size: its scripts were shrunk from it
};

}  // namespace

char16_t SymbolFontCharacter(char16_t ch) {
  if (ch >= 0xF020 && ch <= 0xF0FF) ch = static_cast<char16_t>(ch - 0xF000);
  return ch >= 0x20 && ch <= 0xFF ? kSymbolFont[ch - 0x20] : 0;
}

std::optional<std::string> EqFieldToOmml(const std::vector<word::CodeCharacter>& code) {
  std::u16string text;
  for (const auto& c : code) text += c.ch;
  try {
    EqRow row = ParseEqCode(text);
    if (row.empty()) return std::nullopt;
    return omml::Math(OmmlBuilder(code).Row(row));
  } catch (const EqCodeError&) {
    return std::nullopt;
  }
}

}  // namespace lp
