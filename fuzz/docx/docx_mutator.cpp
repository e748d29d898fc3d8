// Mutating the zip bytes of a .docx rarely leaves a part that still inflates
// and passes its checksum, so the fuzzer never got past the package. This
// mutator unpacks the package, mutates one XML part and packs it again,
// stored. Most mutations keep the part well-formed (a node removed or
// copied, an element renamed after another, an attribute or a text changed),
// so that they reach what the engine makes of the XML; the rest mutate the
// part's bytes, as a damaged file would. Bytes that are no zip are mutated
// as bytes.

#include <cstdint>
#include <cstring>
#include <pugixml.hpp>
#include <random>
#include <sstream>

#include "stored_zip.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

using lp::fuzz::ZipEntry;

bool IsXml(const ZipEntry& entry) {
  const auto endsWith = [&](const char* tail) {
    const std::size_t n = std::strlen(tail);
    return entry.name.size() >= n && entry.name.compare(entry.name.size() - n, n, tail) == 0;
  };
  return endsWith(".xml") || endsWith(".rels");
}

// The main document half of the time: it is what every run reads and edits.
ZipEntry* PickPart(std::vector<ZipEntry>& entries, std::minstd_rand& random) {
  std::vector<ZipEntry*> xml;
  for (ZipEntry& entry : entries) {
    if (!IsXml(entry)) continue;
    if (entry.name == "word/document.xml" && random() % 2 == 0) return &entry;
    xml.push_back(&entry);
  }
  return xml.empty() ? nullptr : xml[random() % xml.size()];
}

void MutateBytes(std::string& bytes) {
  const std::size_t before = bytes.size();
  bytes.resize(before + before / 4 + 64);  // room to grow
  bytes.resize(
      LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(bytes.data()), before, bytes.size()));
}

void MutateValue(pugi::xml_node node, std::minstd_rand& random) {
  if (node.type() == pugi::node_pcdata) {
    std::string text = node.value();
    MutateBytes(text);
    node.set_value(text.c_str());
    return;
  }
  std::vector<pugi::xml_attribute> attributes(node.attributes_begin(), node.attributes_end());
  if (attributes.empty()) return;
  pugi::xml_attribute attribute = attributes[random() % attributes.size()];
  std::string value = attribute.value();
  MutateBytes(value);
  attribute.set_value(value.c_str());
}

// False when the part is no XML to begin with.
bool MutateTree(std::string& xml, std::minstd_rand& random) {
  pugi::xml_document document;
  if (!document.load_buffer(xml.data(), xml.size())) return false;
  std::vector<pugi::xml_node> nodes;
  for (const pugi::xpath_node& hit : document.document_element().select_nodes(".//node()")) {
    nodes.push_back(hit.node());
  }
  if (nodes.empty()) return false;
  pugi::xml_node node = nodes[random() % nodes.size()];
  switch (random() % 4) {
    case 0:
      node.parent().remove_child(node);
      break;
    case 1:
      node.parent().insert_copy_after(node, node);
      break;
    case 2: {
      const pugi::xml_node other = nodes[random() % nodes.size()];
      if (node.type() == pugi::node_element && other.type() == pugi::node_element) {
        node.set_name(other.name());
      }
      break;
    }
    default:
      MutateValue(node, random);
  }
  std::ostringstream out;
  document.save(out, "", pugi::format_raw);
  xml = out.str();
  return true;
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed) {
  std::vector<ZipEntry> entries = lp::fuzz::ReadZip(data, size);
  std::minstd_rand random(seed);
  ZipEntry* part = PickPart(entries, random);
  if (part == nullptr) return LLVMFuzzerMutate(data, size, maxSize);
  if (random() % 4 == 0 || !MutateTree(part->bytes, random)) MutateBytes(part->bytes);
  const std::string packed = lp::fuzz::WriteStoredZip(entries);
  if (packed.size() > maxSize) return LLVMFuzzerMutate(data, size, maxSize);
  std::memcpy(data, packed.data(), packed.size());
  return packed.size();
}
