#pragma once
// Runtime errors with their fixed numbers (6 overflow, 9 subscript, 13 type
// mismatch, ...), so that error boxes and handlers read the Err.Number and
// Err.Description the tools expect.

#include <span>
#include <stdexcept>
#include <string>

namespace lp {

enum RuntimeErrorNumber {
  kInvalidProcedureCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscriptOutOfRange = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kInternalError = 51,
  kFileNotFound = 53,
  kPathFileAccessError = 75,
  kInvalidUseOfNull = 94,
};

// Every number the runtime and the settings store raise, with the
// description a Chinese system shows for it (UTF-8).
struct ErrorText {
  int number;
  const char* description;
};
std::span<const ErrorText> RuntimeErrorTexts();
// The description of a number of that list; "应用程序定义的错误或对象定义的错误" else.
std::string ErrorDescription(int number);

class RuntimeError : public std::runtime_error {
 public:
  RuntimeError(int number, const std::string& description)
      : std::runtime_error(description), number_(number) {}
  // The error with the description the system gives its number.
  explicit RuntimeError(int number) : RuntimeError(number, ErrorDescription(number)) {}
  int Number() const { return number_; }

 private:
  int number_;
};

[[noreturn]] void RaiseOverflow();
[[noreturn]] void RaiseTypeMismatch();
[[noreturn]] void RaiseDivisionByZero();
[[noreturn]] void RaiseInvalidProcedureCall();

}  // namespace lp
