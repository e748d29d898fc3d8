#include "launcher/run_options.h"

namespace lp {

RunOptions ParseRunOptions(const std::vector<std::string>& args) {
  RunOptions o;
  std::vector<std::string> words;
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    auto value = [&]() -> const std::string& {
      if (i + 1 >= args.size()) throw UsageError(a + " needs a value");
      return args[++i];
    };
    if (a == "--doc") {
      o.doc = value();
    } else if (a == "--select") {
      o.select = value();
      o.haveSelect = true;
    } else if (a == "--select-shape") {
      o.selectShape = value();
      o.haveSelectShape = true;
    } else if (a == "--set") {
      const std::string& v = value();
      size_t eq = v.find('=');
      if (eq == std::string::npos || eq == 0) throw UsageError("--set wants NAME=VALUE, not " + v);
      o.actions.push_back({ControlAction::kSet, v.substr(0, eq), v.substr(eq + 1)});
    } else if (a == "--click") {
      o.actions.push_back({ControlAction::kClick, value(), {}});
    } else if (a == "--grab") {
      o.actions.push_back({ControlAction::kGrab, {}, value()});
    } else if (a == "--answer") {
      o.answers.push_back(value());
    } else if (a == "--config") {
      o.config = value();
    } else {
      words.push_back(a);
    }
  }
  for (size_t k = 0; k < words.size(); ++k) o.commandLine += (k ? " " : "") + words[k];
  return o;
}

}  // namespace lp
