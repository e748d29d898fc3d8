#include "formula/omml_writer.h"

#include "runtime/utf8.h"

namespace lp::omml {

Xml Escape(const std::u16string& text) {
  Xml out;
  for (char c : ToUtf8(text)) {
    if (c == '&')
      out += "&amp;";
    else if (c == '<')
      out += "&lt;";
    else if (c == '>')
      out += "&gt;";
    else if (c == '"')
      out += "&quot;";
    else
      out += c;
  }
  return out;
}

namespace {

Xml RunWith(const Xml& mathProps, const std::string& wordProps, const std::u16string& text) {
  Xml props = mathProps.empty() ? "" : "<m:rPr>" + mathProps + "</m:rPr>";
  if (!wordProps.empty()) props += "<w:rPr>" + wordProps + "</w:rPr>";
  return "<m:r>" + props + "<m:t xml:space=\"preserve\">" + Escape(text) + "</m:t></m:r>";
}

}  // namespace

Xml Run(const std::u16string& text, const std::string& style, const std::string& wordProps) {
  return RunWith(style.empty() ? "" : "<m:sty m:val=\"" + style + "\"/>", wordProps, text);
}

Xml NormalText(const std::u16string& text, const std::string& wordProps) {
  return RunWith("<m:nor/>", wordProps, text);
}

Xml Join(const std::vector<Xml>& items) {
  Xml out;
  for (const Xml& item : items) out += item;
  return out;
}

Xml Wrap(const char* tag, const Xml& inner) {
  return "<m:" + Xml(tag) + ">" + inner + "</m:" + Xml(tag) + ">";
}

Xml Fraction(const Xml& numerator, const Xml& denominator) {
  return Wrap("f", Wrap("num", numerator) + Wrap("den", denominator));
}

Xml Radical(const Xml& degree, const Xml& radicand) {
  if (degree.empty())
    return Wrap("rad", "<m:radPr><m:degHide m:val=\"1\"/></m:radPr><m:deg/>" + Wrap("e", radicand));
  return Wrap("rad", Wrap("deg", degree) + Wrap("e", radicand));
}

Xml Scripts(const Xml& base, const Xml& sub, const Xml& sup, bool hasSub, bool hasSup) {
  // A script with nothing before it stands on a zero-width space: an empty
  // base shows as a placeholder box.
  Xml e = Wrap("e", base.empty() ? Run(u"\u200B") : base);
  if (hasSub && hasSup) return Wrap("sSubSup", e + Wrap("sub", sub) + Wrap("sup", sup));
  if (hasSup) return Wrap("sSup", e + Wrap("sup", sup));
  if (hasSub) return Wrap("sSub", e + Wrap("sub", sub));
  return base;
}

Xml Bar(const Xml& base, bool top) {
  return Wrap("bar", std::string("<m:barPr><m:pos m:val=\"") + (top ? "top" : "bot") +
                         "\"/></m:barPr>" + Wrap("e", base));
}

Xml Accent(const std::u16string& character, const Xml& base) {
  return Wrap("acc",
              "<m:accPr><m:chr m:val=\"" + Escape(character) + "\"/></m:accPr>" + Wrap("e", base));
}

Xml GroupCharacter(const std::u16string& character, const Xml& base) {
  return Wrap("groupChr", "<m:groupChrPr><m:chr m:val=\"" + Escape(character) +
                              "\"/><m:pos m:val=\"top\"/><m:vertJc m:val=\"bot\"/></m:groupChrPr>" +
                              Wrap("e", base));
}

Xml UpperLimit(const Xml& base, const Xml& limit) {
  return Wrap("limUpp", Wrap("e", base) + Wrap("lim", limit));
}

Xml Delimited(const std::u16string& open, const std::u16string& close, const Xml& content) {
  Xml props = "<m:dPr><m:begChr m:val=\"" + Escape(open) + "\"/><m:endChr m:val=\"" +
              Escape(close) + "\"/></m:dPr>";
  return Wrap("d", props + Wrap("e", content));
}

Xml EquationArray(const std::vector<Xml>& rows) {
  Xml inner;
  for (const Xml& row : rows) inner += Wrap("e", row);
  return Wrap("eqArr", inner);
}

Xml Matrix(const std::vector<Xml>& cells, size_t columns) {
  Xml rows;
  for (size_t at = 0; at < cells.size(); at += columns) {
    Xml row;
    for (size_t i = at; i < at + columns && i < cells.size(); ++i) row += Wrap("e", cells[i]);
    rows += Wrap("mr", row);
  }
  return Wrap("m", rows);
}

Xml BorderBox(const Xml& content) {
  return Wrap("borderBox", Wrap("e", content));
}

Xml Nary(const NaryLook& look, const Xml& lower, const Xml& upper, bool hasLower, bool hasUpper,
         const Xml& integrand) {
  Xml props = "<m:chr m:val=\"" + Escape(look.sign) + "\"/><m:limLoc m:val=\"" +
              (look.limitsUnderOver ? "undOvr" : "subSup") + "\"/>";
  props += std::string("<m:grow m:val=\"") + (look.grows ? "1" : "0") + "\"/>";
  if (!hasLower) props += "<m:subHide m:val=\"1\"/>";
  if (!hasUpper) props += "<m:supHide m:val=\"1\"/>";
  return Wrap("nary", Wrap("naryPr", props) + Wrap("sub", lower) + Wrap("sup", upper) +
                          Wrap("e", integrand));
}

Xml Math(const Xml& body) {
  return Wrap("oMath", body);
}

}  // namespace lp::omml
