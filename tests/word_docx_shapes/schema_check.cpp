#include "schema_check.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

namespace shapes_test {

namespace {

namespace fs = std::filesystem;

// The schemas of this folder, written beside the document with the ISO
// schemas' folder filled in.
void WriteSchemas(const fs::path& folder) {
  const std::string iso =
      fs::weakly_canonical(fs::path(LP_SHARED_DIR) / "corpus/xsd/iso29500-transitional").string();
  for (const char* name : {"driver.xsd", "wps.xsd", "wpg.xsd"}) {
    std::ifstream in(fs::path(LP_SHAPES_TEST_DIR) / name);
    std::stringstream text;
    text << in.rdbuf();
    std::string schema = text.str();
    for (size_t at; (at = schema.find("@XSD@")) != std::string::npos;) schema.replace(at, 5, iso);
    std::ofstream(folder / name) << schema;
  }
}

std::string PrefixOf(const char* name) {
  const std::string text(name);
  const size_t colon = text.find(':');
  return colon == std::string::npos ? std::string() : text.substr(0, colon);
}

// Each mc:AlternateContent gives way to what its choice holds; markup in an
// ignorable namespace goes.
void ApplyCompatibility(pugi::xml_node node, const std::set<std::string>& ignorable) {
  for (pugi::xml_attribute attr = node.first_attribute(); attr;) {
    const pugi::xml_attribute next = attr.next_attribute();
    if (ignorable.count(PrefixOf(attr.name()))) node.remove_attribute(attr);
    attr = next;
  }
  for (pugi::xml_node child = node.first_child(); child;) {
    const pugi::xml_node next = child.next_sibling();
    if (std::string(child.name()) == "mc:AlternateContent") {
      for (pugi::xml_node chosen : child.child("mc:Choice").children()) {
        ApplyCompatibility(node.insert_copy_before(chosen, child), ignorable);
      }
      node.remove_child(child);
    } else if (ignorable.count(PrefixOf(child.name()))) {
      node.remove_child(child);
    } else {
      ApplyCompatibility(child, ignorable);
    }
    child = next;
  }
}

}  // namespace

bool ValidatesWithShapeSchemas(const pugi::xml_document& document) {
  pugi::xml_document copy;
  copy.reset(document);
  pugi::xml_node root = copy.document_element();
  std::set<std::string> ignorable{"mc"};
  std::istringstream prefixes(root.attribute("mc:Ignorable").value());
  for (std::string prefix; prefixes >> prefix;) ignorable.insert(prefix);
  ApplyCompatibility(root, ignorable);

  if (!fs::exists(fs::path(LP_SHARED_DIR) / "corpus/xsd")) {
    std::fputs("shared test material missing: the shape schema check is skipped (see README)\n",
               stderr);
    return true;
  }
  const fs::path folder = fs::temp_directory_path() / ("lp_shapes_" + std::to_string(getpid()));
  fs::create_directories(folder);
  WriteSchemas(folder);
  copy.save_file((folder / "document.xml").c_str(), "", pugi::format_raw);
  const std::string command = "xmllint --noout --schema '" + (folder / "driver.xsd").string() +
                              "' '" + (folder / "document.xml").string() + "'";
  const bool valid = std::system(command.c_str()) == 0;
  fs::remove_all(folder);
  return valid;
}

}  // namespace shapes_test
