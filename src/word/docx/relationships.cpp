#include "word/docx/relationships.h"

#include <cctype>
#include <cstring>

#include <pugixml.hpp>

#include "word/docx/xml_part.h"

namespace word::docx {
namespace {

const char* const kDecl = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n";
const char* const kNewRels =
    "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\"/>";

// The part parsed into doc, or the empty root given when it is missing.
bool LoadPart(const Package& package, const std::string& part, pugi::xml_document& doc,
              const char* emptyRoot) {
  auto bytes = package.Read(part);
  return ParseXml(bytes ? *bytes : std::string(kDecl) + emptyRoot, doc);
}

pugi::xml_node FindById(pugi::xml_node relationships, const std::string& id) {
  return relationships.find_child_by_attribute("Relationship", "Id", id.c_str());
}

std::string FreshId(pugi::xml_node relationships) {
  for (int n = 1;; ++n) {
    std::string id = "rId" + std::to_string(n);
    if (!FindById(relationships, id)) return id;
  }
}

void SetAttribute(pugi::xml_node node, const char* name, const std::string& value) {
  pugi::xml_attribute a = node.attribute(name);
  if (!a) a = node.append_attribute(name);
  a.set_value(value.c_str());
}

// Part names compare without regard to case.
bool SameName(const std::string& a, const std::string& b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (std::tolower(static_cast<unsigned char>(a[i])) !=
        std::tolower(static_cast<unsigned char>(b[i])))
      return false;
  return true;
}

}  // namespace

std::string RelationshipTarget(const Package& package, const std::string& part,
                               const char* typeSuffix) {
  auto rels = package.Read(RelsPartOf(part));
  pugi::xml_document doc;
  if (!rels || !ParseXml(*rels, doc)) return std::string();
  for (pugi::xml_node r : doc.child("Relationships").children("Relationship")) {
    std::string type = r.attribute("Type").value();
    size_t n = std::strlen(typeSuffix);
    if (type.size() >= n && type.compare(type.size() - n, n, typeSuffix) == 0 &&
        std::strcmp(r.attribute("TargetMode").value(), "External") != 0)
      return ResolveTarget(part, r.attribute("Target").value());
  }
  return std::string();
}

std::string RelationshipTargetById(const Package& package, const std::string& part,
                                   const std::string& id) {
  auto rels = package.Read(RelsPartOf(part));
  pugi::xml_document doc;
  if (id.empty() || !rels || !ParseXml(*rels, doc)) return std::string();
  return FindById(doc.child("Relationships"), id).attribute("Target").value();
}

std::string PutRelationship(Package& package, const std::string& part, std::string id,
                            const std::string& type, const std::string& target, bool external) {
  const std::string relsPart = RelsPartOf(part);
  pugi::xml_document doc;
  pugi::xml_node root;
  if (LoadPart(package, relsPart, doc, kNewRels)) root = doc.child("Relationships");
  if (!root) return std::string();  // a damaged part is left as it is
  if (id.empty()) id = FreshId(root);
  pugi::xml_node r = FindById(root, id);
  if (!r) {
    r = root.append_child("Relationship");
    SetAttribute(r, "Id", id);
    SetAttribute(r, "Type", type);
  }
  SetAttribute(r, "Target", target);
  if (external) SetAttribute(r, "TargetMode", "External");
  package.Write(relsPart, SerializeXml(doc));
  return id;
}

void AddContentTypeOverride(Package& package, const std::string& part,
                            const std::string& contentType) {
  const std::string typesPart = "[Content_Types].xml";
  pugi::xml_document doc;
  if (!LoadPart(package, typesPart, doc,
                "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\"/>"))
    return;
  pugi::xml_node types = doc.child("Types");
  const std::string name = "/" + part;
  for (pugi::xml_node o : types.children("Override"))
    if (SameName(o.attribute("PartName").value(), name)) return;
  pugi::xml_node o = types.append_child("Override");
  SetAttribute(o, "PartName", name);
  SetAttribute(o, "ContentType", contentType);
  package.Write(typesPart, SerializeXml(doc));
}

}  // namespace word::docx
