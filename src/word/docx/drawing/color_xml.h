#pragma once
// Colours inside a fill element (a:solidFill, a:fgClr, a:bgClr): an
// a:srgbClr whose a:alpha child carries the opacity.

#include <pugixml.hpp>

namespace word::docx::drawing {

// The colour of the holder as a BGR long; 0 for theme colours and the like.
long ReadColor(pugi::xml_node holder);
// Replaces the holder's colour, keeping its opacity.
void WriteColor(pugi::xml_node holder, long bgr);

// 0 (opaque) to 1 (clear).
float ReadTransparency(pugi::xml_node holder);
void WriteTransparency(pugi::xml_node holder, float transparency);

}  // namespace word::docx::drawing
