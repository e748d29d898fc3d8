#pragma once
// The options that ConfigWord reads from the table config at every run.
// Booleans are kept as the original 16-bit values: True is -1.

#include <cstdint>

namespace lp {

struct ConfigGlobals {
  int16_t EmbellishFormula = 0;
  int16_t blMathType = 0;
  int16_t blFS = 0;
  int16_t blPLZH = 0;
  int16_t intK = 0;
  int16_t intKD = 0;
  int16_t blYkdLeft = 0;
  int16_t blYtxtLeft = 0;
  int16_t blXkdUp = 0;
  int16_t blXtxtUp = 0;
  int16_t blAutoKD = 0;
  int16_t blInlineShape = 0;
};

}  // namespace lp
