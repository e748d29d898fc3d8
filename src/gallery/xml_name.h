#pragma once
// Element names of the document's XML, compared as written (prefix and all).

#include <cstring>

#include <pugixml.hpp>

namespace lp::gallery {

inline bool Is(pugi::xml_node node, const char* name) {
  return std::strcmp(node.name(), name) == 0;
}

}  // namespace lp::gallery
