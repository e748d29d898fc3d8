#include <cstdio>

#include "app/utility_modes.h"

namespace lp {

int LatexMode(const ModeArgs&) {
  std::fputs("not available yet\n", stderr);
  return 1;
}

}  // namespace lp
