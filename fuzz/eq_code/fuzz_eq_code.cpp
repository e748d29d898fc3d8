// Any text as the code of an EQ field: the parser either reads it or throws
// EqCodeError, and the conversion either gives an equation whose tags pair
// up or refuses; nothing crashes, loops or throws anything else. The first
// byte picks which characters stand in the Symbol font.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "formula/eq_code.h"
#include "formula/eq_to_omml.h"
#include "runtime/utf8.h"

namespace {

// Each "<m:x" has its "</m:x>" or is "<m:x/>".
bool TagsPair(const std::string& xml) {
  long open = 0;
  for (size_t i = 0; (i = xml.find('<', i)) != std::string::npos; ++i) {
    const size_t end = xml.find('>', i);
    if (end == std::string::npos) return false;
    if (xml[i + 1] == '/')
      --open;
    else if (xml[end - 1] != '/')
      ++open;
    if (open < 0) return false;
  }
  return open == 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const uint8_t symbols = data[0];
  std::u16string text =
      lp::FromUtf8(std::string_view(reinterpret_cast<const char*>(data + 1), size - 1));
  try {
    lp::ParseEqCode(text);
  } catch (const lp::EqCodeError&) {
  }
  std::vector<word::CodeCharacter> code;
  for (size_t i = 0; i < text.size(); ++i) {
    word::CodeCharacter c{text[i], {}, (i & 1) != 0, (i & 2) != 0, static_cast<float>(i % 13)};
    if (symbols & (1u << (i % 8))) c.font = u"Symbol";
    code.push_back(c);
  }
  if (auto omml = lp::EqFieldToOmml(code); omml && !TagsPair(*omml)) std::abort();
  return 0;
}
