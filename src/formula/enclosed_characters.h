#pragma once
// The characters Unicode has ready-made for a text in a circle (① to ㊿,
// Ⓐ to ⓩ, ㊀ to ㊰): a teacher's numbered items and stamps print as one
// character, in any font that has it, rather than as two drawn over each
// other.

#include <string>

namespace lp {

// The one character for the text in the enclosure (○, □, △ or ◇), or 0 when
// Unicode has none. Full-width digits and letters count as their ASCII ones.
char16_t EnclosedCharacter(char16_t enclosure, const std::u16string& text);

}  // namespace lp
