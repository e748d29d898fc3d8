#include "formula/eq_code.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace lp {
namespace {

constexpr int kDeepest = 32;  // no formula nests further; a code that does is refused

bool IsLetter(char16_t c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool IsDigit(char16_t c) {
  return c >= u'0' && c <= u'9';
}

char16_t Upper(char16_t c) {
  return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - u'a' + u'A') : c;
}

// The closing partner of a bracket the \BC option names.
char16_t Mirror(char16_t open) {
  switch (open) {
    case u'(':
      return u')';
    case u'[':
      return u']';
    case u'{':
      return u'}';
    case u'<':
      return u'>';
    default:
      return open;
  }
}

enum Side { kTop = 1, kBottom = 2, kLeft = 4, kRight = 8, kAllSides = 15 };

// What the options of one switch said.
struct Options {
  bool down = false;
  int sides = 0;  // of a box: the kTop, kBottom, kLeft and kRight bits
  long columns = 1;
  char16_t open = u'(', close = u')';
  bool bracketsSet = false;
  char16_t sign = u'∫';  // of an integral: \SU, \PR or the character of \FC and \VC
  bool beside = false, grows = false;
  long points = 0;  // of a displacement: forward, or back when negative; of a script: how far
  bool line = false;
};

bool IsScript(const EqNode& n) {
  return n.kind == EqKind::kRaised || n.kind == EqKind::kLowered;
}

// The one character a part is, alone or raised or lowered; 0 if it is more.
char16_t LoneCharacter(const EqRow& part) {
  const EqRow* row = &part;
  if (row->size() == 1 && IsScript(row->front())) row = &row->front().rows[0];
  return row->size() == 1 && row->front().kind == EqKind::kChar ? row->front().ch : 0;
}

// The enclosure an overstrike's part draws round the other: the circle,
// square, triangle or diamond Word's enclosed characters are made of.
char16_t Enclosure(const EqRow& part) {
  const char16_t c = LoneCharacter(part);
  if (c == u'◯') return u'○';
  return c && std::u16string_view(u"○□△◇").find(c) != std::u16string_view::npos ? c : 0;
}

// A script raised further than the raised script right before it, as Word
// writes t² in an exponent: a script of that script's text.
bool RaisedHigher(const EqNode& n, const EqRow& row) {
  if (n.kind != EqKind::kRaised || row.empty() || row.back().kind != EqKind::kRaised) return false;
  return row.back().points > 0 && n.points > row.back().points;
}

// The text of a part out of the script that only moves it a little: to
// centre it in its enclosure, or a limit that stands over its sign anyway.
EqRow Unraised(EqRow part) {
  if (part.size() == 1 && IsScript(part[0])) return std::move(part[0].rows[0]);
  return part;
}

class EqParser {
 public:
  explicit EqParser(const std::u16string& code) : s_(code) {}

  EqRow Code() {
    SkipBlanks();
    if (Upper(At(pos_)) != u'E' || Upper(At(pos_ + 1)) != u'Q') throw EqCodeError("not EQ");
    pos_ += 2;
    return Row(0);
  }

 private:
  char16_t At(size_t i) const { return i < s_.size() ? s_[i] : u'\0'; }
  bool AtEnd() const { return pos_ >= s_.size(); }
  void SkipBlanks() {
    while (!AtEnd() && (s_[pos_] == u' ' || s_[pos_] == u'\u3000')) ++pos_;
  }

  EqNode Char(size_t at) {
    EqNode n;
    n.ch = s_[at];
    n.source = at;
    return n;
  }

