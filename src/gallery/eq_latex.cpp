// EQ field codes as LaTeX: the formula engine's parser reads the code into
// its tree, and each node of the tree becomes the typesetter's command. A
// code the parser refuses shows as its text, so no formula is ever lost.

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "formula/enclosed_characters.h"
#include "formula/eq_code.h"
#include "gallery/drawing_list.h"
#include "runtime/text.h"

namespace lp::gallery {
namespace {

std::u16string RowLatex(const EqRow& row);

std::u16string Brace(const std::u16string& s) {
  return u"{" + s + u"}";
}

// A character of the code as text: the characters TeX reserves escaped.
std::u16string CharLatex(char16_t c) {
  if (c == u'\\') return u"\\backslash ";
  if (c == u' ' || c == u'\u3000') return u"\\ ";  // a space between words
  if (std::u16string_view(u"{}%&#$_").find(c) != std::u16string_view::npos)
    return std::u16string(u"\\") + c;
  return std::u16string(1, c);
}

std::u16string RowAt(const EqNode& n, size_t i) {
  return i < n.rows.size() ? RowLatex(n.rows[i]) : std::u16string();
}

std::u16string Joined(const EqNode& n, const char16_t* separator) {
  std::u16string out;
  for (size_t i = 0; i < n.rows.size(); ++i) out += (i ? separator : u"") + RowLatex(n.rows[i]);
  return out;
}

// The accent an overstruck mark stands for: the arrow of a vector, the arc,
// the dot of a recurring digit, a bar (a dash only when raised); none for text.
const char16_t* AccentOf(const EqRow& row) {
  static const std::pair<char16_t, const char16_t*> accents[] = {
      {u'→', u"\\vec"}, {u'⌒', u"\\overarc"},  {u'˙', u"\\dot"},
      {u'·', u"\\dot"}, {u'¯', u"\\overline"}, {u'‾', u"\\overline"},
      {u'-', nullptr},  {u'－', nullptr},      {u'—', nullptr}};
  const bool raised = row.size() == 1 && row[0].kind == EqKind::kRaised;
  const EqRow& mark = raised ? row[0].rows[0] : row;
  if (mark.size() != 1 || mark[0].kind != EqKind::kChar) return nullptr;
  for (const auto& [ch, accent] : accents)
    if (ch == mark[0].ch) return accent ? accent : raised ? u"\\overline" : nullptr;
  return nullptr;
}

// Texts printed over each other: a mark over the rest becomes its accent;
// without one, the texts follow each other.
std::u16string Overstrike(const EqNode& n) {
  const char16_t* accent = nullptr;
  std::u16string base;
  for (const EqRow& row : n.rows) {
    const char16_t* mark = accent ? nullptr : AccentOf(row);
    if (mark)
      accent = mark;
    else
      base += RowLatex(row);
  }
  return accent ? accent + Brace(base) : base;
}

// A bracket as \left and \right take it; empty for one TeX has no delimiter for.
std::u16string Delimiter(char16_t c) {
  if (c == 0) return u".";
  if (c == u'{' || c == u'}') return std::u16string(u"\\") + c;
  if (std::u16string_view(u"()[]|/<>").find(c) != std::u16string_view::npos)
    return std::u16string(1, c);
  return {};
}

// Brackets grow with what they hold; other characters stand beside it as text.
std::u16string Brackets(const EqNode& n) {
  const std::u16string open = Delimiter(n.open), close = Delimiter(n.close);
  if (!open.empty() && !close.empty()) return u"\\left" + open + RowAt(n, 0) + u"\\right" + close;
  return (n.open ? CharLatex(n.open) : u"") + RowAt(n, 0) + (n.close ? CharLatex(n.close) : u"");
}

std::u16string Array(const EqNode& n) {
  std::u16string out = u"\\begin{array}" + Brace(std::u16string(n.columns, u'l'));
  for (size_t i = 0; i < n.rows.size(); ++i)
    out += (i == 0 ? u"" : i % n.columns ? u"&" : u"\\\\") + RowLatex(n.rows[i]);
  return out + u"\\end{array}";
}

// An integral, sum or product: its sign's command, the limits it has as
// scripts (a sum's stand over and under it in display), the integrand.
std::u16string Nary(const EqNode& n) {
  static const std::pair<char16_t, const char16_t*> signs[] = {
      {u'∫', u"\\int"},  {u'∑', u"\\sum"},  {u'∏', u"\\prod"},
      {u'∮', u"\\oint"}, {u'∬', u"\\iint"}, {u'∭', u"\\iiint"}};
  auto known = std::find_if(std::begin(signs), std::end(signs),
                            [&](const auto& sign) { return sign.first == n.ch; });
  std::u16string out = known != std::end(signs) ? known->second : Brace(CharLatex(n.ch));
  if (!n.rows[0].empty()) out += u"_" + Brace(RowAt(n, 0));
  if (!n.rows[1].empty()) out += u"^" + Brace(RowAt(n, 1));
  return out + Brace(RowAt(n, 2));
}

// A move forward is space, a quarter of an em for each quarter of the
// distance at the size of body text (10.5 points); with \LI a line under it.
// A move back overlaps, which the typesetter does not: the text just follows.
std::u16string Displacement(const EqNode& n) {
  const long quarters = std::lround(n.points / 10.5 * 4);
  std::u16string space;
  for (long i = 0; i < quarters / 4; ++i) space += u"\\quad";
  for (long i = 0; i < quarters % 4; ++i) space += u"\\;";
  return n.line && !space.empty() ? u"\\underline" + Brace(space) : space;
}

// An enclosed character as the one character Unicode has for it; a square
// boxes its text; else the character with its combining enclosure.
std::u16string Enclosed(const EqNode& n) {
  std::u16string text;
  for (const EqNode& c : n.rows[0]) text += c.kind == EqKind::kChar ? c.ch : u'\0';
  if (char16_t one = EnclosedCharacter(n.ch, text)) return u"\\text" + Brace({one});
  if (n.ch == u'□') return u"\\boxed" + Brace(RowAt(n, 0));
  const char16_t mark = n.ch == u'○' ? u'\u20DD' : n.ch == u'◇' ? u'\u20DF' : u'\u20E4';
  return u"\\text" + Brace(RowAt(n, 0) + mark);
}

std::u16string NodeLatex(const EqNode& n) {
  switch (n.kind) {
    case EqKind::kChar:
      return CharLatex(n.ch);
    case EqKind::kFraction:
      return u"\\frac" + Brace(RowAt(n, 0)) + Brace(RowAt(n, 1));
    case EqKind::kRadical:
      return u"\\sqrt" + (n.rows[0].empty() ? u"" : u"[" + RowAt(n, 0) + u"]") + Brace(RowAt(n, 1));
    case EqKind::kRaised:
      return u"^" + Brace(RowAt(n, 0));
    case EqKind::kLowered:
      return u"_" + Brace(RowAt(n, 0));
    case EqKind::kOverstrike:
      return Overstrike(n);
    case EqKind::kOverline:
      return u"\\overline" + Brace(RowAt(n, 0));
    case EqKind::kUnderline:
      return u"\\underline" + Brace(RowAt(n, 0));
    case EqKind::kBrackets:
      return Brackets(n);
    case EqKind::kArray:
      return Array(n);
    case EqKind::kBox:
      return u"\\boxed" + Brace(RowAt(n, 0));
    case EqKind::kNary:
      return Nary(n);
    case EqKind::kDisplace:
      return Displacement(n);
    case EqKind::kEnclosed:
      return Enclosed(n);
    case EqKind::kList:
    default:  // what has no command of its own shows its texts
      return Joined(n, u",");
  }
}

bool IsScript(const EqNode& n) {
  return n.kind == EqKind::kRaised || n.kind == EqKind::kLowered;
}

// A script stands after what it raises; one that opens a row or follows
// another script or a space gets an empty base, as the EQ field sets each apart.
std::u16string RowLatex(const EqRow& row) {
  std::u16string out;
  for (size_t i = 0; i < row.size(); ++i) {
    if (IsScript(row[i]) &&
        (i == 0 || IsScript(row[i - 1]) || row[i - 1].kind == EqKind::kDisplace))
      out += u"{}";
    out += NodeLatex(row[i]);
  }
  return out;
}

// The text of a refused code after "EQ", every character shown as itself.
std::u16string CodeText(const std::u16string& code) {
  const std::u16string trimmed = Trim(code);
  std::u16string out;
  for (char16_t c : Trim(trimmed.substr(std::min<size_t>(2, trimmed.size())))) out += CharLatex(c);
  return out;
}

}  // namespace

std::u16string EqCodeToLatex(const std::u16string& code) {
  try {
    return RowLatex(ParseEqCode(code));
  } catch (const EqCodeError&) {
    return CodeText(code);
  }
}

}  // namespace lp::gallery
