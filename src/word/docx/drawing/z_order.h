#pragma once
// Stacking and wrapping of anchors. Word stacks floating shapes by the
// relativeHeight of wp:anchor (higher is in front) and puts a shape behind
// the text with behindDoc; the wrap element tells how text flows around it.

#include <pugixml.hpp>

#include "word/types.h"

namespace word::docx::drawing {

// A relativeHeight above every shape of the document.
unsigned NextRelativeHeight(const pugi::xml_document& document);

void ApplyZOrder(const pugi::xml_document& document, pugi::xml_node anchor, MsoZOrderCmd command);

WdWrapType WrapTypeOf(pugi::xml_node anchor);
// wdWrapInline is not a floating shape's wrap: it raises ComError.
void SetWrapType(pugi::xml_node anchor, WdWrapType type);

}  // namespace word::docx::drawing
