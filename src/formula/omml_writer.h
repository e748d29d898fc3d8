#pragma once
// The pieces of an Office Math equation as UTF-8 text, for the converters
// that write equations (TeX, EQ field codes): runs, fractions, radicals,
// scripts, bars, accents, delimiters, equation arrays and n-ary signs. The m prefix is
// the document's math namespace, w the WordprocessingML one.

#include <string>
#include <vector>

namespace lp::omml {

using Xml = std::string;

// Text with &, < and > escaped.
Xml Escape(const std::u16string& text);
// A run of math text; `style` is m:sty ("p" upright, "i", "b", "bi") or
// empty for the math default, `wordProps` the inside of a w:rPr or empty.
Xml Run(const std::u16string& text, const std::string& style = {},
        const std::string& wordProps = {});
// A run of ordinary text, not math: its spaces keep their width.
Xml NormalText(const std::u16string& text, const std::string& wordProps = {});
Xml Join(const std::vector<Xml>& items);
Xml Wrap(const char* tag, const Xml& inner);

Xml Fraction(const Xml& numerator, const Xml& denominator);
// Without a degree the radical is a square root with its degree hidden.
Xml Radical(const Xml& degree, const Xml& radicand);
// Scripts on a base; an empty script is left out.
Xml Scripts(const Xml& base, const Xml& sub, const Xml& sup, bool hasSub, bool hasSup);
// A bar over the base, or under it.
Xml Bar(const Xml& base, bool top = true);
// An accent character over the base: U+20D7 (vector arrow), U+0307 (dot)...
Xml Accent(const std::u16string& character, const Xml& base);
// A character stretched over the base: U+23DC (the arc over a chord).
Xml GroupCharacter(const std::u16string& character, const Xml& base);
// A text over the base, smaller: the reading over characters.
Xml UpperLimit(const Xml& base, const Xml& limit);
// Delimiters around the content; an empty one is not drawn.
Xml Delimited(const std::u16string& open, const std::u16string& close, const Xml& content);
Xml EquationArray(const std::vector<Xml>& rows);
// A matrix of the cells, `columns` to a line.
Xml Matrix(const std::vector<Xml>& cells, size_t columns);
Xml BorderBox(const Xml& content);
// An integral, sum or product: `sign` the character, its limits under and
// over it or beside it, growing with the integrand or not; an absent limit
// is hidden.
struct NaryLook {
  std::u16string sign;
  bool limitsUnderOver = false;
  bool grows = false;
};
Xml Nary(const NaryLook& look, const Xml& lower, const Xml& upper, bool hasLower, bool hasUpper,
         const Xml& integrand);
Xml Math(const Xml& body);

}  // namespace lp::omml
