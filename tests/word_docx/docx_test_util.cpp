#include "docx_test_util.h"

#include <fstream>
#include <iterator>
#include <random>

#include "runtime/utf8.h"
#include "word/docx/package.h"

namespace word::docx::testing {

TempDir::TempDir() {
  std::random_device rd;
  path_ = std::filesystem::temp_directory_path() / ("lp_docx_" + std::to_string(rd()));
  std::filesystem::create_directories(path_);
}

TempDir::~TempDir() {
  std::error_code ec;
  std::filesystem::remove_all(path_, ec);
}

std::filesystem::path Corpus(const std::string& relative) {
  return std::filesystem::path(LP_CORPUS_DIR) / relative;
}

std::string ReadFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

std::string ReadPart(const std::filesystem::path& docx, const std::string& part) {
  return Package::FromBytes(ReadFile(docx)).Read(part).value_or("");
}

std::string Utf8(const std::u16string& s) {
  return lp::ToUtf8(s);
}

}  // namespace word::docx::testing
