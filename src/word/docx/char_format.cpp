#include "word/docx/char_format.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "runtime/utf8.h"
#include "word/docx/host/units.h"
#include "word/docx/host/xml_order.h"
#include "word/types.h"

namespace word::docx {
namespace {

std::optional<bool> OnOff(pugi::xml_node n) {
  if (!n) return std::nullopt;
  std::string v = n.attribute("w:val").value();
  return !(v == "0" || v == "false" || v == "off");
}

void SetOnOff(pugi::xml_node rPr, const char* name, const char* complex, bool on) {
  for (const char* n : {name, complex}) {
    pugi::xml_node e = RunPropertyChild(rPr, n);
    e.remove_attribute("w:val");
    if (!on) e.append_attribute("w:val") = "0";
  }
}

void SetVal(pugi::xml_node rPr, const char* name, const std::string& value) {
  pugi::xml_node e = RunPropertyChild(rPr, name);
  e.remove_attribute("w:val");
  e.append_attribute("w:val") = value.c_str();
}

void SetFont(pugi::xml_node rPr, const char* const* attrs, const char* const* themeAttrs,
             const std::u16string& name) {
  pugi::xml_node fonts = RunPropertyChild(rPr, "w:rFonts");
  for (; *themeAttrs; ++themeAttrs) fonts.remove_attribute(*themeAttrs);
  std::string utf8 = lp::ToUtf8(name);
  for (; *attrs; ++attrs) {
    pugi::xml_attribute a = fonts.attribute(*attrs);
    if (!a) a = fonts.append_attribute(*attrs);
    a.set_value(utf8.c_str());
  }
}

std::string ColorHex(long bgr) {
  return bgr == wdColorAutomatic ? "auto" : HexOfColor(bgr);
}

std::optional<long> ParseColor(pugi::xml_node n) {
  if (!n) return std::nullopt;
  const std::string v = n.attribute("w:val").value();
  return v.size() == 6 ? ColorOfHex(v) : wdColorAutomatic;
}

}  // namespace

bool CharFormat::Empty() const {
  return !ascii && !eastAsia && !halfPoints && !bold && !italic && !vertAlign && !scaling && !color;
}

void CharFormat::Overlay(const CharFormat& o) {
  if (o.ascii) ascii = o.ascii;
  if (o.eastAsia) eastAsia = o.eastAsia;
  if (o.halfPoints) halfPoints = o.halfPoints;
  if (o.bold) bold = o.bold;
  if (o.italic) italic = o.italic;
  if (o.vertAlign) vertAlign = o.vertAlign;
  if (o.scaling) scaling = o.scaling;
  if (o.color) color = o.color;
}

CharFormat ReadRunProperties(pugi::xml_node rPr) {
  CharFormat f;
  if (!rPr) return f;
  if (pugi::xml_node fonts = rPr.child("w:rFonts")) {
    if (auto a = fonts.attribute("w:ascii")) f.ascii = lp::FromUtf8(a.value());
    if (auto a = fonts.attribute("w:eastAsia")) f.eastAsia = lp::FromUtf8(a.value());
  }
  if (pugi::xml_node sz = rPr.child("w:sz")) f.halfPoints = sz.attribute("w:val").as_int(20);
  f.bold = OnOff(rPr.child("w:b"));
  f.italic = OnOff(rPr.child("w:i"));
  if (pugi::xml_node va = rPr.child("w:vertAlign")) {
    std::string v = va.attribute("w:val").value();
    f.vertAlign = v == "superscript" ? VertAlign::Superscript
                  : v == "subscript" ? VertAlign::Subscript
                                     : VertAlign::Baseline;
  }
  if (pugi::xml_node w = rPr.child("w:w")) f.scaling = w.attribute("w:val").as_int(100);
  f.color = ParseColor(rPr.child("w:color"));
  return f;
}

void WriteRunProperties(pugi::xml_node rPr, const CharFormat& f) {
  static const char* const kAscii[] = {"w:ascii", "w:hAnsi", nullptr};
  static const char* const kAsciiTheme[] = {"w:asciiTheme", "w:hAnsiTheme", nullptr};
  static const char* const kEast[] = {"w:eastAsia", nullptr};
  static const char* const kEastTheme[] = {"w:eastAsiaTheme", nullptr};
  if (f.ascii) SetFont(rPr, kAscii, kAsciiTheme, *f.ascii);
  if (f.eastAsia) SetFont(rPr, kEast, kEastTheme, *f.eastAsia);
  if (f.halfPoints) {
    SetVal(rPr, "w:sz", std::to_string(*f.halfPoints));
    SetVal(rPr, "w:szCs", std::to_string(*f.halfPoints));
  }
  if (f.bold) SetOnOff(rPr, "w:b", "w:bCs", *f.bold);
  if (f.italic) SetOnOff(rPr, "w:i", "w:iCs", *f.italic);
  if (f.vertAlign) {
    if (*f.vertAlign == VertAlign::Baseline)
      rPr.remove_child("w:vertAlign");
    else
      SetVal(rPr, "w:vertAlign",
             *f.vertAlign == VertAlign::Superscript ? "superscript" : "subscript");
  }
  if (f.scaling) {
    if (*f.scaling == 100)
      rPr.remove_child("w:w");
    else
      SetVal(rPr, "w:w", std::to_string(*f.scaling));
  }
  if (f.color) SetVal(rPr, "w:color", ColorHex(*f.color));
}

pugi::xml_node RunPropertiesOf(pugi::xml_node run) {
  pugi::xml_node rPr = run.child("w:rPr");
  return rPr ? rPr : run.prepend_child("w:rPr");
}

pugi::xml_node RunPropertyChild(pugi::xml_node rPr, const char* name) {
  return EnsureChild(rPr, name, kRunPropertiesOrder);
}

}  // namespace word::docx
