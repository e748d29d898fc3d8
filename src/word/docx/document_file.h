#pragma once
// The teacher's .docx on disk: who else holds it, whether it may be written,
// and how new bytes replace it without ever leaving it half written.

#include <filesystem>
#include <optional>
#include <string>

namespace word::docx {

// The file a path names once symbolic links are followed; the path itself
// when it does not exist yet.
std::filesystem::path ResolveLinks(const std::filesystem::path& file);

// The file's bytes; nullopt when it cannot be read.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& file);

// Throws DocxFileError (a Chinese message naming the file) when the document
// cannot be written: no write permission, another program holds it open
// (Word's "~$" owner file, LibreOffice's ".~lock.NAME#"), or a new file's
// folder that cannot take it.
void CheckWritable(const std::filesystem::path& file);

// Serialises the runs of lumenpad on one document: held from opening to the
// end of the process, so that runs started together each see the one before.
class DocumentLock {
 public:
  explicit DocumentLock(const std::filesystem::path& file);
  ~DocumentLock();
  DocumentLock(const DocumentLock&) = delete;
  DocumentLock& operator=(const DocumentLock&) = delete;

 private:
  int fd_ = -1;
};

// Replaces `target` by the finished file `built`, keeping the target's mode
// and, where allowed, its owner. In a writable folder the new file is renamed
// over the old; in a folder that cannot be written the bytes are written in
// place, with a copy of the file as it was kept in the temporary folder until they
// are on disk. Throws DocxFileError "文件无法保存：…，文档没有改动。".
void ReplaceFile(const std::filesystem::path& built, const std::filesystem::path& target);

// Where to build the new file: beside the target when its folder is writable,
// else in the temporary folder.
std::filesystem::path BuildPathFor(const std::filesystem::path& target);

// "文件无法保存：PATH，文档没有改动。"
std::string CannotSave(const std::filesystem::path& file);

}  // namespace word::docx
