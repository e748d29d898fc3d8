#pragma once
// The effective character format of a run: document defaults, then the
// paragraph's style chain, the run's character style chain, and the run's own
// properties. Theme fonts are resolved from the theme part.

#include <map>
#include <string>

#include <pugixml.hpp>

#include "word/docx/char_format.h"

namespace word::docx {

class StyleSheet {
 public:
  // Either node may be empty (a package without styles or theme).
  void Load(pugi::xml_node styles, pugi::xml_node theme);
  CharFormat Effective(pugi::xml_node run, pugi::xml_node paragraph) const;
  // Direct properties as Font reads them, theme fonts resolved.
  CharFormat Read(pugi::xml_node rPr) const;
  // The paragraph's alignment (w:jc's value): its own, else its style's.
  std::string Alignment(pugi::xml_node paragraph) const;
  // The paragraph spacing of the document's defaults (w:spacing), or none.
  pugi::xml_node DefaultSpacing() const { return defaultSpacing_; }

 private:
  CharFormat StyleChain(const std::string& id, int depth) const;

  std::map<std::string, pugi::xml_node> styles_;
  std::string defaultParagraphStyle_;
  CharFormat defaults_;
  pugi::xml_node defaultSpacing_;
  std::map<std::string, std::u16string> themeFonts_;  // "minorHAnsi" -> name
  mutable std::map<std::string, CharFormat> cache_;
};

}  // namespace word::docx
