#pragma once
// Documents over IDispatch.

#include <vector>

#include "word/com/shapes.h"

namespace word::com {

class ComPageSetup : public PageSetup, public ComNode {
 public:
  using ComNode::ComNode;
  float PageWidth() const override { return Get(L"PageWidth").ToFloat(); }
  float PageHeight() const override { return Get(L"PageHeight").ToFloat(); }
  float TopMargin() const override { return Get(L"TopMargin").ToFloat(); }
  float BottomMargin() const override { return Get(L"BottomMargin").ToFloat(); }
  float LeftMargin() const override { return Get(L"LeftMargin").ToFloat(); }
  float RightMargin() const override { return Get(L"RightMargin").ToFloat(); }
};

class ComBookmarks : public Bookmarks, public ComNode {
 public:
  using ComNode::ComNode;
  bool Exists(const word::Text& name) const override { return Get(L"Exists", {name}).ToBool(); }
  std::unique_ptr<word::Range> Item(const word::Text& name) override {
    return std::make_unique<ComRange>(Ref(Object().Object(L"Item", {name}).Object(L"Range")));
  }
};

class ComAutoTextEntry : public AutoTextEntry, public ComNode {
 public:
  using ComNode::ComNode;
  void Insert(word::Range& where, bool richText) override {
    Call(L"Insert", {DispatchOf(where).get(), richText});
  }
  void Delete() override { Call(L"Delete"); }
};

class ComAutoTextEntries : public AutoTextEntries, public ComNode {
 public:
  using ComNode::ComNode;
  void Add(const word::Text& name, word::Range& range) override {
    Call(L"Add", {name, DispatchOf(range).get()});
  }
  std::unique_ptr<AutoTextEntry> Item(const word::Text& name) override {
    return std::make_unique<ComAutoTextEntry>(Fixed(L"Item", {name}));
  }
};

class ComTemplate : public Template, public ComNode {
 public:
  explicit ComTemplate(Ref ref) : ComNode(ref), entries_(Member(L"AutoTextEntries")) {}
  word::Text FullName() const override { return Get(L"FullName").ToText(); }
  word::AutoTextEntries& AutoTextEntries() override { return entries_; }

 private:
  ComAutoTextEntries entries_;
};

class ComDocument : public Document, public ComNode {
 public:
  explicit ComDocument(Ref ref)
      : ComNode(ref),
        shapes_(Member(L"Shapes")),
        fields_(Member(L"Fields")),
        pageSetup_(Member(L"PageSetup")),
        bookmarks_(Member(L"Bookmarks")) {}
  word::Text FullName() const override { return Get(L"FullName").ToText(); }
  std::unique_ptr<word::Range> Range(long start, long end) override {
    return std::make_unique<ComRange>(Fixed(L"Range", {start, end}));
  }
  std::unique_ptr<word::Range> Content() override {
    return std::make_unique<ComRange>(Fixed(L"Content"));
  }
  word::Shapes& Shapes() override { return shapes_; }
  word::Fields& Fields() override { return fields_; }
  word::PageSetup& PageSetup() override { return pageSetup_; }
  word::Bookmarks& Bookmarks() override { return bookmarks_; }
  std::unique_ptr<Template> AttachedTemplate() override {
    return std::make_unique<ComTemplate>(Fixed(L"AttachedTemplate"));
  }
  void SetAttachedTemplate(const word::Text& path) override { Put(L"AttachedTemplate", path); }
  void SetEmbedTrueTypeFonts(bool on) override { Put(L"EmbedTrueTypeFonts", on); }
  void SetSaveSubsetFonts(bool on) override { Put(L"SaveSubsetFonts", on); }
  void SetDoNotEmbedSystemFonts(bool on) override { Put(L"DoNotEmbedSystemFonts", on); }
  bool SnapToGrid() const override { return Get(L"SnapToGrid").ToBool(); }
  void SetSnapToGrid(bool on) override { Put(L"SnapToGrid", on); }
  bool SnapToShapes() const override { return Get(L"SnapToShapes").ToBool(); }
  void SetSnapToShapes(bool on) override { Put(L"SnapToShapes", on); }
  word::Text BuiltInDocumentProperty(const word::Text& name) const override {
    return Object().Object(L"BuiltInDocumentProperties", {name}).Get(L"Value").ToText();
  }
  void SetBuiltInDocumentProperty(const word::Text& name, const word::Text& value) override {
    Object().Object(L"BuiltInDocumentProperties", {name}).Put(L"Value", value);
  }
  long DeleteTextHyperlinks() override;
  long DeleteShapeHyperlinks() override;
  long DeleteHeadersFooters() override;
  long DeleteBlankParagraphs() override;
  long ReplaceAllText(const word::Text& findText, const word::Text& replacement) override;
  long ScaleFormulas(double factor) override;
  long ScalePictures(double factor) override;
  long AlignFormulas(bool unshift) override;
  word::EqConversion ConvertEqFields(const word::EqFieldConverter& convert) override;
  void Save() override { Call(L"Save"); }
  void SaveAs(const word::Text& path) override { Call(L"SaveAs", {path}); }
  void Close(bool saveChanges) override { Call(L"Close", {saveChanges}); }

 private:
  ComShapes shapes_;
  ComFields fields_;
  ComPageSetup pageSetup_;
  ComBookmarks bookmarks_;
};

// Documents handed out by Add and Open live as long as the application object.
class ComDocuments : public Documents, public ComNode {
 public:
  using ComNode::ComNode;
  long Count() const override { return Get(L"Count").ToLong(); }
  Document& Add(const word::Text& templatePath) override {
    return Keep(templatePath.empty() ? Fixed(L"Add") : Fixed(L"Add", {templatePath}));
  }
  // Open(FileName, ConfirmConversions, ReadOnly, AddToRecentFiles, PasswordDocument,
  // PasswordTemplate, Revert, WritePasswordDocument, WritePasswordTemplate, Format,
  // Encoding, Visible): Visible alone is given.
  Document& Open(const word::Text& path, bool visible) override {
    const Variant m = Variant::Missing();
    return Keep(Fixed(L"Open", {path, m, m, m, m, m, m, m, m, m, m, visible}));
  }
  // Word serves one caller at a time.
  unsigned IndependentOpens() const override { return 1; }

 private:
  Document& Keep(Ref document) {
    opened_.push_back(std::make_unique<ComDocument>(std::move(document)));
    return *opened_.back();
  }
  std::vector<std::unique_ptr<ComDocument>> opened_;
};

}  // namespace word::com
