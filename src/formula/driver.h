#pragma once
// The rewrite loop both generators run: find the first operator of the table
// that occurs, rewrite it in the string, let the user interface breathe, and
// start over at the first entry. The table order is the precedence of the
// notation. Some inputs keep an operator forever; the loop then runs until the
// teacher cancels or the deadline passes.

#include <chrono>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace lp {

class Prompt;

// Why a conversion stopped without a result.
class FormulaAborted : public std::runtime_error {
 public:
  enum Reason { kTimeout, kCancelled };
  explicit FormulaAborted(Reason reason)
      : std::runtime_error(reason == kTimeout ? "formula timeout" : "formula cancelled"),
        reason_(reason) {}
  Reason reason() const { return reason_; }

 private:
  Reason reason_;
};

// What the loop does between two rewrites. pump lets the user interface run
// and returns false when the teacher has cancelled; past the deadline the
// conversion gives up.
struct DriverControl {
  std::function<bool()> pump;
  std::chrono::steady_clock::time_point deadline = std::chrono::steady_clock::time_point::max();
  Prompt* prompt = nullptr;  // where MatchBracket complains; none in scripts

  // Throws FormulaAborted when cancelled or late.
  void Breathe() const;
  static DriverControl WithTimeout(std::chrono::milliseconds limit);
};

// The operator table, twelve entries in precedence order.
const std::vector<std::u16string>& FormulaOps();

enum class GeneratorKind { kEq, kLatex };

// Position of the first occurrence of op that counts as an operator, 0 if
// none. Only "g" has occurrences that do not count: those inside the words
// each generator protects.
int32_t FindOperator(const std::u16string& text, const std::u16string& op, GeneratorKind kind);

// Runs the loop: rewrite(text, opIndex, pos) returns the new text. opIndex
// is 1-based as in the table.
using Rewrite = std::function<std::u16string(const std::u16string&, int, int32_t)>;
std::u16string RunFormulaDriver(std::u16string text, GeneratorKind kind, const Rewrite& rewrite,
                                const DriverControl& control);

}  // namespace lp
