#pragma once
// The paragraphs of a story (the body or a text box) as text lines: runs
// with their size and style, EQ fields and native equations as formulas.

#include <vector>

#include <pugixml.hpp>

#include "gallery/drawing_list.h"

namespace lp::gallery {

// Runs with no colour of their own are `textRgb`.
std::vector<TextLine> ReadParagraphs(pugi::xml_node story, long textRgb = 0);

// A native equation (m:oMath) as LaTeX for the formula typesetter; a
// displayed one (alone in its paragraph) sets its fractions at full size.
std::u16string OmmlToLatex(pugi::xml_node math, bool display);

}  // namespace lp::gallery
