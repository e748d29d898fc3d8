#include <string>

#include "runtime/convert.h"
#include "runtime/error.h"
#include "settings/database.h"

namespace lp {
namespace {

[[noreturn]] void RaiseInvalidUseOfNull() {
  throw RuntimeError(kInvalidUseOfNull);
}

double NumberOf(const DbValue& v) {
  if (std::holds_alternative<std::monostate>(v)) RaiseInvalidUseOfNull();
  if (auto* i = std::get_if<int64_t>(&v)) return static_cast<double>(*i);
  if (auto* d = std::get_if<double>(&v)) return *d;
  if (auto* s = std::get_if<std::u16string>(&v)) {
    if (*s == u"True") return -1;
    if (*s == u"False") return 0;
    if (s->find_first_of(u"0123456789") == std::u16string::npos) RaiseTypeMismatch();
    return Val(*s);
  }
  RaiseTypeMismatch();
}

}  // namespace

int16_t CBoolValue(const DbValue& v) {
  return NumberOf(v) != 0 ? vbTrue : vbFalse;
}

int16_t CIntValue(const DbValue& v) {
  return CInt(NumberOf(v));
}

std::u16string CStrValue(const DbValue& v) {
  if (std::holds_alternative<std::monostate>(v)) RaiseInvalidUseOfNull();
  if (auto* s = std::get_if<std::u16string>(&v)) return *s;
  if (std::holds_alternative<std::vector<uint8_t>>(v)) RaiseTypeMismatch();
  std::u16string text = Str(NumberOf(v));
  return text[0] == u' ' ? text.substr(1) : text;
}

}  // namespace lp
