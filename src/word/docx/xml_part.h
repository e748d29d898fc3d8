#pragma once
// Parsing and writing XML parts so that what the engine does not touch comes
// back as it was: comments, processing instructions, the declaration with
// standalone="yes" and whitespace-only text (a w:t holding a blank) are kept.

#include <string>

#include <pugixml.hpp>

namespace word::docx {

bool ParseXml(const std::string& bytes, pugi::xml_document& doc);
std::string SerializeXml(pugi::xml_document& doc);

}  // namespace word::docx
