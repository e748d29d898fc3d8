#include "word/docx/docx_document.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include "runtime/clock.h"
#include "runtime/utf8.h"
#include "word/docx/app_state.h"
#include "word/docx/auto_text.h"
#include "word/docx/docx_error.h"
#include "word/docx/embedded_fonts.h"
#include "word/docx/relationships.h"
#include "word/docx/selection.h"
#include "word/docx/xml_part.h"
#include "word/errors.h"

namespace word::docx {
namespace {

const char* const kCaretBookmark = "_lpCaret";

class DocxPageSetup : public word::PageSetup {
 public:
  explicit DocxPageSetup(const DocxDocument& doc) : doc_(doc) {}
  float PageWidth() const override { return doc_.Geometry().width; }
  float PageHeight() const override { return doc_.Geometry().height; }
  float TopMargin() const override { return doc_.Geometry().top; }
  float BottomMargin() const override { return doc_.Geometry().bottom; }
  float LeftMargin() const override { return doc_.Geometry().left; }
  float RightMargin() const override { return doc_.Geometry().right; }

 private:
  const DocxDocument& doc_;
};

bool SameName(const std::string& a, const std::string& b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return std::tolower(static_cast<unsigned char>(x)) ==
                  std::tolower(static_cast<unsigned char>(y));
         });
}

class DocxBookmarks : public word::Bookmarks {
 public:
  explicit DocxBookmarks(DocxDocument& doc) : doc_(doc) {}
  bool Exists(const Text& name) const override {
    return name == u"\\Page" || Find(lp::ToUtf8(name)) != nullptr;
  }
  std::unique_ptr<word::Range> Item(const Text& name) override {
    Story& story = doc_.MainStory();
    if (name == u"\\Page") {
      auto [start, end] = doc_.CaretPage();
      return std::make_unique<DocxRange>(doc_.MakePlace(story, start, end));
    }
    const BookmarkSpan* b = Find(lp::ToUtf8(name));
    if (!b) throw ItemNotFound();
    return std::make_unique<DocxRange>(doc_.MakePlace(story, b->start, b->end));
  }

 private:
  const BookmarkSpan* Find(const std::string& name) const {
    for (const BookmarkSpan& b : doc_.MainStory().Index().bookmarks)
      if (SameName(b.name, name)) return &b;
    return nullptr;
  }
  DocxDocument& doc_;
};

// The program's template holds the marks that the insert tools set over
// letters; the .docx engine carries them itself.
class DocxTemplate : public word::Template {
 public:
  explicit DocxTemplate(Text name) : name_(std::move(name)) {}
  Text FullName() const override { return name_; }
  word::AutoTextEntries& AutoTextEntries() override { return *entries_; }

 private:
  Text name_;
  std::unique_ptr<word::AutoTextEntries> entries_ =
      MakeAutoTextEntries({{u"hu_top", u"\\S\\UP7(⌒)"}, {u"xiangliang", u"\\S\\UP7(→)"}});
};

// Word's English names of the core properties and their elements.
const char* CoreElement(const Text& name) {
  static const std::pair<const char16_t*, const char*> kNames[] = {
      {u"Title", "dc:title"},          {u"Subject", "dc:subject"},
      {u"Author", "dc:creator"},       {u"Keywords", "cp:keywords"},
      {u"Comments", "dc:description"}, {u"Last author", "cp:lastModifiedBy"},
      {u"Category", "cp:category"},    {u"Content status", "cp:contentStatus"},
  };
  for (auto& [english, element] : kNames)
    if (name == english) return element;
  return nullptr;
}

// Revisions carry the name of the one who made them: the user's login name.
std::string DefaultAuthor() {
  for (const char* variable : {"USER", "USERNAME", "LOGNAME"})
    if (const char* name = std::getenv(variable); name && *name) return name;
  return "lumenpad";
}

std::string UtcNow() {
  const std::tm utc = lp::UtcTime(std::time(nullptr));
  char text[32];
  std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &utc);
  return text;
}

}  // namespace

std::string MainDocumentPart(const Package& package) {
  std::string part = RelationshipTarget(package, "", "/officeDocument");
  return part.empty() ? "word/document.xml" : part;
}

