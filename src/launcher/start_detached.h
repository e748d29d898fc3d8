#pragma once
// Starting another program and not waiting for it.

#include <string>

namespace lp {

// Starts the program with one argument, its output discarded. A program that
// can't be started is passed over.
void StartDetached(const std::string& path, const std::string& argument);

}  // namespace lp
