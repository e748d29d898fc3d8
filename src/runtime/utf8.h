#pragma once
// UTF-8 at the edges (files, command line); the core works in UTF-16.

#include <string>
#include <string_view>

namespace lp {

// Unpaired surrogates become U+FFFD.
std::string ToUtf8(const std::u16string& s);
// Malformed sequences become U+FFFD.
std::u16string FromUtf8(std::string_view s);

}  // namespace lp
