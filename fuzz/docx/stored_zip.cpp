#include "stored_zip.h"

#include <zip.h>
#include <zlib.h>

#include <memory>

#include "word/docx/zip_writer.h"

namespace lp::fuzz {

namespace {

struct ZipCloser {
  void operator()(zip_t* z) const { zip_discard(z); }
};

bool ReadEntry(zip_t* z, zip_uint64_t index, ZipEntry& entry) {
  zip_stat_t stat;
  if (zip_stat_index(z, index, 0, &stat) != 0 || !(stat.valid & ZIP_STAT_SIZE)) return false;
  zip_file_t* file = zip_fopen_index(z, index, 0);
  if (file == nullptr) return false;
  entry.name = zip_get_name(z, index, 0);
  entry.bytes.resize(stat.size);
  const zip_int64_t read = zip_fread(file, entry.bytes.data(), stat.size);
  zip_fclose(file);
  return read == static_cast<zip_int64_t>(stat.size);
}

}  // namespace

std::vector<ZipEntry> ReadZip(const std::uint8_t* data, std::size_t size) {
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* source = zip_source_buffer_create(data, size, 0, &error);
  if (source == nullptr) return {};
  std::unique_ptr<zip_t, ZipCloser> z(zip_open_from_source(source, ZIP_RDONLY, &error));
  if (!z) {
    zip_source_free(source);
    return {};
  }
  std::vector<ZipEntry> entries(static_cast<std::size_t>(zip_get_num_entries(z.get(), 0)));
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (!ReadEntry(z.get(), i, entries[i])) return {};
  }
  return entries;
}

std::string WriteStoredZip(const std::vector<ZipEntry>& entries) {
  word::docx::ZipWriter zip(0);
  for (const ZipEntry& entry : entries) {
    const auto crc = static_cast<std::uint32_t>(
        crc32(0, reinterpret_cast<const Bytef*>(entry.bytes.data()), entry.bytes.size()));
    zip.AddStored({entry.name, 0, crc, entry.bytes.size(), entry.bytes, 0});
  }
  std::string out;
  zip.Finish(out);
  return out;
}

}  // namespace lp::fuzz
