#include <cstdlib>
#include <cwchar>

#include "errorlog/error_log.h"
#include "runtime/convert.h"
#include "runtime/text.h"
#include "runtime/utf8.h"
#include "session/document_init.h"

namespace lp {

namespace {

struct VersionName {
  const char16_t* digits;
  const char16_t* name;
};

// Searched in this order: the first row whose digits stand in the version wins.
constexpr VersionName kVersionNames[] = {
    {u"8", u"97"},    {u"9", u"2000"},  {u"10", u"XP"},
    {u"11", u"2003"}, {u"12", u"2007"}, {u"14", u"2010"},
};

struct StartupFolder {
  const char16_t* name;
  const char16_t* folder;
};

// Version 10 is named "XP" above and sought as "xp" here, so it never finds
// its folder: Word 2002 users get the template installed as an add-in.
constexpr StartupFolder kStartupFolders[] = {
    {u"97", u"\\Microsoft Office\\OFFICE8\\STARTUP"},
    {u"2000", u"\\Microsoft Office\\OFFICE9\\STARTUP"},
    {u"xp", u"\\Microsoft Office\\OFFICE10\\STARTUP"},
    {u"2003", u"\\Microsoft Office\\OFFICE11\\STARTUP"},
    {u"2007", u"\\Microsoft Office\\OFFICE12\\STARTUP"},
    {u"2010", u"\\Microsoft Office\\OFFICE14\\STARTUP"},
};

std::u16string ProgramFilesFolder() {
#ifdef _WIN32
  const wchar_t* value = _wgetenv(L"ProgramFiles");
  return value ? std::u16string(value, value + std::wcslen(value)) : std::u16string();
#else
  const char* value = std::getenv("ProgramFiles");
  return value ? FromUtf8(value) : std::u16string();
#endif
}

std::u16string VersionName(const std::u16string& version) {
  if (version.empty()) return {};
  for (const auto& row : kVersionNames) {
    if (InStrText(version, row.digits) > 0) return row.name;
  }
  return {};
}

}  // namespace

std::u16string GetStartupPath(int16_t version) {
  std::u16string v =
      version == 0 ? ReadRegistryValue(RegistryRoot::kClassesRoot, u"Word.Application\\CurVer", u"")
                   : Trim(Str(version));
  std::u16string name = VersionName(v);
  for (const auto& row : kStartupFolders) {
    if (name == row.name) return ProgramFilesFolder() + row.folder;
  }
  return {};
}

}  // namespace lp