DocxDocument::DocxDocument(Package package, std::filesystem::path file)
    : package_(std::move(package)), file_(std::move(file)) {
  mainPart_ = MainDocumentPart(package_);
  settings_ = std::make_unique<DocumentSettings>(package_, mainPart_);
  auto bytes = package_.Read(mainPart_);
  if (!bytes) throw DocxFileError("文件不是 Word 文档：找不到正文部分。");
  if (!ParseXml(*bytes, xml_)) throw DocxFileError("文件已损坏：正文无法读取。");
  pugi::xml_node body = xml_.child("w:document").child("w:body");
  if (!body) throw DocxFileError("文件不是 Word 文档：正文中没有内容部分。");
  revisionAuthor_ = DefaultAuthor();
  main_ = std::make_shared<Story>(body, *this);
  fieldsPlace_ = MakePlace(*main_, 0, 0);
  fields_ = std::make_unique<RangeFields>(fieldsPlace_, true);
}

DocxDocument::~DocxDocument() = default;

bool DocxDocument::TracksRevisions() {
  if (!tracksRevisions_)
    tracksRevisions_ =
        settings_->TracksRevisions() || settings_->EnforcedProtection() == "trackedChanges";
  return *tracksRevisions_;
}

const StyleSheet& DocxDocument::Styles() const {
  if (!stylesLoaded_) LoadStyles();
  return styles_;
}

void DocxDocument::LoadStyles() const {
  stylesLoaded_ = true;
  std::string stylesPart = RelationshipTarget(package_, mainPart_, "/styles");
  std::string themePart = RelationshipTarget(package_, mainPart_, "/theme");
  // A damaged styles or theme part costs the styles, not the document.
  auto load = [&](const std::string& part, pugi::xml_document& doc) {
    if (part.empty()) return;
    try {
      if (auto bytes = package_.Read(part); !bytes || !ParseXml(*bytes, doc)) doc.reset();
    } catch (const DocxFileError&) {
      doc.reset();
    }
  };
  load(stylesPart, stylesXml_);
  load(themePart, themeXml_);
  styles_.Load(stylesXml_.child("w:styles"), themeXml_.child("a:theme"));
}

DocxSelection& DocxDocument::Selection() {
  if (!selection_) RestoreCaret();
  return *selection_;
}

void DocxDocument::RestoreCaret() {
  const StoryIndex& ix = main_->Index();
  long start = ix.paragraphs.empty() ? 0 : ix.segments[ix.paragraphs.back()].pos;
  long end = start;
  storedCaret_ = std::make_pair(start, end);  // the caret a file without one has
  for (const BookmarkSpan& b : ix.bookmarks) {
    if (b.name != kCaretBookmark) continue;
    start = std::min(b.start, ix.length);
    end = std::min(std::max(b.end, start), ix.length);
    storedCaret_ = std::make_pair(start, end);
    break;
  }
  RemoveCaretMarkers();
  selection_ = std::make_unique<DocxSelection>(MakePlace(*main_, start, end));
}

void DocxDocument::RemoveCaretMarkers() {
  pugi::xpath_node_set starts = xml_.select_nodes("//w:bookmarkStart[@w:name='_lpCaret']");
  for (const pugi::xpath_node& x : starts) {
    std::string id = x.node().attribute("w:id").value();
    for (const pugi::xpath_node& e : xml_.select_nodes("//w:bookmarkEnd"))
      if (id == e.node().attribute("w:id").value()) e.node().parent().remove_child(e.node());
    x.node().parent().remove_child(x.node());
  }
  if (!starts.empty()) main_->Invalidate();
}

void DocxDocument::StoreCaret() {
  if (&Selection().CurrentStory() != main_.get()) return;
  auto caret = std::make_pair(selection_->Start(), selection_->End());
  if (!changed_ && storedCaret_ == caret) return;
  long id = 0;
  for (const pugi::xpath_node& x : xml_.select_nodes("//*[@w:id]"))
    id = std::max(id, x.node().attribute("w:id").as_int() + 1L);
  const std::string idText = std::to_string(id);
  pugi::xml_node start = main_->InsertMarker(caret.first, "w:bookmarkStart");
  start.append_attribute("w:id") = idText.c_str();
  start.append_attribute("w:name") = kCaretBookmark;
  pugi::xml_node end = caret.first == caret.second
                           ? start.parent().insert_child_after("w:bookmarkEnd", start)
                           : main_->InsertMarker(caret.second, "w:bookmarkEnd");
  end.append_attribute("w:id") = idText.c_str();
  storedCaret_ = caret;
  changed_ = true;
}

