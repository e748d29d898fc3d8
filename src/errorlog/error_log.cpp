#include "errorlog/error_log.h"

#include <new>

#include "runtime/convert.h"
#include "runtime/error.h"
#include "runtime/utf8.h"
#include "word/types.h"

namespace lp {

std::u16string ErrorLabel(const std::u16string& routine, long line) {
  return routine + u"-->line" + Str(line);
}

void ReportError(Prompt& prompt, const std::u16string& label, long errNumber,
                 const std::u16string& errDescription) {
  prompt.MsgBox(errDescription + u"\r\n" + label, vbOKOnly, u"错误号:" + Str(errNumber));
}

ErrInfo ErrOf(const std::exception& error) {
  std::u16string description = FromUtf8(error.what());
  if (auto* e = dynamic_cast<const RuntimeError*>(&error)) return {e->Number(), description};
  if (auto* e = dynamic_cast<const word::ComError*>(&error)) return {e->Number(), description};
  if (dynamic_cast<const std::bad_alloc*>(&error))
    return {kOutOfMemory, FromUtf8(ErrorDescription(kOutOfMemory))};
  // Anything else is a fault of the program itself: an internal error (51).
  return {kInternalError, FromUtf8(ErrorDescription(kInternalError))};
}

void ReportError(Prompt& prompt, const std::u16string& label, const std::exception& error) {
  ErrInfo err = ErrOf(error);
  ReportError(prompt, label, err.number, err.description);
}

void ShowInputError(Prompt& prompt, const std::u16string& label) {
  if (label.empty()) {
    prompt.MsgBox(u"您所输入的数据范围有误，请检查后重新输入！", vbOKOnly);
  } else {
    prompt.MsgBox(label, vbOKOnly, u" 数据输入有误，请检查后重新输入");
  }
}

int16_t TrailingZeros(int32_t n) {
  int16_t count = 0;
  while (n % 10 == 0) {
    if (count == INT16_MAX) RaiseOverflow();
    n /= 10;
    ++count;
  }
  return count;
}

}  // namespace lp
