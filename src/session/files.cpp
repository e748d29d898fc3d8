#include "session/files.h"

#include <system_error>

#include "runtime/utf8.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace lp {

std::filesystem::path PathOf(const std::u16string& path) {
#ifdef _WIN32
  return std::filesystem::path(std::wstring(path.begin(), path.end()));
#else
  return std::filesystem::path(ToUtf8(path));
#endif
}

bool FileExists(const std::u16string& path) {
  if (path.empty()) return false;
  std::error_code ec;
  return std::filesystem::is_regular_file(PathOf(path), ec);
}

std::u16string GetTempDir() {
  std::u16string dir;
#ifdef _WIN32
  char buffer[260] = {};
  DWORD length = GetTempPathA(sizeof buffer, buffer);
  if (length == 0) return {};
  // The folder is in the system's code page; the text is cut at the first NUL.
  int units = MultiByteToWideChar(CP_ACP, 0, buffer, -1, nullptr, 0);
  std::wstring wide(units > 0 ? units : 0, L'\0');
  MultiByteToWideChar(CP_ACP, 0, buffer, -1, wide.data(), units);
  dir.assign(wide.c_str(), wide.c_str() + std::wcslen(wide.c_str()));
#else
  std::error_code ec;
  std::filesystem::path temp = std::filesystem::temp_directory_path(ec);
  if (ec) return {};
  dir = FromUtf8(temp.string());
#endif
  if (dir.empty() || dir.back() != kPathSeparator) dir += kPathSeparator;
  return dir;
}

}  // namespace lp
