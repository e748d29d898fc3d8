#include "word/docx/package.h"

#include <zip.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <fstream>
#include <memory>
#include <stdexcept>

#include "word/docx/document_file.h"
#include "word/docx/docx_error.h"

namespace word::docx {
namespace {

constexpr zip_uint64_t kMaxPartSize = 512u << 20;  // refuse zip bombs

const char* const kDamaged = "文件已损坏，无法作为 .docx 文档打开。";

using ZipPtr = std::unique_ptr<zip_t, Package::ZipCloser>;

ZipPtr OpenBuffer(const std::string& bytes) {
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
  if (!source) throw DocxFileError(kDamaged);
  zip_t* z = zip_open_from_source(source, ZIP_RDONLY, &error);
  zip_error_fini(&error);
  if (!z) {
    zip_source_free(source);
    throw DocxFileError(kDamaged);
  }
  return ZipPtr(z);
}

std::string ReadEntry(zip_t* z, zip_int64_t index) {
  zip_stat_t st;
  if (zip_stat_index(z, index, 0, &st) != 0 || !(st.valid & ZIP_STAT_SIZE) ||
      st.size > kMaxPartSize)
    throw DocxFileError(kDamaged);
  zip_file_t* f = zip_fopen_index(z, index, 0);
  if (!f) throw DocxFileError(kDamaged);
  std::string data(st.size, '\0');
  zip_int64_t got = data.empty() ? 0 : zip_fread(f, data.data(), data.size());
  zip_fclose(f);
  if (got != static_cast<zip_int64_t>(data.size())) throw DocxFileError(kDamaged);
  return data;
}

// A part libzip refuses leaves nothing behind: the error goes up to SaveTo.
void Check(bool ok) {
  if (!ok) throw std::runtime_error("zip");
}

void PutPart(zip_t* z, const std::string& name, const std::string& bytes) {
  zip_source_t* src = zip_source_buffer(z, bytes.data(), bytes.size(), 0);
  Check(src != nullptr);
  zip_int64_t index = zip_name_locate(z, name.c_str(), ZIP_FL_NOCASE);
  if (index >= 0) {
    if (zip_file_replace(z, index, src, 0) != 0) {
      zip_source_free(src);
      Check(false);
    }
  } else {
    index = zip_file_add(z, name.c_str(), src, ZIP_FL_ENC_UTF_8);
    if (index < 0) zip_source_free(src);
    Check(index >= 0);
  }
  // The fastest level: shape-heavy parts repeat themselves so much that the
  // default level spends most of a save searching matches for little gain.
  zip_set_file_compression(z, index, ZIP_CM_DEFLATE, 1);
}

}  // namespace

void Package::ZipCloser::operator()(zip_t* z) const {
  zip_discard(z);
}

Package Package::FromBytes(std::string bytes) {
  Package p;
  p.original_ = std::make_shared<const std::string>(std::move(bytes));
  p.reader_ = OpenBuffer(*p.original_);
  zip_int64_t n = zip_get_num_entries(p.reader_.get(), 0);
  for (zip_int64_t i = 0; i < n; ++i) {
    const char* name = zip_get_name(p.reader_.get(), i, 0);
    if (name) p.names_.push_back(name);
  }
  return p;
}

Package Package::Empty() {
  return Package();
}

Package Package::Copy() const {
  Package p;
  p.original_ = original_;
  if (original_) p.reader_ = OpenBuffer(*original_);
  p.names_ = names_;
  p.written_ = written_;
  p.removed_ = removed_;
  return p;
}

bool Package::Has(const std::string& part) const {
  if (written_.count(part)) return true;
  auto lower = [](std::string s) {
    for (auto& c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
  };
  const std::string wanted = lower(part);
  for (const auto& n : names_)
    if (lower(n) == wanted) return true;
  return false;
}

std::optional<std::string> Package::Read(const std::string& part) const {
  if (auto it = written_.find(part); it != written_.end()) return it->second;
  if (std::find(removed_.begin(), removed_.end(), part) != removed_.end()) return std::nullopt;
  if (!reader_) return std::nullopt;
  zip_int64_t index = zip_name_locate(reader_.get(), part.c_str(), ZIP_FL_NOCASE);
  if (index < 0) return std::nullopt;
  return ReadEntry(reader_.get(), index);
}

void Package::Write(const std::string& part, std::string bytes) {
  std::erase(removed_, part);
  written_[part] = std::move(bytes);
}

void Package::Remove(const std::string& part) {
  written_.erase(part);
  std::erase(names_, part);
  removed_.push_back(part);
}

std::vector<std::string> Package::Parts() const {
  std::vector<std::string> parts = names_;
  for (const auto& [name, bytes] : written_)
    if (std::find(parts.begin(), parts.end(), name) == parts.end()) parts.push_back(name);
  return parts;
}

void Package::SaveTo(const std::filesystem::path& file) const {
  const std::filesystem::path target = ResolveLinks(file);
  const std::filesystem::path temp = BuildPathFor(target);
  if (!WriteZip(temp)) {
    std::error_code error;
    std::filesystem::remove(temp, error);
    throw DocxFileError(CannotSave(target));
  }
  ReplaceFile(temp, target);
}

bool Package::WriteZip(const std::filesystem::path& temp) const {
  if (original_) {
    std::ofstream out(temp, std::ios::binary);
    out.write(original_->data(), static_cast<std::streamsize>(original_->size()));
    if (!out.flush()) return false;
  }
  int error = 0;
  zip_t* z = zip_open(temp.string().c_str(), original_ ? 0 : ZIP_CREATE | ZIP_TRUNCATE, &error);
  if (!z) return false;
  try {
    for (const std::string& name : removed_) {
      const zip_int64_t index = zip_name_locate(z, name.c_str(), 0);
      if (index >= 0) Check(zip_delete(z, static_cast<zip_uint64_t>(index)) == 0);
    }
    for (const auto& [name, bytes] : written_) PutPart(z, name, bytes);
  } catch (const std::runtime_error&) {
    zip_discard(z);
    return false;
  }
  if (zip_close(z) != 0) {
    zip_discard(z);
    return false;
  }
  return true;
}

std::string RelsPartOf(const std::string& part) {
  auto slash = part.rfind('/');
  std::string dir = slash == std::string::npos ? "" : part.substr(0, slash + 1);
  std::string base = slash == std::string::npos ? part : part.substr(slash + 1);
  return dir + "_rels/" + base + ".rels";
}

std::string ResolveTarget(const std::string& sourcePart, const std::string& target) {
  if (!target.empty() && target[0] == '/') return target.substr(1);
  auto slash = sourcePart.rfind('/');
  std::string path = slash == std::string::npos ? "" : sourcePart.substr(0, slash + 1);
  path += target;
  // Fold "dir/../" pairs.
  std::vector<std::string> parts;
  size_t start = 0;
  while (start <= path.size()) {
    size_t end = path.find('/', start);
    if (end == std::string::npos) end = path.size();
    std::string piece = path.substr(start, end - start);
    if (piece == "..") {
      if (!parts.empty()) parts.pop_back();
    } else if (!piece.empty() && piece != ".") {
      parts.push_back(piece);
    }
    start = end + 1;
  }
  std::string out;
  for (const auto& p : parts) out += (out.empty() ? "" : "/") + p;
  return out;
}

}  // namespace word::docx
