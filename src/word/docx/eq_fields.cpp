#include "word/docx/eq_fields.h"

#include <cstdlib>
#include <cstring>
#include <optional>

#include "runtime/utf8.h"
#include "word/docx/field_runs.h"
#include "word/docx/xml_part.h"

namespace word::docx {
namespace {

using Code = std::vector<CodeCharacter>;

const char* const kMathNs = "http://schemas.openxmlformats.org/officeDocument/2006/math";
// A document in the strict form of the format takes math of that form.
const char* const kStrictWordNs = "http://purl.oclc.org/ooxml/wordprocessingml/main";
const char* const kStrictMathNs = "http://purl.oclc.org/ooxml/officeDocument/math";
const char* const kWordNs = "http://schemas.openxmlformats.org/wordprocessingml/2006/main";

// A character of the run: its typeface, italic, bold and size.
CodeCharacter Look(const StyleSheet& styles, pugi::xml_node run, pugi::xml_node paragraph) {
  const CharFormat f = styles.Effective(run, paragraph);
  CodeCharacter c;
  c.font = f.ascii.value_or(Text());
  c.italic = f.italic.value_or(false);
  c.bold = f.bold.value_or(false);
  c.size = f.halfPoints ? *f.halfPoints / 2.0f : 0;
  return c;
}

pugi::xml_node ParagraphOf(pugi::xml_node n) {
  while (n && !Named(n, "w:p")) n = n.parent();
  return n;
}

void Append(Code& code, const Text& text, CodeCharacter look) {
  for (char16_t ch : text) {
    look.ch = ch;
    code.push_back(look);
  }
}

Text TextOf(const Code& code, size_t from = 0) {
  Text text;
  for (size_t i = from; i < code.size(); ++i) text += code[i].ch;
  return text;
}

// SYMBOL 97 \f "Symbol": the one character, in its font.
std::optional<Code> SymbolField(const Code& code, size_t at) {
  const std::string text = lp::ToUtf8(TextOf(code, at));
  const size_t number = text.find_first_of("0123456789");
  if (number == std::string::npos) return std::nullopt;
  const unsigned long value = std::strtoul(text.c_str() + number, nullptr, 0);
  if (value == 0 || value > 0xFFFF) return std::nullopt;
  CodeCharacter c = code[at + number];
  c.ch = static_cast<char16_t>(value);
  if (size_t f = text.find("\\f"); f != std::string::npos) {
    size_t start = text.find_first_not_of(" \"", f + 2);
    size_t end = start == std::string::npos ? start : text.find_first_of("\"\\", start);
    if (start == std::string::npos) return std::nullopt;
    std::string font = text.substr(start, end == std::string::npos ? end : end - start);
    while (!font.empty() && font.back() == ' ') font.pop_back();
    c.font = lp::FromUtf8(font);
  }
  return Code{c};
}

// What a field inside a code puts there: a SYMBOL field its character, an
// EQ field its code without the keyword; nothing for any other field.
std::optional<Code> Nested(const Code& code) {
  size_t start = 0;
  while (start < code.size() && code[start].ch == u' ') ++start;
  const std::string keyword = FieldKeyword(lp::ToUtf8(TextOf(code, start)));
  if (keyword == "SYMBOL") return SymbolField(code, start + keyword.size());
  if (keyword == "EQ") return Code(code.begin() + static_cast<long>(start + 2), code.end());
  return std::nullopt;
}

struct Frame {
  Code code;
  bool inResult = false;
};

// The code of a field written as runs, nested fields expanded.
std::optional<Code> ComplexCode(const FieldRuns& f, const StyleSheet& styles) {
  std::vector<Frame> open;
  const pugi::xml_node paragraph = ParagraphOf(f.runs.front());
  for (pugi::xml_node run : f.runs) {
    const CodeCharacter look = Look(styles, run, paragraph);
    for (pugi::xml_node c = run.first_child(); c; c = c.next_sibling()) {
      const std::string type = c.attribute("w:fldCharType").value();
      if (Named(c, "w:fldChar") && type == "begin") {
        open.emplace_back();
      } else if (open.empty()) {
        continue;
      } else if (Named(c, "w:fldChar") && type == "separate") {
        open.back().inResult = true;
      } else if (Named(c, "w:fldChar") && type == "end") {
        Frame done = std::move(open.back());
        open.pop_back();
        if (open.empty()) return std::move(done.code);
        std::optional<Code> inner = Nested(done.code);
        if (!inner) return std::nullopt;
        if (!open.back().inResult)
          open.back().code.insert(open.back().code.end(), inner->begin(), inner->end());
      } else if (!open.back().inResult && Named(c, "w:instrText")) {
        Append(open.back().code, lp::FromUtf8(c.text().get()), look);
      } else if (!open.back().inResult && Named(c, "w:sym")) {
        CodeCharacter s = look;
        s.font = lp::FromUtf8(c.attribute("w:font").value());
        Append(open.back().code,
               Text(1, static_cast<char16_t>(
                           std::strtoul(c.attribute("w:char").value(), nullptr, 16))),
               s);
      }
    }
  }
  return std::nullopt;  // a field never closed
}

bool OnlyFieldContent(pugi::xml_node run) {
  for (pugi::xml_node c = run.first_child(); c; c = c.next_sibling())
    if (!Named(c, "w:rPr") && !Named(c, "w:fldChar") && !Named(c, "w:instrText") &&
        !Named(c, "w:t") && !Named(c, "w:sym") && !Named(c, "w:lastRenderedPageBreak"))
      return false;
  return true;
}

// The field's runs stand side by side in one parent and hold nothing that
// would be lost with them.
bool Replaceable(const FieldRuns& f) {
  if (f.simple) return true;
  if (f.runs.empty()) return false;
  const pugi::xml_node parent = f.runs.front().parent();
  for (pugi::xml_node run : f.runs)
    if (run.parent() != parent || !OnlyFieldContent(run)) return false;
  pugi::xml_node first = f.runs.front().first_child(), last = f.runs.back().last_child();
  if (first && Named(first, "w:rPr")) first = first.next_sibling();
  return first && Named(first, "w:fldChar") && last && Named(last, "w:fldChar");
}

std::optional<Code> CodeOf(const FieldRuns& f, const StyleSheet& styles) {
  if (!f.simple) return ComplexCode(f, styles);
  pugi::xml_node run = f.simple.child("w:r");
  Code code;
  Append(code, lp::FromUtf8(f.instruction), Look(styles, run, ParagraphOf(f.simple)));
  return code;
}

// The equation in place of the field's first node; false when its XML
// does not read.
bool PutMath(const std::string& omml, const FieldRuns& f) {
  pugi::xml_document fragment;
  const std::string wrapped = std::string("<root xmlns:m=\"") + kMathNs + "\" xmlns:w=\"" +
                              kWordNs + "\">" + omml + "</root>";
  if (!ParseXml(wrapped, fragment)) return false;
  pugi::xml_node math = fragment.child("root").child("m:oMath");
  if (!math) return false;
  pugi::xml_node first = f.simple ? f.simple : f.runs.front();
  first.parent().insert_copy_before(math, first);
  if (f.simple) {
    f.simple.parent().remove_child(f.simple);
  } else {
    for (pugi::xml_node run : f.runs) run.parent().remove_child(run);
  }
  return true;
}

void DeclareMathNamespace(pugi::xml_node root) {
  pugi::xml_node top = root.type() == pugi::node_document ? root.first_child() : root;
  while (top && top.type() != pugi::node_element) top = top.next_sibling();
  if (!top || top.attribute("xmlns:m")) return;
  const bool strict = std::strcmp(top.attribute("xmlns:w").value(), kStrictWordNs) == 0;
  top.append_attribute("xmlns:m") = strict ? kStrictMathNs : kMathNs;
}

}  // namespace

EqConversion ReplaceEqFields(pugi::xml_node root, const EqFieldConverter& convert,
                             const StyleSheet& styles) {
  EqConversion result;
  for (const FieldRuns& f : OutermostFields(root)) {
    if (FieldKeyword(f.instruction) != "EQ") continue;
    std::optional<Code> code = Replaceable(f) ? CodeOf(f, styles) : std::nullopt;
    std::optional<std::string> omml = code ? convert(*code) : std::nullopt;
    if (omml && PutMath(*omml, f)) {
      ++result.converted;
    } else {
      result.unconverted.push_back(lp::FromUtf8(f.instruction));
    }
  }
  if (result.converted > 0) DeclareMathNamespace(root);
  return result;
}

}  // namespace word::docx
