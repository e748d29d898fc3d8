#pragma once
// Documents of the recording back end. The first document of a run writes
// its collections bare ("Shapes.AddLine(...)") and itself as ActiveDocument;
// a later one is Documents(n).

#include <set>

#include "word/fake/shapes.h"

namespace word::fake {

// Page A4 in points with Word's default margins, unless scripted.
class FakePageSetup : public PageSetup, public Node {
 public:
  using Node::Node;
  float PageWidth() const override { return Get("PageWidth", 595.3); }
  float PageHeight() const override { return Get("PageHeight", 841.9); }
  float TopMargin() const override { return Get("TopMargin", 72); }
  float BottomMargin() const override { return Get("BottomMargin", 72); }
  float LeftMargin() const override { return Get("LeftMargin", 90); }
  float RightMargin() const override { return Get("RightMargin", 90); }

 private:
  float Get(const std::string& member, double fallback) const {
    return static_cast<float>(Number(member, fallback));
  }
};

// A bookmark exists when scripted as Bookmarks.Exists("name") = 1; "\Page" always does.
class FakeBookmarks : public Bookmarks, public Node {
 public:
  using Node::Node;
  bool Exists(const word::Text& name) const override;
  std::unique_ptr<word::Range> Item(const word::Text& name) override;
};

class FakeAutoTextEntry : public AutoTextEntry, public Node {
 public:
  FakeAutoTextEntry(State& state, std::string path, std::set<word::Text>& names, word::Text name)
      : Node(state, std::move(path)), names_(names), name_(std::move(name)) {}
  void Insert(word::Range& where, bool richText) override {
    Call("Insert", PathOf(where), richText);
  }
  void Delete() override {
    Call("Delete");
    names_.erase(name_);
  }

 private:
  std::set<word::Text>& names_;
  word::Text name_;
};

class FakeAutoTextEntries : public AutoTextEntries, public Node {
 public:
  using Node::Node;
  void Add(const word::Text& name, word::Range& range) override {
    Call("Add", name, PathOf(range));
    names_.insert(name);
  }
  // An entry the template holds before the run.
  void Hold(const word::Text& name) { names_.insert(name); }
  std::unique_ptr<AutoTextEntry> Item(const word::Text& name) override {
    if (!names_.count(name)) {
      throw NoSuchMember();
    }
    return std::make_unique<FakeAutoTextEntry>(st_, path_ + "(" + Arg(name) + ")", names_, name);
  }

 private:
  std::set<word::Text> names_;
};

// The attached template holds the mark entries of the insert tools.
class FakeTemplate : public Template {
 public:
  FakeTemplate(State& state, word::Text fullName)
      : fullName_(std::move(fullName)),
        entries_(state, "ActiveDocument.AttachedTemplate.AutoTextEntries") {
    entries_.Hold(u"hu_top");
    entries_.Hold(u"xiangliang");
  }
  word::Text FullName() const override { return fullName_; }
  word::AutoTextEntries& AutoTextEntries() override { return entries_; }

 private:
  word::Text fullName_;
  FakeAutoTextEntries entries_;
};

class FakeDocument : public Document, public Node {
 public:
  FakeDocument(State& state, DocumentState& document);
  word::Text FullName() const override { return doc_.fullName; }
  std::unique_ptr<word::Range> Range(long start, long end) override;
  std::unique_ptr<word::Range> Content() override;
  word::Shapes& Shapes() override { return shapes_; }
  word::Fields& Fields() override { return fields_; }
  word::PageSetup& PageSetup() override { return pageSetup_; }
  word::Bookmarks& Bookmarks() override { return bookmarks_; }
  std::unique_ptr<Template> AttachedTemplate() override;
  void SetAttachedTemplate(const word::Text& path) override;
  void SetEmbedTrueTypeFonts(bool on) override { Put("EmbedTrueTypeFonts", on); }
  void SetSaveSubsetFonts(bool on) override { Put("SaveSubsetFonts", on); }
  void SetDoNotEmbedSystemFonts(bool on) override { Put("DoNotEmbedSystemFonts", on); }
  bool SnapToGrid() const override { return Number("SnapToGrid", -1) != 0; }
  void SetSnapToGrid(bool on) override { Put("SnapToGrid", on); }
  bool SnapToShapes() const override { return Number("SnapToShapes", -1) != 0; }
  void SetSnapToShapes(bool on) override { Put("SnapToShapes", on); }
  word::Text BuiltInDocumentProperty(const word::Text& name) const override;
  void SetBuiltInDocumentProperty(const word::Text& name, const word::Text& value) override;
  long DeleteTextHyperlinks() override { return Edit("DeleteTextHyperlinks"); }
  long DeleteShapeHyperlinks() override { return Edit("DeleteShapeHyperlinks"); }
  long DeleteHeadersFooters() override { return Edit("DeleteHeadersFooters"); }
  long DeleteBlankParagraphs() override { return Edit("DeleteBlankParagraphs"); }
  long ReplaceAllText(const word::Text& findText, const word::Text& replacement) override;
  long ScaleFormulas(double factor) override;
  long ScalePictures(double factor) override;
  long AlignFormulas(bool unshift) override;
  word::EqConversion ConvertEqFields(const word::EqFieldConverter&) override {
    return {Edit("ConvertEqFields"), {}};
  }
  void Save() override { Call("Save"); }
  void SaveAs(const word::Text& path) override;
  void Close(bool saveChanges) override;

 private:
  // Records the call; answers the count scripted for it, else 0.
  long Edit(const std::string& member) {
    Call(member);
    return static_cast<long>(Number(member, 0));
  }

  std::string prefix_;  // before the names of the document's collections
  DocumentState& doc_;
  FakeShapes shapes_;
  FakeFields fields_;
  FakePageSetup pageSetup_;
  FakeBookmarks bookmarks_;
};

class FakeDocuments : public Documents, public Node {
 public:
  explicit FakeDocuments(State& state) : Node(state, "Documents") {}
  long Count() const override { return static_cast<long>(st_.documents.size()); }
  Document& Add(const word::Text& templatePath) override;
  Document& Open(const word::Text& path, bool visible) override;
  unsigned IndependentOpens() const override { return 1; }
  // A document the test opens, unrecorded.
  Document& Make(const word::Text& fullName, const word::Text& attachedTemplate);

 private:
  std::vector<std::unique_ptr<FakeDocument>> objects_;
  long made_ = 0;
};

}  // namespace word::fake
