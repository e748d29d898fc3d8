#include "runtime/utf8.h"

namespace lp {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

void AppendUtf16(std::u16string& out, char32_t c) {
  if (c < 0x10000) {
    out += static_cast<char16_t>(c);
  } else {
    c -= 0x10000;
    out += static_cast<char16_t>(0xD800 + (c >> 10));
    out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
  }
}

bool IsHigh(char16_t u) {
  return u >= 0xD800 && u <= 0xDBFF;
}
bool IsLow(char16_t u) {
  return u >= 0xDC00 && u <= 0xDFFF;
}

// Decodes one sequence at s[i...], advancing i; malformed input gives the
// replacement character and skips one byte.
char32_t DecodeOne(std::string_view s, size_t& i) {
  unsigned char lead = static_cast<unsigned char>(s[i++]);
  if (lead < 0x80) return lead;
  int extra = lead >= 0xF0 && lead < 0xF5 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC2 ? 1 : -1;
  if (lead >= 0xF5) extra = -1;
  if (extra < 0 || i + extra > s.size()) return kReplacement;
  char32_t c = lead & (0x3F >> extra);
  for (int k = 0; k < extra; ++k) {
    unsigned char b = static_cast<unsigned char>(s[i + k]);
    if ((b & 0xC0) != 0x80) return kReplacement;
    c = (c << 6) | (b & 0x3F);
  }
  static constexpr char32_t kMinimum[] = {0, 0x80, 0x800, 0x10000};
  if (c < kMinimum[extra] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return kReplacement;
  i += extra;
  return c;
}

}  // namespace

std::string ToUtf8(const std::u16string& s) {
  std::string out;
  out.reserve(s.size());
  for (size_t i = 0; i < s.size(); ++i) {
    char32_t c = s[i];
    if (IsHigh(s[i]) && i + 1 < s.size() && IsLow(s[i + 1])) {
      c = 0x10000 + ((c - 0xD800) << 10) + (s[++i] - 0xDC00);
    } else if (IsHigh(s[i]) || IsLow(s[i])) {
      c = kReplacement;
    }
    AppendUtf8(out, c);
  }
  return out;
}

std::u16string FromUtf8(std::string_view s) {
  std::u16string out;
  out.reserve(s.size());
  for (size_t i = 0; i < s.size();) AppendUtf16(out, DecodeOne(s, i));
  return out;
}

}  // namespace lp
