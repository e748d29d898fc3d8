#include <iostream>

#include "app/formula_modes.h"
#include "app/program_folder.h"
#include "formula/formula_mode.h"
#include "settings/settings_store.h"

namespace lp {

int FormulaMode(const ModeArgs& in, StoredGenerator generate) {
  ConfigGlobals config = ReadConfigGlobals(DatabasePath(in.configPath, ProgramFolder()));
  FormulaSettings settings = ToFormulaSettings(config);
  auto convert = [&](const std::u16string& text, const DriverControl& control) {
    return generate(text, settings, control);
  };
  return RunFormulaMode(in.args, convert, kFormulaTimeLimit, std::cin, std::cout, std::cerr);
}

int EqMode(const ModeArgs& in) {
  return FormulaMode(in, FormulaToEq);
}

}  // namespace lp
