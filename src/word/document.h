#pragma once
#include <memory>

#include "word/range.h"
#include "word/shapes.h"

namespace word {

class PageSetup {
 public:
  virtual ~PageSetup() = default;
  virtual float PageWidth() const = 0;
  virtual float PageHeight() const = 0;
  virtual float TopMargin() const = 0;
  virtual float BottomMargin() const = 0;
  virtual float LeftMargin() const = 0;
  virtual float RightMargin() const = 0;
};

class Bookmarks {
 public:
  virtual ~Bookmarks() = default;
  virtual bool Exists(const Text& name) const = 0;
  // Also the predefined "\Page": the page that holds the selection.
  virtual std::unique_ptr<Range> Item(const Text& name) = 0;
};

class Template {
 public:
  virtual ~Template() = default;
  virtual Text FullName() const = 0;
};

class Document {
 public:
  virtual ~Document() = default;
  virtual Text FullName() const = 0;
  virtual std::unique_ptr<word::Range> Range(long start, long end) = 0;
  virtual std::unique_ptr<word::Range> Content() = 0;
  virtual word::Shapes& Shapes() = 0;
  virtual word::Fields& Fields() = 0;
  virtual word::PageSetup& PageSetup() = 0;
  virtual word::Bookmarks& Bookmarks() = 0;
  virtual std::unique_ptr<Template> AttachedTemplate() = 0;
  virtual void SetAttachedTemplate(const Text& path) = 0;
  virtual void SetEmbedTrueTypeFonts(bool on) = 0;
  virtual void SetSaveSubsetFonts(bool on) = 0;
  virtual void SetDoNotEmbedSystemFonts(bool on) = 0;
  virtual void SetSnapToGrid(bool on) = 0;
  virtual void SetSnapToShapes(bool on) = 0;
  // BuiltInDocumentProperties by Word's English name ("Title", "Author", ...).
  virtual Text BuiltInDocumentProperty(const Text& name) const = 0;
  virtual void SetBuiltInDocumentProperty(const Text& name, const Text& value) = 0;
  virtual void Save() = 0;
  virtual void SaveAs(const Text& path) = 0;
  virtual void Close(bool saveChanges) = 0;
};

class Documents {
 public:
  virtual ~Documents() = default;
  virtual long Count() const = 0;
  virtual Document& Add(const Text& templatePath = Text()) = 0;
  virtual Document& Open(const Text& path) = 0;
};

}  // namespace word
