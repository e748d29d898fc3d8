#pragma once
// The options that ConfigWord reads from the table config at every run.
// Booleans are 16-bit flags: True is -1, False 0.

#include <cstdint>

namespace lp {

struct ConfigGlobals {
  int16_t EmbellishFormula = 0;  // gs sets the formula's fonts character by character
  int16_t blMathType = 0;        // formulas go the TeX route instead of EQ fields
  int16_t blFS = 0;              // "/" puts the first typed operand in the denominator
  int16_t blPLZH = 0;            // A, P, C: first argument below the letter, second above
  int16_t intK = 0;              // a graph is the smaller page side divided by intK wide
  int16_t intKD = 0;             // tick length: the scale divided by intKD
  int16_t blYkdLeft = 0;         // ticks of the y axis on its left
  int16_t blYtxtLeft = 0;        // labels of the y axis on its left
  int16_t blXkdUp = 0;           // ticks of the x axis above it
  int16_t blXtxtUp = 0;          // labels of the x axis above it
  int16_t blAutoKD = 0;          // the tick step follows the range instead of being 1
  int16_t blInlineShape = 0;     // kept in the settings; no tool reads it
};

}  // namespace lp
