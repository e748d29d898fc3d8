#pragma once
// The one error reporter: a caught error becomes a message box whose label
// tells where it arose. Beside it, the shared input message and two small
// helpers that several tools use.

#include <cstdint>
#include <exception>
#include <string>

#include "runtime/prompt.h"

namespace lp {

// "Name-->line" followed by the line as Str writes it: ErrorLabel(u"submain", 0)
// is "submain-->line 0".
std::u16string ErrorLabel(const std::u16string& routine, long line = 0);

// Shows the description and the label in a box titled "错误号:" and the number.
void ReportError(Prompt& prompt, const std::u16string& label, long errNumber,
                 const std::u16string& errDescription);
// The same with the number and description read from a caught error:
// lp::RuntimeError, word::ComError, or any other std::exception.
void ReportError(Prompt& prompt, const std::u16string& label, const std::exception& error);

// The number and description a caught error stands for, as Err would hold them.
struct ErrInfo {
  long number = 0;
  std::u16string description;
};
ErrInfo ErrOf(const std::exception& error);

// The shared complaint about bad input; a non-empty label is the body of the box.
void ShowInputError(Prompt& prompt, const std::u16string& label);

// How many times n divides by 10. Zero never stops dividing: the count is a
// 16-bit counter, so error 6 (overflow) past 32767.
int16_t TrailingZeros(int32_t n);

enum class RegistryRoot { kClassesRoot, kCurrentUser, kLocalMachine };

// A string value of the Windows registry; an empty value name reads the
// key's default value. A missing key or value, or another system, gives "".
std::u16string ReadRegistryValue(RegistryRoot root, const std::u16string& key,
                                 const std::u16string& valueName);

}  // namespace lp
