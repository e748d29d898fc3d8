#include <charconv>
#include <cstdio>
#include <iostream>
#include <optional>
#include <string>

#include "app/line_inputs.h"
#include "app/utility_modes.h"
#include "runtime/decimal_digits.h"
#include "runtime/utf8.h"
#include "toolkit/eval_error.h"
#include "toolkit/expression.h"
#include "toolkit/normalise.h"

namespace lp {
namespace {

struct EvalRequest {
  std::string text;
  std::optional<double> x;  // unset: x is an unset variable, worth 0
  bool valid = false;
};

EvalRequest ReadRequest(const std::vector<std::string>& args) {
  EvalRequest request;
  bool haveText = false;
  for (size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--x" && i + 1 < args.size()) {
      request.x = ReadDecimal(args[++i]);
      if (!request.x) return request;
    } else if (!haveText) {
      request.text = args[i];
      haveText = true;
    } else {
      return request;
    }
  }
  request.valid = haveText;
  return request;
}

std::string Shortest(double value) {
  char text[32];
  auto written = std::to_chars(text, text + sizeof text, value);
  return std::string(text, written.ptr);
}

// The value, or "error: " and the kind.
std::string Answer(const std::string& text, std::optional<double> x) {
  try {
    std::u16string normalised = NormaliseExpression(FromUtf8(text));
    if (x) return Shortest(EvalAtX(*x, normalised));
    return Shortest(CompiledExpression(normalised).Evaluate(0));
  } catch (const EvalError& e) {
    return std::string("error: ") + EvalErrorKindName(e.Kind());
  }
}

}  // namespace

int EvalMode(const ModeArgs& in) {
  EvalRequest request = ReadRequest(in.args);
  if (!request.valid) {
    std::fputs("usage: lumenpad --eval TEXT|- [--x X]\n", stderr);
    return 2;
  }
  if (request.text == "-") {
    AnswerEachInput("-", [&](const std::string& text) { return Answer(text, request.x); });
    return 0;
  }
  std::string answer = Answer(request.text, request.x);
  std::cout << answer << '\n';
  return answer.rfind("error: ", 0) == 0 ? 1 : 0;
}

}  // namespace lp
