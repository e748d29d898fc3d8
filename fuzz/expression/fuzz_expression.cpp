// Any text through the normaliser and the evaluator: nothing may crash or
// escape but EvalError, and the block evaluator must fail exactly where the
// one-point evaluator does and agree with it elsewhere.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "runtime/utf8.h"
#include "toolkit/eval_error.h"
#include "toolkit/expression.h"
#include "toolkit/normalise.h"

namespace {

void Check(const std::u16string& text) {
  const double xs[] = {0, -1.5, 2, 1e-3};
  double values[4];
  try {
    lp::CompiledExpression expression(text);
    expression.EvaluateMany(xs, values);
    for (int i = 0; i < 4; ++i) {
      bool failed = false;
      double value = 0;
      try {
        value = expression.Evaluate(xs[i]);
      } catch (const lp::EvalError&) {
        failed = true;
      }
      if (failed != std::isnan(values[i])) std::abort();
      if (!failed && (value != values[i] || !std::isfinite(value))) std::abort();
    }
  } catch (const lp::EvalError&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::u16string text = lp::FromUtf8(std::string_view(reinterpret_cast<const char*>(data), size));
  Check(text);
  Check(lp::NormaliseExpression(text));
  return 0;
}
