#pragma once
// The document's settings part (word/settings.xml): the font-embedding options
// and the attached template. A change is written into the package at once, and
// only a real change: setting an option to the value it has touches nothing.

#include <string>

#include <pugixml.hpp>

#include "word/docx/package.h"

namespace word::docx {

class DocumentSettings {
 public:
  DocumentSettings(Package& package, std::string mainPart);

  void SetEmbedTrueTypeFonts(bool on);
  bool EmbedsTrueTypeFonts();
  void SetSaveSubsetFonts(bool on);
  void SetDoNotEmbedSystemFonts(bool on);
  // The attached template's path (UTF-8); empty when none is attached.
  std::string AttachedTemplate();
  void SetAttachedTemplate(const std::string& path);

  // Whether edits are recorded as revisions (w:trackRevisions).
  bool TracksRevisions();
  // The kind of editing protection enforced ("readOnly", "comments", "forms",
  // "trackedChanges"), or empty when the document is open for editing.
  std::string EnforcedProtection();

  // Whether anything changed since the last save.
  bool Changed() const { return changed_; }
  void Saved() { changed_ = false; }

 private:
  void Load();
  pugi::xml_node Root() const { return xml_.child("w:settings"); }
  bool IsOn(const char* name) const;
  void SetOnOff(const char* name, bool on);
  pugi::xml_node EditableRoot();
  void CreatePart();
  void Store();

  Package& package_;
  std::string mainPart_;
  std::string part_;  // empty while the package has no settings part
  pugi::xml_document xml_;
  bool loaded_ = false;
  bool changed_ = false;
  // Kept apart: the file records only whether system fonts are embedded.
  bool doNotEmbedSystemFonts_ = true;
};

}  // namespace word::docx
