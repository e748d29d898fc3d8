#pragma once
// Parsing and writing XML parts so that what the engine does not touch comes
// back as it was: comments, processing instructions, the declaration with
// standalone="yes" and whitespace-only text (a w:t holding a blank) are kept.

#include <cstring>
#include <initializer_list>
#include <string>
#include <vector>

#include <pugixml.hpp>

namespace word::docx {

bool ParseXml(const std::string& bytes, pugi::xml_document& doc);
std::string SerializeXml(pugi::xml_document& doc);

// The elements below root, in document order, that `keep` accepts: the
// library's own walk, many times faster than the same XPath query.
template <class Keep>
std::vector<pugi::xml_node> Descendants(pugi::xml_node root, Keep keep) {
  struct Walker : pugi::xml_tree_walker {
    Keep& keep;
    std::vector<pugi::xml_node> found;
    explicit Walker(Keep& k) : keep(k) {}
    bool for_each(pugi::xml_node& n) override {
      if (n.type() == pugi::node_element && keep(n)) found.push_back(n);
      return true;
    }
  } walker(keep);
  root.traverse(walker);
  return std::move(walker.found);
}

// The elements below root with one of these names.
inline std::vector<pugi::xml_node> DescendantsNamed(pugi::xml_node root,
                                                    std::initializer_list<const char*> names) {
  return Descendants(root, [&](pugi::xml_node n) {
    for (const char* name : names)
      if (!std::strcmp(n.name(), name)) return true;
    return false;
  });
}

}  // namespace word::docx
