#pragma once
// The package's relationship parts and content types, read and edited as XML.
// An edit rewrites the part in the package at once; nothing reaches the file
// before the document is saved.

#include <string>

#include "word/docx/package.h"

namespace word::docx {

// The resolved target of part's first internal relationship whose type ends
// with typeSuffix ("/styles"); empty if there is none.
std::string RelationshipTarget(const Package& package, const std::string& part,
                               const char* typeSuffix);
// The Target attribute, as written, of part's relationship id; empty if none.
std::string RelationshipTargetById(const Package& package, const std::string& part,
                                   const std::string& id);
// Points part's relationship id at target, adding the relationship (under a
// fresh Id when id is empty) if it is missing. Returns the Id, or nothing
// when the relationship part is damaged.
std::string PutRelationship(Package& package, const std::string& part, std::string id,
                            const std::string& type, const std::string& target, bool external);
// Gives part its own content type unless [Content_Types].xml names it already.
void AddContentTypeOverride(Package& package, const std::string& part,
                            const std::string& contentType);

}  // namespace word::docx
