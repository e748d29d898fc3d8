#include <cstdio>

#include "app/line_inputs.h"
#include "app/utility_modes.h"
#include "runtime/utf8.h"
#include "toolkit/normalise.h"

namespace lp {

int NormaliseMode(const ModeArgs& in) {
  if (in.args.size() != 1) {
    std::fputs("usage: lumenpad --normalise TEXT|-\n", stderr);
    return 2;
  }
  AnswerEachInput(in.args[0], [](const std::string& text) {
    return ToUtf8(NormaliseExpression(FromUtf8(text)));
  });
  return 0;
}

}  // namespace lp
