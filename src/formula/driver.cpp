#include "formula/driver.h"

#include "formula/scanner.h"
#include "runtime/text.h"

namespace lp {
namespace {

// The words whose g is a letter and no root.
bool InProtectedWord(const std::u16string& text, int32_t pos, GeneratorKind kind) {
  if (kind == GeneratorKind::kEq) {
    // The first character is never part of a word here.
    if (pos == 1) return false;
    return (pos > 2 && Mid(text, pos - 2, 2) == u"lo") || Mid(text, pos - 1, 1) == u"l";
  }
  // The LaTeX generator also protects the \begin{align} and \right it writes.
  std::u16string word = LetterRun(text, pos, true);
  return word == u"lg" || word == u"log" || word == u"beg" || word == u"alig" || word == u"rig";
}

}  // namespace

void DriverControl::Breathe() const {
  if (pump && !pump()) throw FormulaAborted(FormulaAborted::kCancelled);
  if (std::chrono::steady_clock::now() > deadline) throw FormulaAborted(FormulaAborted::kTimeout);
}

DriverControl DriverControl::WithTimeout(std::chrono::milliseconds limit) {
  DriverControl control;
  control.deadline = std::chrono::steady_clock::now() + limit;
  return control;
}

const std::vector<std::u16string>& FormulaOps() {
  static const std::vector<std::u16string> ops = {u"sqr", u"g",  u"^",  u"_",  u"/",   u"A(",
                                                  u"P(",  u"C(", u"hu", u"xl", u"fcz", u"bar"};
  return ops;
}

int32_t FindOperator(const std::u16string& text, const std::u16string& op, GeneratorKind kind) {
  int32_t pos = InStr(text, op);
  if (op != u"g") return pos;
  while (pos > 0 && InProtectedWord(text, pos, kind)) pos = InStr(pos + 1, text, op);
  return pos;
}

std::u16string RunFormulaDriver(std::u16string text, GeneratorKind kind, const Rewrite& rewrite,
                                const DriverControl& control) {
  const auto& ops = FormulaOps();
  for (;;) {
    control.Breathe();
    int32_t pos = 0;
    size_t index = 0;
    while (index < ops.size() && (pos = FindOperator(text, ops[index], kind)) == 0) ++index;
    if (pos == 0) return text;
    text = rewrite(text, static_cast<int>(index) + 1, pos);
  }
}

}  // namespace lp
