#pragma once
// Small file helpers of the session.

#include <filesystem>
#include <string>

namespace lp {

// The separator the program puts between its folder and a file name.
#ifdef _WIN32
constexpr char16_t kPathSeparator = u'\\';
#else
constexpr char16_t kPathSeparator = u'/';
#endif

std::filesystem::path PathOf(const std::u16string& path);

// A plain file (not a folder) is there; an empty path is False without a look-up.
bool FileExists(const std::u16string& path);

// The system's temp folder ending in a separator, or "" when the system has none.
std::u16string GetTempDir();

}  // namespace lp
