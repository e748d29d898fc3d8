#pragma once
// Writes a zip archive front to back in memory. An entry taken from another
// archive keeps its compressed bytes as they were; a new one is deflated at
// the fastest level, as shape-heavy parts repeat themselves so much that a
// slower level spends a save searching matches for little gain. There is no
// Zip64: an archive that would need it is refused.

#include <cstdint>
#include <ctime>
#include <string>

namespace word::docx {

// An entry as the archive stores it.
struct StoredEntry {
  std::string name;
  std::uint16_t method = 0;  // 0 stored, 8 deflated
  std::uint32_t crc = 0;
  std::uint64_t size = 0;
  std::string compressed;
  std::time_t modified = 0;
};

class ZipWriter {
 public:
  explicit ZipWriter(std::time_t now) : now_(now) {}
  void AddStored(const StoredEntry& entry);
  void AddDeflated(const std::string& name, const std::string& bytes);
  // The archive; false once an entry or offset overflows what Zip64 would hold.
  bool Finish(std::string& archive);

 private:
  std::string data_;
  std::string directory_;
  std::uint32_t count_ = 0;
  bool overflow_ = false;
  std::time_t now_;
};

}  // namespace word::docx
