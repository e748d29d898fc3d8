#pragma once
// Children kept in the order the schemas prescribe: Word asks to repair a file
// whose elements stand out of order, so every insertion of the text engine and
// the shape layer goes through here. A new child goes after the last child
// that precedes it in the order; children the order does not name are passed
// over.

#include <cstring>
#include <initializer_list>
#include <string_view>

#include <pugixml.hpp>

namespace word::docx {

using Order = std::initializer_list<std::string_view>;

inline bool Is(pugi::xml_node node, const char* name) {
  return std::strcmp(node.name(), name) == 0;
}

// The child called name, created at its place in order when missing.
pugi::xml_node EnsureChild(pugi::xml_node parent, std::string_view name, Order order);

// Removes every child named in choices, then inserts a new child called name
// at its place in order (one of the choices, such as a fill kind).
pugi::xml_node ReplaceChoice(pugi::xml_node parent, Order choices, std::string_view name,
                             Order order);

// The first child whose name is one of names.
pugi::xml_node FirstChildOf(pugi::xml_node parent, Order names);

// Sets an attribute, adding it when missing.
void SetAttr(pugi::xml_node node, const char* name, const char* value);
void SetAttr(pugi::xml_node node, const char* name, long long value);

// Element orders of the parts the engine edits.
extern const Order kRunPropertiesOrder;        // w:rPr
extern const Order kParagraphPropertiesOrder;  // w:pPr
extern const Order kSettingsOrder;  // the leading children of w:settings, up to the last one edited

extern const Order kShapePropertiesOrder;  // a:spPr, wps:spPr
extern const Order kLineOrder;             // a:ln
extern const Order kFillChoices;           // the fill kinds of spPr and ln
extern const Order kWspOrder;              // wps:wsp

}  // namespace word::docx
