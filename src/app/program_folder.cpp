#include "app/program_folder.h"

#include <filesystem>

#ifdef _WIN32
#include <windows.h>
#endif

namespace lp {

std::string ProgramFolder() {
#ifdef _WIN32
  wchar_t buffer[MAX_PATH];
  DWORD n = GetModuleFileNameW(nullptr, buffer, MAX_PATH);
  return std::filesystem::path(std::wstring(buffer, n)).parent_path().u8string();
#else
  std::error_code error;
  auto exe = std::filesystem::canonical("/proc/self/exe", error);
  return error ? std::string(".") : exe.parent_path().string();
#endif
}

}  // namespace lp
