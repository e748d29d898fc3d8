#pragma once
// The shared body of the --eq and --latex modes.

#include "app/utility_modes.h"
#include "formula/generators.h"

namespace lp {

using StoredGenerator = std::u16string (*)(const std::u16string& text,
                                           const FormulaSettings& settings,
                                           const DriverControl& control);

// Reads blFS and blPLZH from the settings store, then converts as the mode
// options say.
int FormulaMode(const ModeArgs& in, StoredGenerator generate);

}  // namespace lp
