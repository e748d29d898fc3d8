#include "word/docx/xml_part.h"

namespace word::docx {

bool ParseXml(const std::string& bytes, pugi::xml_document& doc) {
  const unsigned flags = pugi::parse_full | pugi::parse_ws_pcdata;
  return doc.load_buffer(bytes.data(), bytes.size(), flags, pugi::encoding_auto).status ==
         pugi::status_ok;
}

std::string SerializeXml(pugi::xml_document& doc) {
  // The parts are written back as UTF-8 whatever they were read as.
  for (pugi::xml_node n = doc.first_child(); n; n = n.next_sibling()) {
    if (n.type() != pugi::node_declaration) continue;
    if (auto enc = n.attribute("encoding")) enc.set_value("UTF-8");
  }
  struct Appender : pugi::xml_writer {
    std::string text;
    void write(const void* data, size_t size) override {
      text.append(static_cast<const char*>(data), size);
    }
  } out;
  doc.save(out, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
  return std::move(out.text);
}

}  // namespace word::docx
