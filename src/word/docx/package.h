#pragma once
// The zip package of a .docx. Parts are read from the bytes as opened; a part
// that was written anew replaces its entry on save, and every other entry is
// copied as it was, compressed bytes and all.

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct zip;  // libzip's archive

namespace word::docx {

class Package {
 public:
  struct ZipCloser {
    void operator()(::zip* z) const;
  };

  // Throws DocxFileError for anything that is not a readable zip.
  static Package FromBytes(std::string bytes);
  static Package Empty();
  // The same parts, written ones included, as a package of its own: writing
  // to the copy leaves this package as it is; the file's bytes are shared.
  Package Copy() const;

  bool Has(const std::string& part) const;
  // The part's bytes; nullopt if absent. Throws DocxFileError if unreadable.
  std::optional<std::string> Read(const std::string& part) const;
  void Write(const std::string& part, std::string bytes);
  // Takes the part out of the package; the next save leaves it behind.
  void Remove(const std::string& part);
  // The names of the parts the package holds now.
  std::vector<std::string> Parts() const;
  bool Written(const std::string& part) const { return written_.count(part) > 0; }

  // Writes the package to a temporary file and puts it in the place of `file`
  // (see ReplaceFile). Throws DocxFileError; the file is then as it was.
  void SaveTo(const std::filesystem::path& file) const;

 private:
  bool WriteZip(const std::filesystem::path& temp) const;

  // The file's bytes (null for a new package), where they never move, and
  // the archive read from them, opened once for all the reads.
  std::shared_ptr<const std::string> original_;
  std::unique_ptr<::zip, ZipCloser> reader_;
  std::vector<std::string> names_;
  std::map<std::string, std::string> written_;
  std::vector<std::string> removed_;
};

// The relationships part that belongs to a part: word/document.xml ->
// word/_rels/document.xml.rels.
std::string RelsPartOf(const std::string& part);
// Resolves a relationship target against the folder of the source part.
std::string ResolveTarget(const std::string& sourcePart, const std::string& target);

}  // namespace word::docx
