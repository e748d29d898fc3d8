#include "word/docx/embedded_fonts.h"

#include <cstdio>
#include <iterator>
#include <random>
#include <set>

#include "word/docx/document_file.h"
#include "word/docx/relationships.h"
#include "word/docx/xml_part.h"

namespace word::docx {
namespace {

const std::string kRelationshipsNs =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
const char* const kFontTableContentType =
    "application/vnd.openxmlformats-officedocument.wordprocessingml.fontTable+xml";
const char* const kFontContentType = "application/vnd.openxmlformats-officedocument.obfuscatedFont";
const std::string kNewFontTable =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n"
    "<w:fonts xmlns:w=\"http://schemas.openxmlformats.org/wordprocessingml/2006/main\" "
    "xmlns:r=\"" +
    kRelationshipsNs + "\"/>";

// The children of w:font that stand before w:embedRegular.
const std::set<std::string> kBeforeEmbed = {"w:altName",     "w:panose1", "w:charset", "w:family",
                                            "w:notTrueType", "w:pitch",   "w:sig"};

std::set<std::string> UsedFonts(const pugi::xml_document& body) {
  std::set<std::string> used;
  for (pugi::xpath_node n : body.select_nodes("//w:rFonts | //w:sym"))
    for (pugi::xml_attribute a : n.node().attributes()) {
      std::string name = a.name();
      if (name == "w:ascii" || name == "w:hAnsi" || name == "w:eastAsia" || name == "w:cs" ||
          name == "w:font")
        used.insert(a.value());
    }
  return used;
}

std::string NewFontKey() {
  std::random_device random;
  char key[40];
  std::snprintf(key, sizeof key, "{%08X-%04X-%04X-%04X-%04X%08X}", random(), random() & 0xFFFF,
                random() & 0xFFFF, random() & 0xFFFF, random() & 0xFFFF, random());
  return key;
}

std::string FreeFontPart(const Package& package) {
  for (int n = 1;; ++n) {
    std::string part = "word/fonts/font" + std::to_string(n) + ".odttf";
    if (!package.Has(part) && !package.Written(part)) return part;
  }
}

pugi::xml_node FontEntry(pugi::xml_node fonts, const std::string& name) {
  for (pugi::xml_node font : fonts.children("w:font"))
    if (name == font.attribute("w:name").value()) return font;
  pugi::xml_node font = fonts.append_child("w:font");
  font.append_attribute("w:name") = name.c_str();
  font.append_child("w:charset").append_attribute("w:val") = "00";
  font.append_child("w:family").append_attribute("w:val") = "auto";
  font.append_child("w:pitch").append_attribute("w:val") = "variable";
  return font;
}

void AddEmbedRegular(pugi::xml_node font, const std::string& id, const std::string& key) {
  pugi::xml_node after;
  for (pugi::xml_node child : font.children())
    if (kBeforeEmbed.count(child.name())) after = child;
  pugi::xml_node embed = after ? font.insert_child_after("w:embedRegular", after)
                               : font.prepend_child("w:embedRegular");
  embed.append_attribute("r:id") = id.c_str();
  embed.append_attribute("w:fontKey") = key.c_str();
}

// The font table part, made when the document has none.
std::string FontTablePart(Package& package, const std::string& mainPart) {
  std::string part = RelationshipTarget(package, mainPart, "/fontTable");
  if (!part.empty()) return part;
  if (PutRelationship(package, mainPart, "", kRelationshipsNs + "/fontTable", "fontTable.xml",
                      false)
          .empty())
    return {};
  part = ResolveTarget(mainPart, "fontTable.xml");
  AddContentTypeOverride(package, part, kFontTableContentType);
  package.Write(part, kNewFontTable);
  return part;
}

}  // namespace

std::string ObfuscateFont(std::string font, const std::string& fontKey) {
  // The key's bytes in reverse order, read from the hex digits of the braced key.
  static const int kDigitAt[16] = {35, 33, 31, 29, 27, 25, 22, 20, 17, 15, 12, 10, 7, 5, 3, 1};
  if (fontKey.size() < 38 || font.size() < 32) return font;
  for (int i = 0; i < 16; ++i) {
    unsigned char key =
        static_cast<unsigned char>(std::stoi(fontKey.substr(kDigitAt[i], 2), nullptr, 16));
    font[i] = static_cast<char>(font[i] ^ key);
    font[i + 16] = static_cast<char>(font[i + 16] ^ key);
  }
  return font;
}

void EmbedUsedFonts(Package& package, const std::string& mainPart, const pugi::xml_document& body,
                    const std::filesystem::path& fontFolder) {
  std::set<std::string> wanted;
  for (const std::string& name : UsedFonts(body))
    if (std::filesystem::exists(fontFolder / (name + ".ttf"))) wanted.insert(name);
  if (wanted.empty()) return;
  std::string tablePart = FontTablePart(package, mainPart);
  auto bytes = tablePart.empty() ? std::nullopt : package.Read(tablePart);
  pugi::xml_document table;
  if (!bytes || !ParseXml(*bytes, table)) return;
  pugi::xml_node fonts = table.child("w:fonts");
  for (const std::string& name : wanted) {
    pugi::xml_node font = FontEntry(fonts, name);
    if (font.child("w:embedRegular")) continue;
    std::string key = NewFontKey();
    std::string fontPart = FreeFontPart(package);
    std::string target = fontPart.substr(fontPart.rfind("fonts/"));
    std::string id =
        PutRelationship(package, tablePart, "", kRelationshipsNs + "/font", target, false);
    if (id.empty()) return;
    AddContentTypeOverride(package, fontPart, kFontContentType);
    package.Write(fontPart,
                  ObfuscateFont(ReadWholeFile(fontFolder / (name + ".ttf")).value_or(""), key));
    AddEmbedRegular(font, id, key);
  }
  package.Write(tablePart, SerializeXml(table));
}

}  // namespace word::docx