  // Items up to the "," or ")" that ends an argument (inside a switch's
  // brackets) or to the end of the code. Brackets that are text pair up,
  // and a comma inside them is text.
  EqRow Row(int depth) {
    if (depth > kDeepest) throw EqCodeError("too deep");
    EqRow row;
    int open = 0;
    for (;;) {
      const size_t blank = pos_;
      SkipBlanks();
      if (AtEnd()) break;
      const char16_t c = s_[pos_];
      if (depth > 0 && open == 0 && (c == u',' || c == u')')) break;
      if (c == u'\\' && depth == 0 && At(pos_ + 1) == u'*') {
        SkipFormatSwitch();
        continue;
      }
      if (c == u'\\') {
        EqNode node = Backslash(depth);
        // EQ draws a script right behind an integral after the integrand, at
        // its height: the script is the integrand's.
        if (IsScript(node) && !row.empty() && row.back().kind == EqKind::kNary)
          row.back().rows[2].push_back(std::move(node));
        else if (RaisedHigher(node, row))
          row.back().rows[0].push_back(std::move(node));
        else
          row.push_back(std::move(node));
        continue;
      }
      if (c == u'(') ++open;
      if (c == u')' && open > 0) --open;
      // A blank between two words is a space of the text, as EQ shows it;
      // blanks elsewhere only set the code out.
      if (pos_ > blank && IsLetter(c) && !row.empty() && row.back().kind == EqKind::kChar &&
          IsLetter(row.back().ch))
        row.push_back(Char(blank));
      row.push_back(Char(pos_++));
    }
    return row;
  }

  // A switch of the field's format (\* MERGEFORMAT, the \* jc2 \* "Font:宋体"
  // \* hps10 of a phonetic guide) with its word or quoted text: it says
  // nothing of what the formula shows.
  void SkipFormatSwitch() {
    pos_ += 2;
    SkipBlanks();
    if (At(pos_) == u'"') {
      const size_t close = s_.find(u'"', pos_ + 1);
      pos_ = close == std::u16string::npos ? s_.size() : close + 1;
      return;
    }
    while (!AtEnd() && s_[pos_] != u' ' && s_[pos_] != u'\u3000' && s_[pos_] != u'\\') ++pos_;
  }

  // A switch with its options and arguments, or an escaped character.
  EqNode Backslash(int depth) {
    ++pos_;
    if (AtEnd()) throw EqCodeError("backslash at the end");
    if (!IsLetter(s_[pos_])) return Char(pos_++);
    const char16_t name = Upper(s_[pos_++]);
    if (IsLetter(At(pos_))) throw EqCodeError("unknown switch");
    Options o = ReadOptions();
    std::vector<EqRow> args = Arguments(depth);
    return Build(name, o, std::move(args));
  }

  Options ReadOptions() {
    Options o;
    for (SkipBlanks(); At(pos_) == u'\\' && IsLetter(At(pos_ + 1)); SkipBlanks()) {
      ++pos_;
      std::u16string word;
      while (IsLetter(At(pos_))) word += Upper(s_[pos_++]);
      Option(word, o);
    }
    return o;
  }

  // A number, negative too (Word writes a small lowering as a negative
  // raise); nothing when the option has none.
  std::optional<long> Number() {
    SkipBlanks();
    const bool negative = At(pos_) == u'-' && IsDigit(At(pos_ + 1));
    if (negative) ++pos_;
    if (!IsDigit(At(pos_))) return std::nullopt;
    long n = 0;
    while (IsDigit(At(pos_)) && n < 1000) n = n * 10 + (s_[pos_++] - u'0');
    while (IsDigit(At(pos_))) ++pos_;
    return negative ? -n : n;
  }

  char16_t BracketChar() {
    if (At(pos_) == u'\\') ++pos_;
    if (AtEnd()) throw EqCodeError("no bracket");
    return s_[pos_++];
  }

  void Option(const std::u16string& word, Options& o) {
    if (word == u"SU" || word == u"PR" || word == u"FC" || word == u"VC") {
      o.sign = word == u"SU" ? u'∑' : word == u"PR" ? u'∏' : BracketChar();
      o.grows = word == u"VC";
    } else if (word == u"IN") {
      o.beside = true;
    } else if (word == u"FO" || word == u"BA") {
      const long n = std::max(Number().value_or(0), 0L);
      o.points = word == u"FO" ? n : -n;
    } else if (word == u"LI") {
      o.line = true;
    } else if (word == u"UP" || word == u"DO") {
      o.down = word == u"DO";
      o.points = Number().value_or(0);
    } else if (word == u"AI" || word == u"DI" || word == u"VS" || word == u"HS") {
      Number();
    } else if (word == u"CO") {
      o.columns = Number().value_or(-1);
    } else if (word == u"LC" || word == u"RC" || word == u"BC") {
      const char16_t b = BracketChar();
      if (!o.bracketsSet) o.open = o.close = 0;  // one side named: the other is not drawn
      o.bracketsSet = true;
      if (word != u"RC") o.open = b;
      if (word != u"LC") o.close = word == u"BC" ? Mirror(b) : b;
    } else if (word == u"TO" || word == u"BO" || word == u"LE" || word == u"RI") {
      o.sides |= word == u"TO" ? kTop : word == u"BO" ? kBottom : word == u"LE" ? kLeft : kRight;
    } else if (word != u"AL" && word != u"AC" && word != u"AR" && word != u"AD") {
      throw EqCodeError("unknown option");
    }
  }

