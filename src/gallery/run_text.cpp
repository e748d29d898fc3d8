#include "gallery/run_text.h"

#include <cctype>
#include <cstdlib>
#include <cstring>

#include "gallery/xml_name.h"
#include "runtime/text.h"
#include "runtime/utf8.h"

namespace lp::gallery {
namespace {

std::u16string Utf16(const char* text) {
  return FromUtf8(text);
}

// An on/off property: present without w:val, or with a val other than 0/false.
bool On(pugi::xml_node property) {
  if (!property) return false;
  const char* val = property.attribute("w:val").value();
  return !*val || (std::strcmp(val, "0") != 0 && std::strcmp(val, "false") != 0);
}

TextRun StyleOf(pugi::xml_node run, long textRgb) {
  TextRun style;
  style.rgb = textRgb;
  pugi::xml_node rPr = run.child("w:rPr");
  if (pugi::xml_node sz = rPr.child("w:sz")) style.size = sz.attribute("w:val").as_double() / 2;
  style.italic = On(rPr.child("w:i"));
  style.bold = On(rPr.child("w:b"));
  const char* align = rPr.child("w:vertAlign").attribute("w:val").value();
  style.script = std::strcmp(align, "superscript") == 0 ? 1
                 : std::strcmp(align, "subscript") == 0 ? -1
                                                        : 0;
  const char* color = rPr.child("w:color").attribute("w:val").value();
  if (*color && std::strcmp(color, "auto") != 0) style.rgb = std::strtol(color, nullptr, 16);
  return style;
}

// The characters of the Symbol font the formula engine uses, by code.
char16_t SymbolFontChar(long code) {
  static const std::u16string upper = u"ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ";
  static const std::u16string lower = u"αβχδεφγηιϕκλμνοπθρστυϖωξψζ";
  if (code >= 65 && code <= 90) return upper[static_cast<size_t>(code - 65)];
  if (code >= 97 && code <= 122) return lower[static_cast<size_t>(code - 97)];
  static const std::pair<long, char16_t> others[] = {
      {0x2D, u'−'}, {0x5E, u'⊥'}, {0xA3, u'≤'}, {0xA5, u'∞'}, {0xAE, u'→'},
      {0xB0, u'°'}, {0xB1, u'±'}, {0xB3, u'≥'}, {0xB4, u'×'}, {0xB8, u'÷'},
      {0xB9, u'≠'}, {0xCE, u'∈'}, {0xD0, u'∠'}, {0xD6, u'√'}, {0xDE, u'⇒'}};
  for (const auto& [c, ch] : others)
    if (c == code) return ch;
  return static_cast<char16_t>(code);
}

// "SYMBOL 112 \f "Symbol"" stands for π; other fields for nothing here.
std::u16string SymbolOf(const std::u16string& code) {
  if (!code.starts_with(u"SYMBOL") && !code.starts_with(u"symbol")) return {};
  const std::string rest = ToUtf8(code.substr(6));
  char* end = nullptr;
  const long number = std::strtol(rest.c_str(), &end, 0);
  if (end == rest.c_str() || number <= 0 || number > 0xFFFF) return {};
  std::string lowered = rest;
  for (char& c : lowered) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  const bool symbolFont = lowered.find("symbol") != std::string::npos;
  return std::u16string(1, symbolFont ? SymbolFontChar(number) : static_cast<char16_t>(number));
}

// An equation alone in its paragraph is set as a displayed one.
bool AloneIn(pugi::xml_node paragraph, pugi::xml_node math) {
  for (pugi::xml_node other : paragraph.children()) {
    if (other != math && (Is(other, "w:r") || Is(other, "m:oMath") || Is(other, "w:fldSimple")) &&
        !other.child("w:t").text().empty())
      return false;
  }
  return true;
}

// Walks the runs of a paragraph; an EQ field becomes one formula run, other
// fields show their result.
class LineReader {
 public:
  explicit LineReader(long textRgb) : textRgb_(textRgb) {}

  TextLine Read(pugi::xml_node paragraph) {
    const char* jc = paragraph.child("w:pPr").child("w:jc").attribute("w:val").value();
    line_.alignment = std::strcmp(jc, "center") == 0 ? 1 : std::strcmp(jc, "right") == 0 ? 2 : 0;
    Walk(paragraph);
    return line_;
  }

 private:
  void Walk(pugi::xml_node parent) {
    for (pugi::xml_node child : parent.children()) {
      if (Is(child, "w:r")) {
        Run(child);
      } else if (Is(child, "m:oMath") || Is(child, "m:oMathPara")) {
        TextRun formula;
        formula.formula = true;
        formula.text = OmmlToLatex(child, Is(child, "m:oMathPara") || AloneIn(parent, child));
        line_.runs.push_back(formula);
      } else if (Is(child, "w:ins") || Is(child, "w:hyperlink") || Is(child, "w:smartTag") ||
                 Is(child, "w:fldSimple")) {
        Walk(child);
      }
    }
  }

  void Run(pugi::xml_node run) {
    for (pugi::xml_node part : run.children()) {
      const bool shown = codes_.empty() || inResult_;
      if (Is(part, "w:fldChar")) {
        Mark(part.attribute("w:fldCharType").value(), run);
      } else if (Is(part, "w:instrText")) {
        if (!shown) codes_.back() += Utf16(part.text().get());
      } else if (Is(part, "w:t") && shown) {
        Add(run, Utf16(part.text().get()));
      } else if (Is(part, "w:tab") && shown) {
        Add(run, u"    ");
      }
    }
  }

