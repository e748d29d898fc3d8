#pragma once
// A zip package as its entries, and entries packed again without
// compression, for the mutator that works on the XML inside a .docx.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace lp::fuzz {

struct ZipEntry {
  std::string name;
  std::string bytes;
};

// Empty when the bytes are no zip or an entry does not inflate.
std::vector<ZipEntry> ReadZip(const std::uint8_t* data, std::size_t size);

// Local headers, data stored as it is, central directory.
std::string WriteStoredZip(const std::vector<ZipEntry>& entries);

}  // namespace lp::fuzz