  std::vector<EqRow> Arguments(int depth) {
    if (At(pos_) != u'(') throw EqCodeError("switch without arguments");
    std::vector<EqRow> args;
    for (;;) {
      ++pos_;  // "(" or ","
      args.push_back(Row(depth + 1));
      if (AtEnd()) throw EqCodeError("unclosed switch");
      if (s_[pos_] == u')') break;
    }
    ++pos_;
    return args;
  }

  static EqNode Build(char16_t name, const Options& o, std::vector<EqRow> args) {
    EqNode n;
    n.rows = std::move(args);
    const size_t count = n.rows.size();
    switch (name) {
      case u'F':
        if (count != 2) throw EqCodeError("a fraction has two parts");
        n.kind = EqKind::kFraction;
        return n;
      case u'R':
        if (count > 2) throw EqCodeError("a radical has one or two parts");
        if (count == 1) n.rows.insert(n.rows.begin(), EqRow());
        n.kind = EqKind::kRadical;
        return n;
      case u'S':
        if (count != 1) throw EqCodeError("stacked scripts");
        n.kind = o.down ? EqKind::kLowered : EqKind::kRaised;
        n.points = static_cast<int>(o.points);
        return n;
      case u'O':
        return Overstrike(std::move(n));
      case u'X':
        if (count != 1) throw EqCodeError("a box holds one part");
        if (o.sides == kTop || o.sides == kBottom)
          n.kind = o.sides == kTop ? EqKind::kOverline : EqKind::kUnderline;
        else if (o.sides == 0 || o.sides == kAllSides)
          n.kind = EqKind::kBox;
        else
          throw EqCodeError("a box of some sides");
        return n;
      case u'B':
        if (count != 1) throw EqCodeError("brackets hold one part");
        n.kind = EqKind::kBrackets;
        n.open = o.open;
        n.close = o.close;
        return n;
      case u'A':
        if (o.columns > 1 && count % static_cast<size_t>(o.columns) != 0)
          throw EqCodeError("an array with a line not full");
        n.kind = EqKind::kArray;
        n.columns = o.columns > 1 ? static_cast<size_t>(o.columns) : 1;
        return n;
      case u'L':
        n.kind = EqKind::kList;
        return n;
      case u'I':
        if (count != 3) throw EqCodeError("an integral has three parts");
        n.kind = EqKind::kNary;
        n.rows[0] = Unraised(std::move(n.rows[0]));
        n.rows[1] = Unraised(std::move(n.rows[1]));
        n.ch = o.sign;
        n.besideLimits = o.beside;
        n.grows = o.grows;
        return n;
      case u'D':
        if (count != 1 || !n.rows[0].empty()) throw EqCodeError("a displacement holds nothing");
        n.kind = EqKind::kDisplace;
        n.rows.clear();
        n.points = static_cast<int>(o.points);
        n.line = o.line;
        return n;
      default:
        throw EqCodeError("a switch lumenpad does not convert");
    }
  }

  // Two parts of which one is an enclosure: the enclosed character;
  // otherwise the parts printed over each other.
  static EqNode Overstrike(EqNode n) {
    n.kind = EqKind::kOverstrike;
    if (n.rows.size() != 2) return n;
    const size_t text = Enclosure(n.rows[0]) ? 1 : 0;
    const char16_t enclosure = Enclosure(n.rows[1 - text]);
    if (!enclosure || n.rows[text].empty()) return n;
    n.kind = EqKind::kEnclosed;
    n.ch = enclosure;
    n.rows = {Unraised(std::move(n.rows[text]))};
    return n;
  }

  const std::u16string& s_;
  size_t pos_ = 0;
};

}  // namespace

EqRow ParseEqCode(const std::u16string& code) {
  return EqParser(code).Code();
}

}  // namespace lp
