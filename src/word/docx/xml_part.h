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

// Whether the node is named so. Element names are a few characters long, and
// the walks ask this of every node: compared in place it costs no call.
inline bool Named(pugi::xml_node n, const char* name) {
  const char* own = n.name();
  while (*own && *own == *name) ++own, ++name;
  return *own == *name;
}

// The nodes below root, in document order, that `keep` accepts: the
// library's own walk, many times faster than the same XPath query.
template <class Keep>
std::vector<pugi::xml_node> NodesBelow(pugi::xml_node root, Keep keep) {
  struct Walker : pugi::xml_tree_walker {
    Keep& keep;
    std::vector<pugi::xml_node> found;
    explicit Walker(Keep& k) : keep(k) {}
    bool for_each(pugi::xml_node& n) override {
      if (keep(n)) found.push_back(n);
      return true;
    }
  } walker(keep);
  root.traverse(walker);
  return std::move(walker.found);
}

// The elements below root with one of these names. Text is nameless and
// other nodes are named after their target, so no node's type is asked.
inline std::vector<pugi::xml_node> DescendantsNamed(pugi::xml_node root,
                                                    std::initializer_list<const char*> names) {
  return NodesBelow(root, [&](pugi::xml_node n) {
    for (const char* name : names)
      if (Named(n, name)) return true;
    return false;
  });
}

}  // namespace word::docx
