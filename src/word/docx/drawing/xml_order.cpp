#include "word/docx/drawing/xml_order.h"

#include <algorithm>
#include <string>

namespace word::docx::drawing {

const Order kFillChoices = {"a:noFill",   "a:solidFill", "a:gradFill",
                            "a:blipFill", "a:pattFill",  "a:grpFill"};
const Order kShapePropertiesOrder = {"a:xfrm",      "a:custGeom", "a:prstGeom",  "a:noFill",
                                     "a:solidFill", "a:gradFill", "a:blipFill",  "a:pattFill",
                                     "a:grpFill",   "a:ln",       "a:effectLst", "a:effectDag",
                                     "a:scene3d",   "a:sp3d",     "a:extLst"};
const Order kLineOrder = {"a:noFill",   "a:solidFill", "a:gradFill", "a:pattFill",
                          "a:prstDash", "a:custDash",  "a:round",    "a:bevel",
                          "a:miter",    "a:headEnd",   "a:tailEnd",  "a:extLst"};
const Order kWspOrder = {"wps:cNvPr",  "wps:cNvSpPr", "wps:cNvCnPr",    "wps:spPr",  "wps:style",
                         "wps:extLst", "wps:txbx",    "wps:linkedTxbx", "wps:bodyPr"};

namespace {

long RankOf(std::string_view name, Order order) {
  const auto found = std::find(order.begin(), order.end(), name);
  return found == order.end() ? -1 : static_cast<long>(found - order.begin());
}

// Inserts a new child called name before the first child that ranks after it.
pugi::xml_node InsertInOrder(pugi::xml_node parent, std::string_view name, Order order) {
  const long rank = RankOf(name, order);
  const std::string text(name);
  for (pugi::xml_node child : parent.children()) {
    if (RankOf(child.name(), order) > rank) return parent.insert_child_before(text.c_str(), child);
  }
  return parent.append_child(text.c_str());
}

}  // namespace

pugi::xml_node EnsureChild(pugi::xml_node parent, std::string_view name, Order order) {
  const std::string text(name);
  pugi::xml_node child = parent.child(text.c_str());
  return child ? child : InsertInOrder(parent, name, order);
}

pugi::xml_node ReplaceChoice(pugi::xml_node parent, Order choices, std::string_view name,
                             Order order) {
  while (pugi::xml_node old = FirstChildOf(parent, choices)) parent.remove_child(old);
  return InsertInOrder(parent, name, order);
}

pugi::xml_node FirstChildOf(pugi::xml_node parent, Order names) {
  for (pugi::xml_node child : parent.children()) {
    if (RankOf(child.name(), names) >= 0) return child;
  }
  return {};
}

void SetAttr(pugi::xml_node node, const char* name, const char* value) {
  pugi::xml_attribute attr = node.attribute(name);
  if (!attr) attr = node.append_attribute(name);
  attr.set_value(value);
}

void SetAttr(pugi::xml_node node, const char* name, long long value) {
  SetAttr(node, name, std::to_string(value).c_str());
}

}  // namespace word::docx::drawing
