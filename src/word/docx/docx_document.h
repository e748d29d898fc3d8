#pragma once
// A .docx file as Word's Document: the package, document.xml, its stories,
// the selection and the fields' display state.

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <unordered_set>
#include <vector>

#include <pugixml.hpp>

#include "word/api.h"
#include "word/docx/document_settings.h"
#include "word/docx/host/docx_host.h"
#include "word/docx/layout_estimate.h"
#include "word/docx/package.h"
#include "word/docx/story.h"
#include "word/docx/styles.h"

namespace word::docx {

class AppState;
class DocxSelection;
class RangeFields;

// What a range refers to: a story and a live span in it.
struct Place {
  class DocxDocument* doc = nullptr;
  std::shared_ptr<Story> story;
  std::shared_ptr<Span> span;
  long Start() const {
    story->CheckLive();
    return span->start;
  }
  long End() const {
    story->CheckLive();
    return span->end;
  }
};

class DocxDocument : public word::Document, public DocxHost, public StoryOwner {
 public:
  // Throws DocxFileError for a package that holds no readable document.
  DocxDocument(Package package, std::filesystem::path file);
  ~DocxDocument() override;

  // word::Document
  Text FullName() const override;
  std::unique_ptr<word::Range> Range(long start, long end) override;
  std::unique_ptr<word::Range> Content() override;
  word::Shapes& Shapes() override;
  word::Fields& Fields() override;
  word::PageSetup& PageSetup() override;
  word::Bookmarks& Bookmarks() override;
  std::unique_ptr<Template> AttachedTemplate() override;
  void SetAttachedTemplate(const Text& path) override;
  void SetEmbedTrueTypeFonts(bool on) override;
  void SetSaveSubsetFonts(bool on) override;
  void SetDoNotEmbedSystemFonts(bool on) override;
  bool SnapToGrid() const override;
  void SetSnapToGrid(bool on) override;
  bool SnapToShapes() const override;
  void SetSnapToShapes(bool on) override;
  Text BuiltInDocumentProperty(const Text& name) const override;
  void SetBuiltInDocumentProperty(const Text& name, const Text& value) override;
  long DeleteTextHyperlinks() override;
  long DeleteShapeHyperlinks() override;
  long DeleteHeadersFooters() override;
  long DeleteBlankParagraphs() override;
  long ReplaceAllText(const Text& findText, const Text& replacement) override;
  long ScaleFormulas(double factor) override;
  long ScalePictures(double factor) override;
  long AlignFormulas(bool unshift) override;
  EqConversion ConvertEqFields(const EqFieldConverter& convert) override;
  // Saves nothing when nothing changed and the file is there, as Word does.
  void Save() override;
  void SaveAs(const Text& path) override;
  void Close(bool saveChanges) override;

  // Where the fonts this machine can embed lie: NAME.ttf is the font NAME.
  // With "embed TrueType fonts" on, a save embeds those the document uses.
  void SetFontFolder(std::filesystem::path folder) { fontFolder_ = std::move(folder); }

  // DocxHost
  pugi::xml_document& DocumentXml() override { return xml_; }
  pugi::xml_node CaretParagraph() override;
  unsigned NextDrawingId() override;
  void MarkChanged() override;
  pugi::xml_node InsertAnchorRun(pugi::xml_node paragraph, const pugi::xml_node& run) override;
  void RemoveAnchorRun(pugi::xml_node node) override;
  LiveAnchors& Live() override { return liveAnchors_; }
  std::unique_ptr<word::Range> StoryRange(pugi::xml_node txbxContent) override;
  void SelectShapes(const std::vector<pugi::xml_node>& anchors, bool replace) override;
  std::vector<pugi::xml_node> SelectedShapes() override { return liveAnchors_.Selected(); }
  std::optional<float> OriginOf(pugi::xml_node anchor, OriginEdge edge) override;

  // StoryOwner
  bool ShowsCode(pugi::xml_node beginFldChar) const override;
  void StoryChanged() override { changed_ = true; }
  void Removing(Story& story, long pos, pugi::xml_node node) override;
  bool TracksRevisions() override;
  void StampRevision(pugi::xml_node change) override;
  std::string RevisionAuthor() const override { return revisionAuthor_; }

