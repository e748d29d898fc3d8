// Any notation through both generators and the TeX converter: a result or a
// timeout, never a crash.
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

#include "formula/generators.h"
#include "formula/latex_to_omml.h"
#include "runtime/utf8.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::u16string text = lp::FromUtf8(std::string(reinterpret_cast<const char*>(data), size));
  const lp::FormulaSettings settings[] = {{false, false}, {true, true}};
  for (const auto& s : settings) {
    try {
      lp::FormulaToEq(text, s, lp::DriverControl::WithTimeout(std::chrono::milliseconds(20)));
    } catch (const lp::FormulaAborted&) {
    }
    try {
      lp::LatexToOmml(lp::FormulaToFinishedLatex(
          text, s, lp::DriverControl::WithTimeout(std::chrono::milliseconds(20))));
    } catch (const lp::FormulaAborted&) {
    }
  }
  return 0;
}
