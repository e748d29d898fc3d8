#pragma once
// EQ fields of a part replaced by the equations a converter makes of their
// codes. The code is read with the look of each character; a SYMBOL field
// inside it gives its one character, an EQ field inside it its own code.

#include <pugixml.hpp>

#include "word/docx/styles.h"
#include "word/eq_fields.h"

namespace word::docx {

// Fields that span paragraphs, share a run with text, or hold other fields
// in their code are left as they were and listed.
EqConversion ReplaceEqFields(pugi::xml_node root, const EqFieldConverter& convert,
                             const StyleSheet& styles);

}  // namespace word::docx