bool DocxDocument::Dirty() const {
  return changed_ || coreChanged_ || partsChanged_ || settings_->Changed();
}

// Between two runs on a file nobody sees a highlight to click away: the next
// run continues behind what this one produced, unless told to select.
bool DocxDocument::SaveIfChanged() {
  if (&Selection().CurrentStory() == main_.get()) selection_->Collapse(wdCollapseEnd);
  StoreCaret();
  if (!Dirty()) return false;
  SaveTo(file_);
  RemoveCaretMarkers();
  return true;
}

void DocxDocument::SaveTo(const std::filesystem::path& file) {
  if (changed_) package_.Write(mainPart_, SerializeXml(xml_));
  if (!fontFolder_.empty() && settings_->EmbedsTrueTypeFonts())
    EmbedUsedFonts(package_, mainPart_, xml_, fontFolder_);
  if (coreChanged_) package_.Write("docProps/core.xml", SerializeXml(coreXml_));
  package_.SaveTo(file);
  changed_ = coreChanged_ = partsChanged_ = false;
  settings_->Saved();
}

Text DocxDocument::FullName() const {
  return lp::FromUtf8(reinterpret_cast<const char*>(file_.u8string().c_str()));
}

Place DocxDocument::MakePlace(Story& story, long start, long end) {
  start = std::max(start, 0L);
  end = std::max(end, start);
  if (end > 0) {  // the story's start needs no layout
    const long length = story.Length();
    start = std::min(start, length);
    end = std::min(end, length);
  }
  return Place{this, story.shared_from_this(), story.Track(start, end)};
}

std::unique_ptr<word::Range> DocxDocument::Range(long start, long end) {
  return std::make_unique<DocxRange>(MakePlace(*main_, std::min(start, end), std::max(start, end)));
}

std::unique_ptr<word::Range> DocxDocument::Content() {
  return std::make_unique<DocxRange>(MakePlace(*main_, 0, main_->Length()));
}

word::Shapes& DocxDocument::Shapes() {
  if (!shapes_) shapes_ = MakeShapes(*this);
  return *shapes_;
}

word::Fields& DocxDocument::Fields() {
  return *fields_;
}

word::PageSetup& DocxDocument::PageSetup() {
  if (!pageSetup_) pageSetup_ = std::make_unique<DocxPageSetup>(*this);
  return *pageSetup_;
}

word::Bookmarks& DocxDocument::Bookmarks() {
  if (!bookmarks_) bookmarks_ = std::make_unique<DocxBookmarks>(*this);
  return *bookmarks_;
}

PageGeometry DocxDocument::Geometry() const {
  pugi::xml_node body = main_->Container();
  pugi::xml_node sectPr = body.child("w:sectPr");
  if (!sectPr)
    for (pugi::xml_node p = body.last_child(); p && !sectPr; p = p.previous_sibling())
      sectPr = p.child("w:pPr").child("w:sectPr");
  return ReadPageGeometry(sectPr);
}

std::pair<long, long> DocxDocument::CaretPage() {
  long pos = &Selection().CurrentStory() == main_.get() ? selection_->Start() : 0;
  CaretEstimate caret = EstimateCaret(main_->Index(), Styles(), Geometry(), pos);
  return {caret.pageStart, std::max(caret.pageStart, caret.pageEnd)};
}

// The estimate knows one text column, from the left margin; only the top
// needs the paragraphs laid out.
std::optional<float> DocxDocument::OriginOf(pugi::xml_node anchor, OriginEdge edge) {
  pugi::xml_node paragraph = anchor;
  while (paragraph && !Named(paragraph, "w:p")) paragraph = paragraph.parent();
  const StoryIndex& ix = main_->Index();
  long start = 0;
  for (size_t mark : ix.paragraphs) {
    const Segment& s = ix.segments[mark];
    if (s.node == paragraph) {
      if (edge == OriginEdge::kColumnLeft) return Geometry().left;
      return EstimateCaret(ix, Styles(), Geometry(), start).paragraphY;
    }
    start = s.pos + 1;
  }
  return std::nullopt;
}

std::unique_ptr<Template> DocxDocument::AttachedTemplate() {
  std::string path = settings_->AttachedTemplate();
  return std::make_unique<DocxTemplate>(lp::FromUtf8(path.empty() ? "Normal.dotm" : path));
}

