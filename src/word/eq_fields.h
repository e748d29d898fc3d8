#pragma once
// What the back ends give and take when EQ fields become native equations:
// the characters of a field's code with their look, and the converter that
// makes an equation of them.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "word/types.h"

namespace word {

// One character of a field code, as the document shows it.
struct CodeCharacter {
  char16_t ch = 0;
  Text font;  // the typeface of its Latin text; empty: the paragraph's own
  bool italic = false;
  bool bold = false;
  float size = 0;  // points; 0 when not known
};

// The OMML of the equation ("<m:oMath>...</m:oMath>", UTF-8, prefixes m and
// w) made of a field's code, or nothing when the code can't be converted.
using EqFieldConverter =
    std::function<std::optional<std::string>(const std::vector<CodeCharacter>&)>;

struct EqConversion {
  long converted = 0;
  std::vector<Text> unconverted;  // the codes of the EQ fields left as they were
};

}  // namespace word
