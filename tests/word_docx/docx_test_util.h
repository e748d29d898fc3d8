#pragma once
#include <filesystem>
#include <memory>
#include <string>

#include "word/docx/docx_application.h"

namespace word::docx::testing {

// A fresh folder under the system's temp folder, removed at destruction.
class TempDir {
 public:
  TempDir();
  ~TempDir();
  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

std::filesystem::path Corpus(const std::string& relative);
// A part of a zip file, read with the engine's own package reader.
std::string ReadPart(const std::filesystem::path& docx, const std::string& part);
std::string ReadFile(const std::filesystem::path& file);
// The document.xml of a new document after `edit` ran on its selection.
std::string Utf8(const std::u16string& s);

}  // namespace word::docx::testing
