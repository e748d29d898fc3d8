#include "batch/file_walk.h"

#include <algorithm>
#include <random>

#include "batch/document_operations.h"
#include "runtime/convert.h"
#include "runtime/utf8.h"

namespace lp::batch {
namespace fs = std::filesystem;
namespace {

std::u16string NameOf(const fs::path& path) {
  return PathText(path.filename());
}

bool PassesFilter(const std::u16string& name, const std::u16string& filter) {
  const std::u16string last = filter.size() > 4 ? filter.substr(filter.size() - 4) : filter;
  return name.size() >= last.size() &&
         name.compare(name.size() - last.size(), last.size(), last) == 0;
}

std::vector<fs::directory_entry> SortedEntries(const fs::path& folder) {
  std::vector<fs::directory_entry> entries;
  std::error_code error;
  for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error))
    entries.push_back(*it);
  std::sort(entries.begin(), entries.end(),
            [](const auto& a, const auto& b) { return a.path().filename() < b.path().filename(); });
  return entries;
}

void Walk(const fs::path& folder, const std::u16string& filter, bool recursive,
          const std::function<void()>& yield, FileList& out) {
  const std::vector<fs::directory_entry> entries = SortedEntries(folder);
  std::error_code error;
  for (const fs::directory_entry& e : entries) {
    if (!e.is_regular_file(error)) continue;
    if (PassesFilter(NameOf(e.path()), filter)) out.push_back(e.path());
    if (yield) yield();
  }
  if (!recursive) return;
  for (const fs::directory_entry& e : entries)
    if (e.is_directory(error) && !e.is_symlink(error)) Walk(e.path(), filter, true, yield, out);
}

// The path written to a temporary name beside the target, then renamed over it.
bool CopyComplete(const fs::path& from, const fs::path& to) {
  std::error_code error;
  fs::path temp = to;
  temp += ".lptmp";
  if (!fs::copy_file(from, temp, fs::copy_options::overwrite_existing, error)) return false;
  fs::rename(temp, to, error);
  if (error) fs::remove(temp, error);
  return !error;
}

int RenameStems(const FileList& files, const std::function<std::u16string(std::u16string)>& edit) {
  int renamed = 0;
  for (const fs::path& file : files) {
    const std::u16string stem = PathText(file.stem());
    const std::u16string edited = edit(stem);
    if (edited == stem || edited.empty()) continue;
    fs::path target = file.parent_path() / PathOf(edited + PathText(file.extension()));
    std::error_code error;
    if (fs::exists(target, error)) continue;
    fs::rename(file, target, error);
    if (!error) ++renamed;
  }
  return renamed;
}

}  // namespace

std::u16string PathText(const fs::path& path) {
  return FromUtf8(reinterpret_cast<const char*>(path.u8string().c_str()));
}

fs::path PathOf(const std::u16string& text) {
  const std::string utf8 = ToUtf8(text);
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

FileList BuildFileList(const fs::path& folder, const std::u16string& filter, bool recursive,
                       const std::function<void()>& yield) {
  FileList files;
  Walk(folder, filter, recursive, yield, files);
  return files;
}

fs::path BackupName(const fs::path& file, int random) {
  return PathOf(PathText(file) + u"_bak" + Str(random) + u".doc");
}

FileList MakeBackups(const FileList& files) {
  std::mt19937 random{std::random_device{}()};
  std::uniform_int_distribution<int> oneTo999(1, 999);
  FileList failed;
  for (const fs::path& file : files)
    if (!CopyComplete(file, BackupName(file, oneTo999(random)))) failed.push_back(file);
  return failed;
}

int DelFileName(const FileList& files, const std::u16string& keywords) {
  const std::vector<std::u16string> words = SplitKeywords(keywords);
  return RenameStems(files, [&](std::u16string stem) {
    for (const std::u16string& word : words) stem = ReplaceAll(stem, word, u"");
    return stem;
  });
}

int ChangeFileName(const FileList& files, const std::u16string& from, const std::u16string& to) {
  return RenameStems(files, [&](const std::u16string& stem) { return ReplaceAll(stem, from, to); });
}

}  // namespace lp::batch
