#pragma once
// The outermost fields of a part as runs in document order, for edits that
// treat a field as a whole (a HYPERLINK to unwrap, an EQ field to scale).

#include <string>
#include <vector>

#include <pugixml.hpp>

namespace word::docx {

struct FieldRuns {
  std::string instruction;            // the code of the field itself, nested fields left out
  std::vector<pugi::xml_node> runs;   // begin to end, nested fields' runs included
  pugi::xml_node simple;              // the w:fldSimple of a simple field
  std::vector<pugi::xml_node> marks;  // the field's own fldChar and instrText elements
};

std::vector<FieldRuns> OutermostFields(pugi::xml_node root);
// The field's first word, upper-cased: "EQ", "HYPERLINK".
std::string FieldKeyword(const std::string& instruction);
// Removes node; its run goes too when nothing but properties is left in it.
void RemoveFromRun(pugi::xml_node node);

}  // namespace word::docx
