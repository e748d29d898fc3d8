#pragma once
// --select: the teacher's selection made before the tool runs.

#include "word/api.h"

namespace lp {

// Selects the first occurrence of text in the main story through Find;
// false when the document doesn't hold it.
bool SelectFirst(word::Application& app, const word::Text& text);

// --select-shape: selects the first floating shape whose name begins with
// the text, as a click on a figure does; or, for a comma-separated list, the
// first shape of each prefix together, as shift-clicks do. False when one is
// missing.
bool SelectShape(word::Application& app, const word::Text& names);

}  // namespace lp
