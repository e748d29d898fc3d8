#include "app/utility_dispatch.h"

#include <string_view>

#include "app/utility_modes.h"

namespace lp {

std::optional<int> RunUtilityMode(const std::vector<std::string>& args) {
  struct Mode {
    std::string_view option;
    int (*run)(const ModeArgs&);
  };
  static constexpr Mode kModes[] = {{"--normalise", &NormaliseMode},
                                    {"--eval", &EvalMode},
                                    {"--eq", &EqMode},
                                    {"--latex", &LatexMode},
                                    {"--jpeg", &JpegMode}};
  if (args.empty()) return std::nullopt;
  for (const Mode& mode : kModes) {
    if (args[0] != mode.option) continue;
    ModeArgs in;
    for (size_t i = 1; i < args.size(); ++i) {
      if (args[i] == "--config" && i + 1 < args.size()) {
        in.configPath = args[++i];
      } else {
        in.args.push_back(args[i]);
      }
    }
    return mode.run(in);
  }
  return std::nullopt;
}

}  // namespace lp
