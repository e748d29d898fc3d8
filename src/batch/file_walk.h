#pragma once
// The files a folder run works on, their backups and their renames. Paths are
// UTF-16 at this edge, as the dialog shows them.

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace lp::batch {

using FileList = std::vector<std::filesystem::path>;

// The files of folder whose names end in the last four characters of filter,
// sorted by name, then (when recursive) those of each sub-folder, depth
// first. `yield` runs after each file, so that the dialog stays painted.
FileList BuildFileList(const std::filesystem::path& folder, const std::u16string& filter,
                       bool recursive, const std::function<void()>& yield = {});

// The backup's name: the path, "_bak", Str of a random 1 to 999 (with its
// leading blank) and ".doc".
std::filesystem::path BackupName(const std::filesystem::path& file, int random);
// Copies each file to its backup name; a copy is complete before it appears.
// Returns the files that could not be copied.
FileList MakeBackups(const FileList& files);

// The stem of each file with every keyword removed (DelFileName) or with
// `from` replaced by `to` (ChangeFileName); the extension stays. A name that
// is taken already is left alone. Returns the files renamed.
int DelFileName(const FileList& files, const std::u16string& keywords);
int ChangeFileName(const FileList& files, const std::u16string& from, const std::u16string& to);

std::u16string PathText(const std::filesystem::path& path);
std::filesystem::path PathOf(const std::u16string& text);

}  // namespace lp::batch
