#pragma once
#include <string>

namespace lp {

// The folder of the running executable (UTF-8), without a trailing separator.
std::string ProgramFolder();

}  // namespace lp
