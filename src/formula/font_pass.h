#pragma once
// The font pass over a new EQ field's shown code: greek keys into the Symbol
// letters, sign pairs into their one-character forms, letters italic and
// digits upright in Times New Roman, arrows and arcs scaled to their text.

#include "formula/driver.h"
#include "formula/generators.h"
#include "word/api.h"

namespace lp {

// Runs f; a failed Word call inside is passed over, as the passes want.
template <typename F>
void IgnoringWordErrors(F&& f) {
  try {
    f();
  } catch (const word::ComError&) {
  }
}

void RunFontPass(word::Application& app, word::Range& fieldRange, const MaskedGreek& greek,
                 const DriverControl& control);

}  // namespace lp
