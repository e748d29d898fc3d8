#include "stored_zip.h"

#include <zip.h>
#include <zlib.h>

#include <memory>

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

void Put16(std::string& out, unsigned value) {
  out += static_cast<char>(value & 0xFF);
  out += static_cast<char>(value >> 8 & 0xFF);
}

void Put32(std::string& out, std::uint32_t value) {
  Put16(out, value & 0xFFFF);
  Put16(out, value >> 16);
}

// The fields a local header and a central directory record share, from the
// version needed to the name's length.
void PutCommon(std::string& out, const ZipEntry& entry, std::uint32_t crc) {
  Put16(out, 20);  // version needed: 2.0
  Put16(out, 0);   // flags
  Put16(out, 0);   // stored
  Put32(out, 0);   // time and date
  Put32(out, crc);
  Put32(out, static_cast<std::uint32_t>(entry.bytes.size()));
  Put32(out, static_cast<std::uint32_t>(entry.bytes.size()));
  Put16(out, static_cast<unsigned>(entry.name.size()));
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
  std::string out, directory;
  for (const ZipEntry& entry : entries) {
    const auto crc = static_cast<std::uint32_t>(
        crc32(0, reinterpret_cast<const Bytef*>(entry.bytes.data()), entry.bytes.size()));
    const auto offset = static_cast<std::uint32_t>(out.size());
    Put32(out, 0x04034B50);
    PutCommon(out, entry, crc);
    Put16(out, 0);  // no extra field
    out += entry.name + entry.bytes;

    Put32(directory, 0x02014B50);
    Put16(directory, 20);  // made by: 2.0
    PutCommon(directory, entry, crc);
    for (int field = 0; field < 4; ++field) Put16(directory, 0);  // extra, comment, disk, internal
    Put32(directory, 0);                                          // external attributes
    Put32(directory, offset);
    directory += entry.name;
  }
  const auto start = static_cast<std::uint32_t>(out.size());
  out += directory;
  Put32(out, 0x06054B50);
  Put16(out, 0);
  Put16(out, 0);
  Put16(out, static_cast<unsigned>(entries.size()));
  Put16(out, static_cast<unsigned>(entries.size()));
  Put32(out, static_cast<std::uint32_t>(directory.size()));
  Put32(out, start);
  Put16(out, 0);  // no comment
  return out;
}

}  // namespace lp::fuzz
