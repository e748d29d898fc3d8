#include "word/docx/package.h"

#include <zip.h>

#include <algorithm>
#include <cctype>
#include <ctime>
#include <fstream>
#include <memory>

#include "word/docx/document_file.h"
#include "word/docx/docx_error.h"
#include "word/docx/zip_writer.h"

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

// The entry's bytes as the archive holds them, compressed or not; nullopt
// when libzip cannot give them.
std::optional<StoredEntry> StoredEntryOf(zip_t* z, const std::string& name, std::time_t now) {
  const zip_int64_t index = zip_name_locate(z, name.c_str(), 0);
  zip_stat_t st;
  if (index < 0 || zip_stat_index(z, index, 0, &st) != 0) return std::nullopt;
  const zip_uint64_t needed =
      ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_CRC | ZIP_STAT_COMP_METHOD;
  if ((st.valid & needed) != needed || st.comp_size > kMaxPartSize ||
      (st.comp_method != ZIP_CM_STORE && st.comp_method != ZIP_CM_DEFLATE) ||
      ((st.valid & ZIP_STAT_ENCRYPTION_METHOD) && st.encryption_method != ZIP_EM_NONE))
    return std::nullopt;
  StoredEntry e{name,
                st.comp_method,
                st.crc,
                st.size,
                std::string(st.comp_size, '\0'),
                (st.valid & ZIP_STAT_MTIME) ? st.mtime : now};
  zip_file_t* f = zip_fopen_index(z, index, ZIP_FL_COMPRESSED);
  if (!f) return std::nullopt;
  const zip_int64_t got =
      e.compressed.empty() ? 0 : zip_fread(f, e.compressed.data(), st.comp_size);
  zip_fclose(f);
  if (got != static_cast<zip_int64_t>(st.comp_size)) return std::nullopt;
  return e;
}

bool SameName(const std::string& a, const std::string& b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return std::tolower(static_cast<unsigned char>(x)) ==
                  std::tolower(static_cast<unsigned char>(y));
         });
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
  return std::any_of(names_.begin(), names_.end(),
                     [&](const std::string& name) { return SameName(name, part); });
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

// The entries keep their order; a part written anew takes the place of the
// entry it replaces, and parts new to the package come last.
bool Package::WriteZip(const std::filesystem::path& temp) const {
  const std::time_t now = std::time(nullptr);
  ZipWriter zip(now);
  std::vector<const std::string*> placed;
  for (const std::string& name : names_) {
    auto written = std::find_if(written_.begin(), written_.end(),
                                [&](const auto& part) { return SameName(part.first, name); });
    if (written == written_.end()) {
      std::optional<StoredEntry> entry = StoredEntryOf(reader_.get(), name, now);
      if (!entry) return false;
      zip.AddStored(*entry);
      continue;
    }
    zip.AddDeflated(name, written->second);
    placed.push_back(&written->first);
  }
  for (const auto& [name, bytes] : written_)
    if (std::find(placed.begin(), placed.end(), &name) == placed.end())
      zip.AddDeflated(name, bytes);
  std::string archive;
  if (!zip.Finish(archive)) return false;
  std::ofstream out(temp, std::ios::binary | std::ios::trunc);
  out.write(archive.data(), static_cast<std::streamsize>(archive.size()));
  return static_cast<bool>(out.flush());
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
