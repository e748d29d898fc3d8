#pragma once
// Validation of a document.xml against the ISO schemas and, for the wps and
// wpg elements those lack, against the schemas of this folder. Markup
// compatibility is applied first as Word applies it: the wps/wpg choice of
// each mc:AlternateContent is what is read, ignorable markup is dropped.

#include <pugixml.hpp>

namespace shapes_test {

// True when xmllint finds the document valid; prints xmllint's complaints.
bool ValidatesWithShapeSchemas(const pugi::xml_document& document);

}  // namespace shapes_test