  // Fields nest: a SYMBOL field inside an EQ code stands for its character.
  void Mark(const char* type, pugi::xml_node run) {
    if (std::strcmp(type, "begin") == 0) {
      if (codes_.empty()) codeStyle_ = StyleOf(run, textRgb_);
      codes_.emplace_back();
    } else if (std::strcmp(type, "separate") == 0) {
      inResult_ = codes_.size() == 1;
    } else if (std::strcmp(type, "end") == 0 && !codes_.empty()) {
      const std::u16string code = Trim(codes_.back());
      codes_.pop_back();
      if (!codes_.empty()) {
        codes_.back() += SymbolOf(code);
      } else if (!inResult_) {
        Field(code);
      }
      inResult_ = false;
    }
  }

  void Field(const std::u16string& code) {
    if (code.starts_with(u"EQ") || code.starts_with(u"eq")) {
      TextRun formula = codeStyle_;
      formula.formula = true;
      formula.text = EqCodeToLatex(code);
      line_.runs.push_back(formula);
    } else if (const std::u16string symbol = SymbolOf(code); !symbol.empty()) {
      TextRun piece = codeStyle_;
      piece.text = symbol;
      line_.runs.push_back(piece);
    }
  }

  void Add(pugi::xml_node run, const std::u16string& text) {
    TextRun piece = StyleOf(run, textRgb_);
    piece.text = text;
    if (!line_.runs.empty() && !line_.runs.back().formula) {
      TextRun& last = line_.runs.back();
      if (last.size == piece.size && last.italic == piece.italic && last.bold == piece.bold &&
          last.script == piece.script && last.rgb == piece.rgb) {
        last.text += text;
        return;
      }
    }
    line_.runs.push_back(piece);
  }

  const long textRgb_;
  TextLine line_;
  std::vector<std::u16string> codes_;  // the codes of the open fields, outermost first
  bool inResult_ = false;
  TextRun codeStyle_;
};

std::u16string Delimiter(pugi::xml_node properties, const char* name, const char16_t* fallback) {
  pugi::xml_attribute chr = properties.child(name).attribute("m:val");
  std::u16string d = chr ? Utf16(chr.value()) : std::u16string(fallback);
  if (d.empty()) return u".";
  if (d == u"{") return u"\\{";
  if (d == u"}") return u"\\}";
  return d;
}

// A displayed equation sets its outer fractions at full size; inside a
// fraction or a script everything is set as in running text.
class OmmlWriter {
 public:
  explicit OmmlWriter(bool display) : display_(display) {}

  std::u16string Children(pugi::xml_node node) {
    std::u16string latex;
    for (pugi::xml_node child : node.children()) latex += Element(child);
    return latex;
  }

 private:
  std::u16string Arg(pugi::xml_node node, const char* name) {
    ++depth_;
    std::u16string inside = Children(node.child(name));
    --depth_;
    return u"{" + inside + u"}";
  }

  std::u16string Joined(pugi::xml_node e, const char16_t* separator) {
    std::u16string joined;
    for (pugi::xml_node part : e.children("m:e"))
      joined += (joined.empty() ? u"" : separator) + Children(part);
    return joined;
  }

  std::u16string Element(pugi::xml_node e) {
    const std::string name = e.name();
    if (name == "m:r") return Utf16(e.child("m:t").text().get());
    if (name == "m:f") {
      const bool full = display_ && depth_ == 0;
      return (full ? u"\\dfrac" : u"\\frac") + Arg(e, "m:num") + Arg(e, "m:den");
    }
    if (name == "m:rad") {
      const std::u16string degree = Children(e.child("m:deg"));
      return u"\\sqrt" + (degree.empty() ? u"" : u"[" + degree + u"]") + u"{" +
             Children(e.child("m:e")) + u"}";
    }
    if (name == "m:sSup") return Arg(e, "m:e") + u"^" + Arg(e, "m:sup");
    if (name == "m:sSub") return Arg(e, "m:e") + u"_" + Arg(e, "m:sub");
    if (name == "m:sSubSup") return Arg(e, "m:e") + u"_" + Arg(e, "m:sub") + u"^" + Arg(e, "m:sup");
    if (name == "m:bar" || name == "m:acc") {
      const std::u16string chr =
          Utf16(e.child("m:accPr").child("m:chr").attribute("m:val").value());
      const char16_t* accent = chr == u"→" || chr == u"⃗"    ? u"\\vec{"
                               : chr == u"⌒" || chr == u"⏜" ? u"\\overarc{"
                               : chr == u"˙" || chr == u"̇"  ? u"\\dot{"
                                                            : u"\\overline{";
      return accent + Children(e.child("m:e")) + u"}";
    }
    if (name == "m:d") {
      pugi::xml_node dPr = e.child("m:dPr");
      return u"\\left" + Delimiter(dPr, "m:begChr", u"(") + Joined(e, u",") + u"\\right" +
             Delimiter(dPr, "m:endChr", u")");
    }
    if (name == "m:eqArr") return u"\\begin{array}{l}" + Joined(e, u"\\\\") + u"\\end{array}";
    if (name.ends_with("Pr")) return u"";
    return Children(e);
  }

  bool display_;
  int depth_ = 0;
};

}  // namespace

std::u16string OmmlToLatex(pugi::xml_node math, bool display) {
  return OmmlWriter(display).Children(math);
}

std::vector<TextLine> ReadParagraphs(pugi::xml_node story, long textRgb) {
  std::vector<TextLine> lines;
  for (pugi::xml_node p : story.children("w:p")) lines.push_back(LineReader(textRgb).Read(p));
  while (!lines.empty() && lines.back().runs.empty()) lines.pop_back();
  return lines;
}

}  // namespace lp::gallery
