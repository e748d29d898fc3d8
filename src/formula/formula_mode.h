#pragma once
// The --eq and --latex utility modes: the generators' output for a formula
// given on the command line, or for each line of the input.

#include <chrono>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "formula/driver.h"
#include "formula/generators.h"
#include "settings/config_globals.h"

namespace lp {

using FormulaGenerator =
    std::function<std::u16string(const std::u16string& text, const DriverControl& control)>;

// How long one formula may take before it counts as never ending.
constexpr std::chrono::milliseconds kFormulaTimeLimit{500};

// args holds TEXT, or "-" to read one formula per line from in and write one
// result per line; a formula past its time limit writes "error: timeout".
// Returns 0, 2 without an argument, 3 when a single formula timed out.
int RunFormulaMode(const std::vector<std::string>& args, const FormulaGenerator& generate,
                   std::chrono::milliseconds limit, std::istream& in, std::ostream& out,
                   std::ostream& err);

FormulaSettings ToFormulaSettings(const ConfigGlobals& config);

}  // namespace lp
