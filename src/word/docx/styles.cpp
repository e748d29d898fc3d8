#include "word/docx/styles.h"

#include <cstring>

#include "runtime/utf8.h"
#include "word/types.h"

namespace word::docx {
namespace {

std::u16string ThemeTypeface(pugi::xml_node font, const char* script) {
  for (pugi::xml_node f : font.children("a:font"))
    if (!std::strcmp(f.attribute("script").value(), script))
      return lp::FromUtf8(f.attribute("typeface").value());
  return lp::FromUtf8(font.child("a:ea").attribute("typeface").value());
}

}  // namespace

void StyleSheet::Load(pugi::xml_node styles, pugi::xml_node theme) {
  if (pugi::xml_node scheme = theme.child("a:themeElements").child("a:fontScheme")) {
    for (const char* kind : {"minor", "major"}) {
      pugi::xml_node font = scheme.child(kind[1] == 'i' ? "a:minorFont" : "a:majorFont");
      std::u16string latin = lp::FromUtf8(font.child("a:latin").attribute("typeface").value());
      std::string k = kind;
      themeFonts_[k + "HAnsi"] = latin;
      themeFonts_[k + "Ascii"] = latin;
      themeFonts_[k + "EastAsia"] = ThemeTypeface(font, "Hans");
    }
  }
  defaults_.ascii = u"Times New Roman";
  defaults_.eastAsia = u"宋体";
  defaults_.halfPoints = 20;
  defaults_.bold = defaults_.italic = false;
  defaults_.vertAlign = VertAlign::Baseline;
  defaults_.scaling = 100;
  defaults_.color = wdColorAutomatic;
  defaults_.Overlay(Read(styles.child("w:docDefaults").child("w:rPrDefault").child("w:rPr")));
  defaultSpacing_ =
      styles.child("w:docDefaults").child("w:pPrDefault").child("w:pPr").child("w:spacing");
  for (pugi::xml_node s : styles.children("w:style")) {
    std::string id = s.attribute("w:styleId").value();
    styles_[id] = s;
    if (!std::strcmp(s.attribute("w:type").value(), "paragraph") &&
        s.attribute("w:default").as_bool())
      defaultParagraphStyle_ = id;
  }
}

CharFormat StyleSheet::Read(pugi::xml_node rPr) const {
  CharFormat f = ReadRunProperties(rPr);
  pugi::xml_node fonts = rPr.child("w:rFonts");
  if (!f.ascii) {
    auto it = themeFonts_.find(fonts.attribute("w:asciiTheme").value());
    if (it != themeFonts_.end()) f.ascii = it->second;
  }
  if (!f.eastAsia) {
    auto it = themeFonts_.find(fonts.attribute("w:eastAsiaTheme").value());
    if (it != themeFonts_.end()) f.eastAsia = it->second;
  }
  return f;
}

CharFormat StyleSheet::StyleChain(const std::string& id, int depth) const {
  if (auto it = cache_.find(id); it != cache_.end()) return it->second;
  CharFormat f;
  auto it = styles_.find(id);
  if (it != styles_.end() && depth < 20) {
    std::string base = it->second.child("w:basedOn").attribute("w:val").value();
    if (!base.empty() && base != id) f = StyleChain(base, depth + 1);
    f.Overlay(Read(it->second.child("w:rPr")));
  }
  cache_[id] = f;
  return f;
}

std::string StyleSheet::Alignment(pugi::xml_node paragraph) const {
  pugi::xml_node pPr = paragraph.child("w:pPr");
  if (pugi::xml_node jc = pPr.child("w:jc")) return jc.attribute("w:val").value();
  std::string id = pPr.child("w:pStyle").attribute("w:val").value();
  if (id.empty()) id = defaultParagraphStyle_;
  for (int depth = 0; depth < 20; ++depth) {
    auto it = styles_.find(id);
    if (it == styles_.end()) break;
    if (pugi::xml_node jc = it->second.child("w:pPr").child("w:jc"))
      return jc.attribute("w:val").value();
    const std::string base = it->second.child("w:basedOn").attribute("w:val").value();
    if (base.empty() || base == id) break;
    id = base;
  }
  return {};
}

CharFormat StyleSheet::Effective(pugi::xml_node run, pugi::xml_node paragraph) const {
  CharFormat f = defaults_;
  std::string pStyle = paragraph.child("w:pPr").child("w:pStyle").attribute("w:val").value();
  f.Overlay(StyleChain(pStyle.empty() ? defaultParagraphStyle_ : pStyle, 0));
  pugi::xml_node rPr = run.child("w:rPr");
  if (std::string rStyle = rPr.child("w:rStyle").attribute("w:val").value(); !rStyle.empty())
    f.Overlay(StyleChain(rStyle, 0));
  f.Overlay(Read(rPr));
  return f;
}

}  // namespace word::docx
