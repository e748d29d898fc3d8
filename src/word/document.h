#pragma once
#include <memory>

#include "word/eq_fields.h"
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

class AutoTextEntry {
 public:
  virtual ~AutoTextEntry() = default;
  virtual void Insert(Range& where, bool richText) = 0;
  virtual void Delete() = 0;
};

class AutoTextEntries {
 public:
  virtual ~AutoTextEntries() = default;
  virtual void Add(const Text& name, Range& range) = 0;
  virtual std::unique_ptr<AutoTextEntry> Item(const Text& name) = 0;
};

class Template {
 public:
  virtual ~Template() = default;
  virtual Text FullName() const = 0;
  virtual word::AutoTextEntries& AutoTextEntries() = 0;
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
  virtual bool SnapToGrid() const = 0;
  virtual void SetSnapToGrid(bool on) = 0;
  virtual bool SnapToShapes() const = 0;
  virtual void SetSnapToShapes(bool on) = 0;
  // BuiltInDocumentProperties by Word's English name ("Title", "Author", ...).
  virtual Text BuiltInDocumentProperty(const Text& name) const = 0;
  virtual void SetBuiltInDocumentProperty(const Text& name, const Text& value) = 0;
  // Whole-document clean-ups, each one of Word's loops over a collection that
  // covers every story (body, headers, footers, notes, text boxes). Each
  // returns how many items it changed.
  // Hyperlinks of text (Hyperlink.Delete): the link goes, its text stays.
  virtual long DeleteTextHyperlinks() = 0;
  // Hyperlinks of shapes and pictures.
  virtual long DeleteShapeHyperlinks() = 0;
  // Every header and footer of every section, with the shapes and watermarks in them.
  virtual long DeleteHeadersFooters() = 0;
  // Empty paragraphs of the body, cells and text boxes; never one that holds
  // an object, a shape anchor, a field or a bookmark, nor the last paragraph
  // of a cell, text box or section.
  virtual long DeleteBlankParagraphs() = 0;
  // Find.Execute with wdReplaceAll over each of the StoryRanges: a match may
  // span runs; the replacement takes the format of the match's first run.
  virtual long ReplaceAllText(const Text& findText, const Text& replacement) = 0;
  // Equation objects, EQ fields and native equations grow by the factor.
  virtual long ScaleFormulas(double factor) = 0;
  // Pictures of the body grow by the factor.
  virtual long ScalePictures(double factor) = 0;
  // The paragraphs that hold a formula align their characters on the centre
  // line (BaseLineAlignment); with `unshift` raised or lowered formulas are
  // put back on the line as well.
  virtual long AlignFormulas(bool unshift) = 0;
  // Each EQ field of the body, the headers, footers and notes, and their text
  // boxes, that `convert` makes an equation of is replaced by that equation,
  // in its place in the text.
  virtual EqConversion ConvertEqFields(const EqFieldConverter& convert) = 0;
  virtual void Save() = 0;
  virtual void SaveAs(const Text& path) = 0;
  virtual void Close(bool saveChanges) = 0;
};

class Documents {
 public:
  virtual ~Documents() = default;
  virtual long Count() const = 0;
  virtual Document& Add(const Text& templatePath = Text()) = 0;
  // Hidden when not visible, as Word opens a document without a window.
  virtual Document& Open(const Text& path, bool visible) = 0;
  // How many documents may be opened and worked on at once from different
  // threads: 1 for Word itself, more for the file engine.
  virtual unsigned IndependentOpens() const = 0;
};

}  // namespace word
