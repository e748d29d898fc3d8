#include "word/docx/document_settings.h"

#include <cctype>
#include <cstring>
#include <iterator>
#include <optional>
#include <string_view>

#include "word/docx/docx_error.h"
#include "word/docx/host/xml_order.h"
#include "word/docx/relationships.h"
#include "word/docx/xml_part.h"

namespace word::docx {
namespace {

const char* const kRelationshipsNs =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
const std::string kSettingsType = std::string(kRelationshipsNs) + "/settings";
const std::string kTemplateType = std::string(kRelationshipsNs) + "/attachedTemplate";
const char* const kSettingsContentType =
    "application/vnd.openxmlformats-officedocument.wordprocessingml.settings+xml";
const std::string kNewSettings =
    std::string("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n") +
    "<w:settings xmlns:w=\"http://schemas.openxmlformats.org/wordprocessingml/2006/main\" "
    "xmlns:r=\"" +
    kRelationshipsNs + "\"/>";

// Word writes a template's path as a file: URI that keeps Windows' backslashes
// and escapes what a URI may not hold (a blank as %20, other text as UTF-8).
std::string FileUri(const std::string& path) {
  static const char kHex[] = "0123456789ABCDEF";
  std::string uri = !path.empty() && path[0] == '/' ? "file://" : "file:///";
  for (unsigned char c : path) {
    if (c <= 0x20 || c >= 0x7F || std::strchr("\"#%<>?[]^`{|}", c)) {
      uri += '%';
      uri += kHex[c >> 4];
      uri += kHex[c & 15];
    } else {
      uri += static_cast<char>(c);
    }
  }
  return uri;
}

std::string PercentDecode(const std::string& s) {
  std::string out;
  for (size_t i = 0; i < s.size(); ++i) {
    if (s[i] == '%' && i + 2 < s.size() && std::isxdigit(static_cast<unsigned char>(s[i + 1])) &&
        std::isxdigit(static_cast<unsigned char>(s[i + 2]))) {
      out += static_cast<char>(std::stoi(s.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      out += s[i];
    }
  }
  return out;
}

// file:///C:\t.dotm -> C:\t.dotm, file:///home/t.dotm -> /home/t.dotm.
std::string PathFromFileUri(std::string uri) {
  const bool file =
      uri.size() >= 5 && (uri.compare(0, 5, "file:") == 0 || uri.compare(0, 5, "FILE:") == 0);
  if (file) uri.erase(0, 5);
  if (file && uri.compare(0, 3, "///") == 0) {
    const bool drive =
        uri.size() > 4 && std::isalpha(static_cast<unsigned char>(uri[3])) && uri[4] == ':';
    uri.erase(0, drive ? 3 : 2);
  }
  return PercentDecode(uri);
}

}  // namespace

DocumentSettings::DocumentSettings(Package& package, std::string mainPart)
    : package_(package), mainPart_(std::move(mainPart)) {}

void DocumentSettings::Load() {
  if (loaded_) return;
  loaded_ = true;
  part_ = RelationshipTarget(package_, mainPart_, "/settings");
  try {
    auto bytes = part_.empty() ? std::nullopt : package_.Read(part_);
    if (!bytes || !ParseXml(*bytes, xml_)) xml_.reset();
  } catch (const DocxFileError&) {
    xml_.reset();
  }
  if (IsOn("w:embedTrueTypeFonts")) doNotEmbedSystemFonts_ = !IsOn("w:embedSystemFonts");
}

bool DocumentSettings::EmbedsTrueTypeFonts() {
  Load();
  return IsOn("w:embedTrueTypeFonts");
}

bool DocumentSettings::IsOn(const char* name) const {
  pugi::xml_node e = Root().child(name);
  if (!e) return false;
  pugi::xml_attribute val = e.attribute("w:val");
  if (!val) return true;
  const std::string v = val.value();
  return v != "0" && v != "false" && v != "off";
}

void DocumentSettings::SetOnOff(const char* name, bool on) {
  if (IsOn(name) == on) return;
  pugi::xml_node root = EditableRoot();
  if (!root) return;
  pugi::xml_node e = root.child(name);
  if (!on)
    root.remove_child(e);
  else if (e)
    e.remove_attribute("w:val");
  else
    EnsureChild(root, name, kSettingsOrder);
  Store();
}

// The settings to edit, created when the package has none; nothing when the
// part is there but unreadable, which is left as it is.
pugi::xml_node DocumentSettings::EditableRoot() {
  if (Root()) return Root();
  if (!part_.empty() && package_.Has(part_)) return {};
  CreatePart();
  return Root();
}

void DocumentSettings::CreatePart() {
  if (part_.empty()) {
    if (PutRelationship(package_, mainPart_, "", kSettingsType, "settings.xml", false).empty())
      return;
    part_ = ResolveTarget(mainPart_, "settings.xml");
  }
  AddContentTypeOverride(package_, part_, kSettingsContentType);
  ParseXml(kNewSettings, xml_);
}

void DocumentSettings::Store() {
  package_.Write(part_, SerializeXml(xml_));
  changed_ = true;
}

void DocumentSettings::SetEmbedTrueTypeFonts(bool on) {
  Load();
  SetOnOff("w:embedTrueTypeFonts", on);
  SetOnOff("w:embedSystemFonts", on && !doNotEmbedSystemFonts_);
}

void DocumentSettings::SetSaveSubsetFonts(bool on) {
  Load();
  SetOnOff("w:saveSubsetFonts", on);
}

void DocumentSettings::SetDoNotEmbedSystemFonts(bool on) {
  Load();
  doNotEmbedSystemFonts_ = on;
  SetOnOff("w:embedSystemFonts", IsOn("w:embedTrueTypeFonts") && !on);
}

std::string DocumentSettings::AttachedTemplate() {
  Load();
  const std::string id = Root().child("w:attachedTemplate").attribute("r:id").value();
  if (part_.empty() || id.empty()) return std::string();
  const std::string target = RelationshipTargetById(package_, part_, id);
  return target.empty() ? std::string() : PathFromFileUri(target);
}

void DocumentSettings::SetAttachedTemplate(const std::string& path) {
  if (AttachedTemplate() == path) return;
  pugi::xml_node root = EditableRoot();
  if (!root) return;
  pugi::xml_node e = root.child("w:attachedTemplate");
  const std::string id = PutRelationship(package_, part_, e.attribute("r:id").value(),
                                         kTemplateType, FileUri(path), true);
  if (id.empty()) return;
  if (!e) e = EnsureChild(root, "w:attachedTemplate", kSettingsOrder);
  if (!e.attribute("r:id")) e.append_attribute("r:id");
  e.attribute("r:id").set_value(id.c_str());
  if (!root.attribute("xmlns:r")) root.append_attribute("xmlns:r") = kRelationshipsNs;
  Store();
}

bool DocumentSettings::TracksRevisions() {
  Load();
  return IsOn("w:trackRevisions");
}

std::string DocumentSettings::EnforcedProtection() {
  Load();
  pugi::xml_node protection = Root().child("w:documentProtection");
  const std::string enforced = protection.attribute("w:enforcement").value();
  if (enforced != "1" && enforced != "true" && enforced != "on") return {};
  const std::string edit = protection.attribute("w:edit").value();
  return edit == "none" ? std::string() : edit;
}

}  // namespace word::docx