  // The name revisions are recorded under (UTF-8).
  void SetRevisionAuthor(std::string name) { revisionAuthor_ = std::move(name); }
  // The editing protection the document enforces; empty when none.
  std::string EnforcedProtection() { return settings_->EnforcedProtection(); }

  // Made from the stored caret when first asked for: a document that is
  // only edited and saved, as in a batch, never lays out its text for it.
  DocxSelection& Selection();
  Story& MainStory() { return *main_; }
  Place MakePlace(Story& story, long start, long end);
  // Read at first use: the batch clean-ups of a folder never need them.
  const StyleSheet& Styles() const;
  bool Changed() const { return changed_; }
  void SetShowCode(pugi::xml_node beginFldChar, bool show);
  // The effective format of the character at pos (or the paragraph mark).
  CharFormat FormatAt(Story& story, long pos);
  void ClearShapeSelection() { liveAnchors_.ClearSelection(); }
  PageGeometry Geometry() const;
  // Positions of the main story shared by the caret's page (the predefined Page bookmark).
  std::pair<long, long> CaretPage();

  // Range.ExportFragment: the place's content as a document of its own.
  void ExportFragment(const Place& place, const Text& fileName);
  // Range.InsertFile: the file's body in place of the place's content, with
  // the parts its relationships name; the span then covers what came in.
  void InsertFile(const Place& place, const Text& fileName);

  // Writes the caret into the hidden bookmark, then saves if anything changed.
  bool SaveIfChanged();
  void SaveTo(const std::filesystem::path& file);
  // A document opened by Documents.Open keeps no caret in its file, and
  // leaves its collection when closed.
  void SetOpenedBy(std::function<void(DocxDocument*)> onClose);
  // The caret as the hidden bookmark `_lpCaret` of the main story, and its removal.
  void StoreCaret();
  void RemoveCaretMarkers();
  // Where the application keeps what Word keeps outside documents.
  void SetAppState(AppState& state) { appState_ = &state; }

 private:
  void LoadStyles() const;
  void RestoreCaret();
  pugi::xml_node CoreProperties() const;
  bool Dirty() const;
  void WriteFile(bool always);
  // Runs the edit over document.xml; a change there moves the caret to the start.
  long EditMain(const std::function<long(pugi::xml_node)>& edit);
  // Runs the edit over each header, footer and notes part; changed parts are rewritten.
  long EditOtherStories(const std::vector<std::string>& kinds,
                        const std::function<long(pugi::xml_node)>& edit);
  std::string HyperlinkStyleId() const;

  Package package_;
  std::filesystem::path file_;
  std::string mainPart_;
  pugi::xml_document xml_;
  mutable pugi::xml_document stylesXml_, themeXml_;
  mutable bool stylesLoaded_ = false;
  mutable pugi::xml_document coreXml_;
  mutable bool coreLoaded_ = false;
  bool coreChanged_ = false;
  std::unique_ptr<DocumentSettings> settings_;
  std::filesystem::path fontFolder_;
  mutable StyleSheet styles_;
  std::shared_ptr<Story> main_;
  std::map<const void*, std::shared_ptr<Story>> boxes_;
  std::unordered_set<const void*> showCodes_;
  std::unique_ptr<DocxSelection> selection_;
  Place fieldsPlace_;
  std::unique_ptr<RangeFields> fields_;
  std::unique_ptr<word::PageSetup> pageSetup_;
  AppState* appState_ = nullptr;  // the application's, which outlives the document
  std::unique_ptr<word::Bookmarks> bookmarks_;
  std::unique_ptr<word::Shapes> shapes_;
  LiveAnchors liveAnchors_;
  std::optional<std::pair<long, long>> storedCaret_;
  unsigned nextDrawingId_ = 0;
  std::optional<bool> tracksRevisions_;  // read from the settings when first asked
  std::string revisionAuthor_;
  long nextRevisionId_ = -1;
  bool changed_ = false;
  bool partsChanged_ = false;
  bool keepsCaret_ = true;
  std::function<void(DocxDocument*)> onClose_;
};

// The main part named by the package's relationships (word/document.xml).
std::string MainDocumentPart(const Package& package);

}  // namespace word::docx
