#pragma once
// Character formatting as the Font object sees it, read from and written to
// w:rPr. Only what is set is stored; an unset field inherits.

#include <optional>
#include <string>

#include <pugixml.hpp>

namespace word::docx {

enum class VertAlign { Baseline, Superscript, Subscript };

struct CharFormat {
  std::optional<std::u16string> ascii;     // w:rFonts ascii and hAnsi
  std::optional<std::u16string> eastAsia;  // w:rFonts eastAsia
  std::optional<int> halfPoints;           // w:sz
  std::optional<bool> bold, italic;
  std::optional<VertAlign> vertAlign;
  std::optional<int> scaling;  // w:w, percent
  std::optional<long> color;   // BGR as Word's RGB(); wdColorAutomatic is automatic

  bool Empty() const;
  // Fields set in `over` replace ours.
  void Overlay(const CharFormat& over);
};

// What a w:rPr (or a style's w:rPr) sets. Theme fonts are left unresolved.
CharFormat ReadRunProperties(pugi::xml_node rPr);
// Writes the set fields into rPr, keeping the element order Word requires.
void WriteRunProperties(pugi::xml_node rPr, const CharFormat& format);

// The w:rPr of a run, created in first place if missing.
pugi::xml_node RunPropertiesOf(pugi::xml_node run);
// Inserts child `name` into a w:rPr at its place in the schema's sequence.
pugi::xml_node RunPropertyChild(pugi::xml_node rPr, const char* name);

}  // namespace word::docx
