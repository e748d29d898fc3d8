#pragma once
// Runtime errors with their fixed numbers (6 overflow, 9 subscript, 13 type
// mismatch, ...), so that error boxes and handlers read the Err.Number and
// Err.Description the tools expect.

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
  kFileNotFound = 53,
  kInvalidUseOfNull = 94,
};

class RuntimeError : public std::runtime_error {
 public:
  RuntimeError(int number, const std::string& description)
      : std::runtime_error(description), number_(number) {}
  int Number() const { return number_; }

 private:
  int number_;
};

[[noreturn]] void RaiseOverflow();
[[noreturn]] void RaiseTypeMismatch();
[[noreturn]] void RaiseDivisionByZero();
[[noreturn]] void RaiseInvalidProcedureCall();

}  // namespace lp
