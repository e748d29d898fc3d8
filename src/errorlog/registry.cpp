#include "errorlog/error_log.h"

#ifdef _WIN32
#include <windows.h>

#include <cwchar>
#include <vector>
#endif

namespace lp {

#ifdef _WIN32

namespace {

HKEY RootKey(RegistryRoot root) {
  switch (root) {
    case RegistryRoot::kClassesRoot:
      return HKEY_CLASSES_ROOT;
    case RegistryRoot::kCurrentUser:
      return HKEY_CURRENT_USER;
    case RegistryRoot::kLocalMachine:
      return HKEY_LOCAL_MACHINE;
  }
  return HKEY_CLASSES_ROOT;
}

std::wstring Wide(const std::u16string& s) {
  return std::wstring(s.begin(), s.end());
}

}  // namespace

std::u16string ReadRegistryValue(RegistryRoot root, const std::u16string& key,
                                 const std::u16string& valueName) {
  HKEY handle = nullptr;
  if (RegOpenKeyExW(RootKey(root), Wide(key).c_str(), 0, KEY_QUERY_VALUE, &handle) !=
      ERROR_SUCCESS) {
    return {};
  }
  std::wstring name = Wide(valueName);
  DWORD type = 0;
  DWORD bytes = 0;
  std::u16string result;
  if (RegQueryValueExW(handle, name.c_str(), nullptr, &type, nullptr, &bytes) == ERROR_SUCCESS &&
      (type == REG_SZ || type == REG_EXPAND_SZ)) {
    std::vector<wchar_t> buffer(bytes / sizeof(wchar_t) + 1, L'\0');
    if (RegQueryValueExW(handle, name.c_str(), nullptr, nullptr,
                         reinterpret_cast<BYTE*>(buffer.data()), &bytes) == ERROR_SUCCESS) {
      result.assign(buffer.data(), buffer.data() + std::wcslen(buffer.data()));
    }
  }
  RegCloseKey(handle);
  return result;
}

#else

std::u16string ReadRegistryValue(RegistryRoot, const std::u16string&, const std::u16string&) {
  return {};
}

#endif

}  // namespace lp
