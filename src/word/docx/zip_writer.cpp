#include "word/docx/zip_writer.h"

#include <zlib.h>

#include <limits>

#include "runtime/clock.h"

namespace word::docx {
namespace {

constexpr std::uint64_t kMax32 = std::numeric_limits<std::uint32_t>::max();
constexpr std::uint16_t kUtf8Name = 1u << 11;

void Put16(std::string& out, std::uint32_t v) {
  out.push_back(static_cast<char>(v & 0xFF));
  out.push_back(static_cast<char>((v >> 8) & 0xFF));
}

void Put32(std::string& out, std::uint32_t v) {
  Put16(out, v & 0xFFFF);
  Put16(out, v >> 16);
}

// MS-DOS date and time, as the archive keeps them: local time, two seconds apart.
std::uint32_t DosTime(std::time_t t) {
  const std::tm local = lp::LocalTime(t);
  if (local.tm_year < 80) return (1u << 5 | 1u) << 16;  // 1980-01-01, the earliest there is
  const std::uint32_t date = static_cast<std::uint32_t>((local.tm_year - 80) << 9 |
                                                        (local.tm_mon + 1) << 5 | local.tm_mday);
  const std::uint32_t time =
      static_cast<std::uint32_t>(local.tm_hour << 11 | local.tm_min << 5 | local.tm_sec / 2);
  return date << 16 | time;
}

bool IsAscii(const std::string& text) {
  for (unsigned char c : text)
    if (c >= 0x80) return false;
  return true;
}

// The fields a local header and its central-directory record share.
void PutCommon(std::string& out, const StoredEntry& e) {
  Put16(out, e.method == 8 ? 20 : 10);  // version needed to extract
  Put16(out, IsAscii(e.name) ? 0 : kUtf8Name);
  Put16(out, e.method);
  Put32(out, DosTime(e.modified));
  Put32(out, e.crc);
  Put32(out, static_cast<std::uint32_t>(e.compressed.size()));
  Put32(out, static_cast<std::uint32_t>(e.size));
  Put16(out, static_cast<std::uint32_t>(e.name.size()));
  Put16(out, 0);  // no extra field
}

std::string Deflate(const std::string& bytes) {
  z_stream z{};
  if (deflateInit2(&z, 1, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY) != Z_OK) return {};
  std::string out(deflateBound(&z, static_cast<uLong>(bytes.size())), '\0');
  z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
  z.avail_in = static_cast<uInt>(bytes.size());
  z.next_out = reinterpret_cast<Bytef*>(out.data());
  z.avail_out = static_cast<uInt>(out.size());
  const int status = deflate(&z, Z_FINISH);
  out.resize(z.total_out);
  deflateEnd(&z);
  return status == Z_STREAM_END ? out : std::string();
}

}  // namespace

void ZipWriter::AddStored(const StoredEntry& e) {
  const std::uint64_t offset = data_.size();
  if (offset > kMax32 || e.size > kMax32 || e.compressed.size() > kMax32 || count_ == 0xFFFF) {
    overflow_ = true;
    return;
  }
  Put32(data_, 0x04034b50);
  PutCommon(data_, e);
  data_ += e.name;
  data_ += e.compressed;

  Put32(directory_, 0x02014b50);
  Put16(directory_, 20);  // made by: MS-DOS, version 2.0
  PutCommon(directory_, e);
  Put16(directory_, 0);  // no comment
  Put16(directory_, 0);  // disk 0
  Put16(directory_, 0);  // internal attributes
  Put32(directory_, 0);  // external attributes
  Put32(directory_, static_cast<std::uint32_t>(offset));
  directory_ += e.name;
  ++count_;
}

void ZipWriter::AddDeflated(const std::string& name, const std::string& bytes) {
  if (bytes.size() > kMax32) {
    overflow_ = true;
    return;
  }
  StoredEntry e{name, 8, 0, bytes.size(), Deflate(bytes), now_};
  e.crc = static_cast<std::uint32_t>(
      crc32(0, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<uInt>(bytes.size())));
  if (e.compressed.empty() || e.compressed.size() >= bytes.size()) {
    e.method = 0;
    e.compressed = bytes;
  }
  AddStored(e);
}

bool ZipWriter::Finish(std::string& archive) {
  const std::uint64_t offset = data_.size(), size = directory_.size();
  if (overflow_ || offset > kMax32 || size > kMax32) return false;
  Put32(directory_, 0x06054b50);
  Put16(directory_, 0);  // this disk
  Put16(directory_, 0);  // the directory's disk
  Put16(directory_, count_);
  Put16(directory_, count_);
  Put32(directory_, static_cast<std::uint32_t>(size));
  Put32(directory_, static_cast<std::uint32_t>(offset));
  Put16(directory_, 0);  // no comment
  archive = std::move(data_);
  archive += directory_;
  return true;
}

}  // namespace word::docx