void DocxDocument::SetAttachedTemplate(const Text& path) {
  settings_->SetAttachedTemplate(lp::ToUtf8(path));
}
void DocxDocument::SetEmbedTrueTypeFonts(bool on) {
  settings_->SetEmbedTrueTypeFonts(on);
}
void DocxDocument::SetSaveSubsetFonts(bool on) {
  settings_->SetSaveSubsetFonts(on);
}
void DocxDocument::SetDoNotEmbedSystemFonts(bool on) {
  settings_->SetDoNotEmbedSystemFonts(on);
}
// Snapping to the grid and to shapes is not kept in the file but in the
// engine's state, as Word keeps it with itself.
bool DocxDocument::SnapToGrid() const {
  return appState_ ? appState_->Option("SnapToGrid", true) : true;
}
void DocxDocument::SetSnapToGrid(bool on) {
  if (appState_) appState_->SetOption("SnapToGrid", on);
}
bool DocxDocument::SnapToShapes() const {
  return appState_ ? appState_->Option("SnapToShapes", true) : true;
}
void DocxDocument::SetSnapToShapes(bool on) {
  if (appState_) appState_->SetOption("SnapToShapes", on);
}

pugi::xml_node DocxDocument::CoreProperties() const {
  if (!coreLoaded_) {
    coreLoaded_ = true;
    auto bytes = package_.Read("docProps/core.xml");
    if (!bytes || !ParseXml(*bytes, coreXml_)) coreXml_.reset();
  }
  pugi::xml_node root = coreXml_.child("cp:coreProperties");
  return root ? root : coreXml_.child("coreProperties");  // the namespace as the default one
}

// The property's element, written with its prefix or, in the default
// namespace, without.
static pugi::xml_node CoreChild(pugi::xml_node root, const char* element) {
  if (pugi::xml_node e = root.child(element)) return e;
  const std::string local = std::strchr(element, ':') + 1;
  std::string defaultNs = root.attribute("xmlns").value();
  bool core = std::string(element).rfind("cp:", 0) == 0;
  return core && defaultNs == root.attribute("xmlns:cp").value() ? root.child(local.c_str())
                                                                 : pugi::xml_node();
}

Text DocxDocument::BuiltInDocumentProperty(const Text& name) const {
  const char* element = CoreElement(name);
  if (!element) throw InvalidArgument();
  return lp::FromUtf8(CoreChild(CoreProperties(), element).text().get());
}

void DocxDocument::SetBuiltInDocumentProperty(const Text& name, const Text& value) {
  const char* element = CoreElement(name);
  if (!element) throw InvalidArgument();
  pugi::xml_node root = CoreProperties();
  if (!root) return;  // a package without core properties keeps none
  pugi::xml_node e = CoreChild(root, element);
  if (!e) e = root.append_child(element);
  e.text().set(lp::ToUtf8(value).c_str());
  coreChanged_ = true;
}

void DocxDocument::Save() {
  std::error_code error;
  WriteFile(!std::filesystem::exists(file_, error));
}

void DocxDocument::SaveAs(const Text& path) {
  file_ = std::filesystem::path(lp::ToUtf8(path));
  WriteFile(true);
}

void DocxDocument::WriteFile(bool always) {
  if (keepsCaret_) StoreCaret();
  if (always || Dirty()) SaveTo(file_);
  if (keepsCaret_) RemoveCaretMarkers();
}

void DocxDocument::Close(bool saveChanges) {
  if (saveChanges) Save();
  if (auto leave = std::move(onClose_)) leave(this);  // the collection deletes this document
}

void DocxDocument::SetOpenedBy(std::function<void(DocxDocument*)> onClose) {
  keepsCaret_ = false;
  onClose_ = std::move(onClose);
}

pugi::xml_node DocxDocument::CaretParagraph() {
  const StoryIndex& ix = main_->Index();
  if (ix.length == 0) return {};
  long pos = &Selection().CurrentStory() == main_.get() ? selection_->Start() : 0;
  size_t mark = ix.ParagraphOf(std::min(pos, ix.length - 1));
  return ix.segments[mark].kind == SegKind::RowEnd ? pugi::xml_node() : ix.segments[mark].node;
}

