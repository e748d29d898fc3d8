#pragma once
#include <vector>

#include "compare.h"

namespace comtest {

// Every finished tool's script; adding a tool is adding a row.
const std::vector<Script>& Scripts();

}  // namespace comtest
