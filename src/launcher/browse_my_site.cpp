#include "launcher/browse_my_site.h"

#include <filesystem>

#include "launcher/start_detached.h"
#include "runtime/utf8.h"

namespace lp {

std::string CompanionPath(const std::u16string& programFolder) {
#ifdef _WIN32
  const char* name = "lumenpadsetup.exe";
#else
  const char* name = "lumenpadsetup";
#endif
  return (std::filesystem::path(ToUtf8(programFolder)) / name).string();
}

bool BrowseMySite(Session& session) {
  std::string path = CompanionPath(session.programFolder);
  if (std::filesystem::is_regular_file(path)) {
    StartDetached(path, "browse");
    return true;
  }
  session.prompt.MsgBox(
      u"在lumenpad目录下未找到lumenpadsetup."
      u"exe，无法获得《流明画板》的相关设置信息！同时您也将无法及时得到《流明画板》的最新版本及更新"
      u"信息。详情请查看" +
          std::u16string(kWebAddress) + u"的说明。",
      vbOKOnly);
  return false;
}

}  // namespace lp