unsigned DocxDocument::NextDrawingId() {
  if (nextDrawingId_ == 0) {
    nextDrawingId_ = 1;
    for (const pugi::xpath_node& x : xml_.select_nodes("//wp:docPr"))
      nextDrawingId_ = std::max(nextDrawingId_, x.node().attribute("id").as_uint() + 1);
  }
  return nextDrawingId_++;
}

void DocxDocument::MarkChanged() {
  changed_ = true;
  main_->Invalidate();
  for (auto& [node, story] : boxes_) story->Invalidate();
}

// Anchors live in the body only: text boxes take no floating shapes. The
// index is made again first, as the shape layer may have added the paragraph.
pugi::xml_node DocxDocument::InsertAnchorRun(pugi::xml_node paragraph, const pugi::xml_node& run) {
  main_->Invalidate();
  return main_->AppendObjectRun(paragraph, run);
}

void DocxDocument::RemoveAnchorRun(pugi::xml_node node) {
  main_->Invalidate();
  main_->RemoveRunLevel(node);
}

// What leaves with the node: its floating shapes, the stories of their text
// boxes (a selection in one moves out to where the node stood) and the
// display state of its fields, whose addresses pugixml may hand to new nodes.
void DocxDocument::Removing(Story& story, long pos, pugi::xml_node node) {
  liveAnchors_.Removing(node);
  for (const pugi::xpath_node& x : node.select_nodes("descendant-or-self::w:txbxContent")) {
    auto box = boxes_.find(x.node().internal_object());
    if (box == boxes_.end()) continue;
    if (selection_ && &selection_->CurrentStory() == box->second.get())
      selection_->SetPlace(story, pos, pos);
    box->second->Drop();
    boxes_.erase(box);
  }
  for (const pugi::xpath_node& x : node.select_nodes("descendant-or-self::w:fldChar"))
    showCodes_.erase(x.node().internal_object());
}

std::unique_ptr<word::Range> DocxDocument::StoryRange(pugi::xml_node txbxContent) {
  auto& story = boxes_[txbxContent.internal_object()];
  if (!story) story = std::make_shared<Story>(txbxContent, *this);
  story->Invalidate();
  long length = story->Length();
  return std::make_unique<DocxRange>(MakePlace(*story, 0, std::max(0L, length - 1)));
}

void DocxDocument::SelectShapes(const std::vector<pugi::xml_node>& anchors, bool replace) {
  liveAnchors_.Select(anchors, replace);
}

// Revision ids share their numbers with comments and bookmarks: one past the highest.
void DocxDocument::StampRevision(pugi::xml_node change) {
  if (nextRevisionId_ < 0) {
    nextRevisionId_ = 1;
    for (const pugi::xpath_node& x : xml_.select_nodes("//*[@w:id]"))
      nextRevisionId_ = std::max(nextRevisionId_, x.node().attribute("w:id").as_int() + 1L);
  }
  change.append_attribute("w:id") = nextRevisionId_++;
  change.append_attribute("w:author") = revisionAuthor_.c_str();
  change.append_attribute("w:date") = UtcNow().c_str();
}

bool DocxDocument::ShowsCode(pugi::xml_node beginFldChar) const {
  return showCodes_.count(beginFldChar.internal_object()) > 0;
}

void DocxDocument::SetShowCode(pugi::xml_node beginFldChar, bool show) {
  if (show)
    showCodes_.insert(beginFldChar.internal_object());
  else
    showCodes_.erase(beginFldChar.internal_object());
  main_->Invalidate();
  for (auto& [node, story] : boxes_) story->Invalidate();
}

CharFormat DocxDocument::FormatAt(Story& story, long pos) {
  const StoryIndex& ix = story.Index();
  if (ix.length == 0) return Styles().Effective({}, {});
  const Segment& s = ix.segments[ix.SegmentAt(std::clamp(pos, 0L, ix.length - 1))];
  pugi::xml_node paragraph = s.node;
  while (paragraph && std::strcmp(paragraph.name(), "w:p") != 0) paragraph = paragraph.parent();
  bool mark = s.kind == SegKind::ParaMark || s.kind == SegKind::CellMark;
  pugi::xml_node run = mark                                              ? paragraph.child("w:pPr")
                       : std::strcmp(s.node.parent().name(), "w:r") == 0 ? s.node.parent()
                                                                         : s.node;
  return Styles().Effective(run, paragraph);
}

}  // namespace word::docx
