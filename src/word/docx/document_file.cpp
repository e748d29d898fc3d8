#include "word/docx/document_file.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <random>
#include <system_error>
#include <vector>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "runtime/utf8.h"
#include "word/docx/docx_error.h"

namespace word::docx {
namespace fs = std::filesystem;
namespace {

std::string Shown(const fs::path& file) {
  return reinterpret_cast<const char*>(file.u8string().c_str());
}

// Word names its owner file "~$" + the name, the first one or two characters
// of a longer name giving way to it; LibreOffice ".~lock." + the name + "#".
std::vector<fs::path> OwnerFiles(const fs::path& file) {
  const fs::path folder = file.parent_path();
  const std::u16string name = lp::FromUtf8(Shown(file.filename()));
  std::vector<fs::path> owners = {folder / fs::u8path("~$" + Shown(file.filename())),
                                  folder / fs::u8path(".~lock." + Shown(file.filename()) + "#")};
  for (size_t cut : {1, 2})
    if (name.size() > cut)
      owners.push_back(folder / fs::u8path("~$" + lp::ToUtf8(name.substr(cut))));
  return owners;
}

bool Exists(const fs::path& file) {
  std::error_code error;
  return fs::exists(fs::symlink_status(file, error));
}

// Seeded once per thread: a batch names a temporary file for every save.
std::string RandomSuffix() {
  thread_local std::mt19937 random{std::random_device{}()};
  return std::to_string(random() % 1000000);
}

#ifndef _WIN32
bool CanWrite(const fs::path& path) {
  struct stat st {};
  if (::stat(path.c_str(), &st) != 0) return false;
  // Under root access() says yes to every file: a file nobody may write stays read-only.
  return ::access(path.c_str(), W_OK) == 0 && (S_ISDIR(st.st_mode) || (st.st_mode & 0222) != 0);
}

void SyncFile(const fs::path& file) {
  int fd = ::open(file.c_str(), O_RDONLY);
  if (fd < 0) return;
  ::fsync(fd);
  ::close(fd);
}

void CopyOwnership(const fs::path& from, const fs::path& to) {
  struct stat st {};
  if (::stat(from.c_str(), &st) != 0) return;
  ::chmod(to.c_str(), st.st_mode & 07777);
  if (::chown(to.c_str(), st.st_uid, st.st_gid) != 0)
    (void)!::chown(to.c_str(), static_cast<uid_t>(-1), st.st_gid);  // keep the group if allowed
}

std::uint64_t Fnv1a(const std::string& text) {
  std::uint64_t h = 1469598103934665603ull;
  for (unsigned char c : text) h = (h ^ c) * 1099511628211ull;
  return h;
}
#else
bool CanWrite(const fs::path& path) {
  std::error_code error;
  auto perms = fs::status(path, error).permissions();
  return !error && (perms & fs::perms::owner_write) != fs::perms::none;
}
void SyncFile(const fs::path&) {}
void CopyOwnership(const fs::path& from, const fs::path& to) {
  std::error_code error;
  fs::permissions(to, fs::status(from, error).permissions(), error);
}
#endif

// The new bytes written over the old ones, the old kept aside until then.
void WriteInPlace(const fs::path& built, const fs::path& target) {
  const fs::path backup =
      fs::temp_directory_path() / ("lumenpad-" + RandomSuffix() + "-" + Shown(target.filename()));
  std::error_code error;
  fs::copy_file(target, backup, error);
  if (error) throw DocxFileError(CannotSave(target));
  SyncFile(backup);
  const std::optional<std::string> bytes = ReadWholeFile(built);
  std::ofstream out;
  if (bytes) {
    out.open(target, std::ios::binary | std::ios::trunc);
    out.write(bytes->data(), static_cast<std::streamsize>(bytes->size()));
    out.close();
  }
  if (!bytes || !out) {
    fs::copy_file(backup, target, fs::copy_options::overwrite_existing, error);
    if (error)
      throw DocxFileError("文件无法保存：" + Shown(target) + "，原文件的副本在 " + Shown(backup) +
                          "。");
    fs::remove(backup, error);
    throw DocxFileError(CannotSave(target));
  }
  SyncFile(target);
  fs::remove(backup, error);
  fs::remove(built, error);
}

}  // namespace

std::optional<std::string> ReadWholeFile(const fs::path& file) {
  std::ifstream in(file, std::ios::binary | std::ios::ate);
  if (!in) return std::nullopt;
  std::string bytes(static_cast<size_t>(in.tellg()), '\0');
  in.seekg(0);
  if (!in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return std::nullopt;
  return bytes;
}

std::string CannotSave(const fs::path& file) {
  return "文件无法保存：" + Shown(file) + "，文档没有改动。";
}

fs::path ResolveLinks(const fs::path& file) {
  std::error_code error;
  fs::path resolved = fs::canonical(file, error);
  return error ? file : resolved;
}

void CheckWritable(const fs::path& file) {
  for (const fs::path& owner : OwnerFiles(file))
    if (Exists(owner))
      throw DocxFileError("文档正被另一个程序打开：" + Shown(file) + "（" +
                          Shown(owner.filename()) + "）。请先在那里关闭它。");
  if (Exists(file)) {
    if (!CanWrite(file)) throw DocxFileError("文档是只读的：" + Shown(file));
    return;
  }
  fs::path folder = file.parent_path().empty() ? fs::path(".") : file.parent_path();
  if (!CanWrite(folder)) throw DocxFileError("无法在这个文件夹中新建文档：" + Shown(file));
}

fs::path BuildPathFor(const fs::path& target) {
  fs::path folder = target.parent_path().empty() ? fs::path(".") : target.parent_path();
  const std::string name = "." + Shown(target.filename()) + ".tmp" + RandomSuffix();
  return CanWrite(folder) ? folder / fs::u8path(name)
                          : fs::temp_directory_path() / fs::u8path(name);
}

void ReplaceFile(const fs::path& built, const fs::path& target) {
  std::error_code error;
  const bool existed = fs::exists(target, error);
  if (existed) CopyOwnership(target, built);
  SyncFile(built);
  if (built.parent_path() == target.parent_path() ||
      (target.parent_path().empty() && built.parent_path() == ".")) {
    fs::rename(built, target, error);
    if (!error) return;
    fs::remove(built, error);
    throw DocxFileError(CannotSave(target));
  }
  if (!existed) {
    fs::remove(built, error);
    throw DocxFileError(CannotSave(target));
  }
  WriteInPlace(built, target);
}

#ifndef _WIN32
DocumentLock::DocumentLock(const fs::path& file) {
  const std::string key = Shown(fs::absolute(ResolveLinks(file)));
  char name[40];
  std::snprintf(name, sizeof name, "lumenpad-%016llx.lock",
                static_cast<unsigned long long>(Fnv1a(key)));
  const fs::path lock = fs::temp_directory_path() / name;
  fd_ = ::open(lock.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  if (fd_ < 0) return;  // no lock to be had: the run goes on alone
  ::fchmod(fd_, 0666);  // other users' runs on the same file wait for it too
  while (::flock(fd_, LOCK_EX) != 0 && errno == EINTR) {
  }
}

DocumentLock::~DocumentLock() {
  if (fd_ >= 0) ::close(fd_);
}
#else
DocumentLock::DocumentLock(const fs::path&) {}
DocumentLock::~DocumentLock() = default;
#endif

}  // namespace word::docx
