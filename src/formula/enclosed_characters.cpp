#include "formula/enclosed_characters.h"

namespace lp {
namespace {

// The ideographs of U+3280 to U+32B0, in their order there.
constexpr char16_t kCircledIdeographs[] =
    u"一二三四五六七八九十月火水木金土日株有社名特財祝労秘男女適優印注項休写正上中下左右医宗学監企"
    u"資協夜";

char16_t Narrow(char16_t c) {
  return c >= u'！' && c <= u'～' ? static_cast<char16_t>(c - u'！' + u'!') : c;
}

char16_t CircledNumber(const std::u16string& text) {
  if (text.empty() || text.size() > 2 || (text.size() == 2 && Narrow(text[0]) == u'0')) return 0;
  int n = 0;
  for (char16_t c : text) {
    c = Narrow(c);
    if (c < u'0' || c > u'9') return 0;
    n = n * 10 + (c - u'0');
  }
  if (n == 0) return u'⓪';
  if (n <= 20) return static_cast<char16_t>(u'①' + n - 1);
  if (n <= 35) return static_cast<char16_t>(u'㉑' + n - 21);
  if (n <= 50) return static_cast<char16_t>(u'㊱' + n - 36);
  return 0;
}

char16_t CircledLetter(char16_t c) {
  c = Narrow(c);
  if (c >= u'A' && c <= u'Z') return static_cast<char16_t>(u'Ⓐ' + c - u'A');
  if (c >= u'a' && c <= u'z') return static_cast<char16_t>(u'ⓐ' + c - u'a');
  for (size_t i = 0; kCircledIdeographs[i]; ++i)
    if (kCircledIdeographs[i] == c) return static_cast<char16_t>(u'㊀' + i);
  return 0;
}

}  // namespace

char16_t EnclosedCharacter(char16_t enclosure, const std::u16string& text) {
  if (enclosure != u'○') return 0;
  if (char16_t number = CircledNumber(text)) return number;
  return text.size() == 1 ? CircledLetter(text[0]) : 0;
}

}  // namespace lp
