#include "launcher/start_detached.h"

#ifdef _WIN32
#include <windows.h>

#include "runtime/utf8.h"
#else
#include <fcntl.h>
#include <spawn.h>
#endif

namespace lp {

#ifdef _WIN32

void StartDetached(const std::string& path, const std::string& argument) {
  std::u16string line = FromUtf8("\"" + path + "\" " + argument);
  std::wstring command(line.begin(), line.end());
  STARTUPINFOW si{};
  si.cb = sizeof si;
  si.dwFlags = STARTF_USESHOWWINDOW;
  si.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION pi{};
  if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &si,
                     &pi)) {
    CloseHandle(pi.hThread);
    CloseHandle(pi.hProcess);
  }
}

#else

extern "C" char** environ;

void StartDetached(const std::string& path, const std::string& argument) {
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
  std::string program = path, arg = argument;
  char* argv[] = {program.data(), arg.data(), nullptr};
  pid_t pid;
  posix_spawn(&pid, program.c_str(), &actions, nullptr, argv, environ);
  posix_spawn_file_actions_destroy(&actions);
}

#endif

}  // namespace lp
