#pragma once
#include <optional>
#include <string>
#include <vector>

namespace lp {

// Runs the utility mode that args[0] names (--normalise, --eval, --eq,
// --latex, --jpeg) and gives its exit status; nothing when args[0] names none.
std::optional<int> RunUtilityMode(const std::vector<std::string>& args);

}  // namespace lp
