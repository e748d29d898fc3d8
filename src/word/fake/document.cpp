#include "word/fake/document.h"

#include <algorithm>

#include "runtime/utf8.h"

namespace word::fake {

namespace {

std::string PrefixOf(const DocumentState& document) {
  return document.number == 1 ? "" : "Documents(" + Arg(document.number) + ").";
}

std::string SelfOf(const DocumentState& document) {
  return document.number == 1 ? "ActiveDocument" : "Documents(" + Arg(document.number) + ")";
}

}  // namespace

bool FakeBookmarks::Exists(const word::Text& name) const {
  return name == u"\\Page" || Number("Exists(" + Arg(name) + ")", 0) != 0;
}

std::unique_ptr<word::Range> FakeBookmarks::Item(const word::Text& name) {
  if (!Exists(name)) throw NoSuchMember();
  return std::make_unique<FakeRange>(st_, path_ + "(" + Arg(name) + ").Range",
                                     std::make_shared<word::Text>());
}

FakeDocument::FakeDocument(State& state, DocumentState& document)
    : Node(state, SelfOf(document)),
      prefix_(PrefixOf(document)),
      doc_(document),
      shapes_(state, prefix_ + "Shapes", document),
      fields_(state, prefix_ + "Fields"),
      pageSetup_(state, prefix_ + "PageSetup"),
      bookmarks_(state, prefix_ + "Bookmarks") {}

std::unique_ptr<word::Range> FakeDocument::Range(long start, long end) {
  const word::Text& content = *doc_.content;
  size_t from = std::min(static_cast<size_t>(std::max(start, 0L)), content.size());
  size_t to = std::clamp(static_cast<size_t>(std::max(end, 0L)), from, content.size());
  return std::make_unique<FakeRange>(st_, prefix_ + "Range(" + ArgList(start, end) + ")",
                                     std::make_shared<word::Text>(content.substr(from, to - from)));
}

std::unique_ptr<word::Range> FakeDocument::Content() {
  return std::make_unique<FakeRange>(st_, prefix_ + "Content", doc_.content);
}

std::unique_ptr<Template> FakeDocument::AttachedTemplate() {
  st_.CheckFailure(Child("AttachedTemplate"));
  return std::make_unique<FakeTemplate>(st_, doc_.attachedTemplate);
}

void FakeDocument::SetAttachedTemplate(const word::Text& path) {
  Record(Child("AttachedTemplate=") + Arg(path));
  doc_.attachedTemplate = path;
}

word::Text FakeDocument::BuiltInDocumentProperty(const word::Text& name) const {
  auto it = doc_.properties.find(name);
  return it == doc_.properties.end() ? word::Text() : it->second;
}

void FakeDocument::SetBuiltInDocumentProperty(const word::Text& name, const word::Text& value) {
  Record(Child("BuiltInDocumentProperties(" + Arg(name) + ")=") + Arg(value));
  doc_.properties[name] = value;
}

long FakeDocument::ReplaceAllText(const word::Text& findText, const word::Text& replacement) {
  Call("ReplaceAllText", findText, replacement);
  return static_cast<long>(Number("ReplaceAllText", 0));
}

long FakeDocument::ScaleFormulas(double factor) {
  Call("ScaleFormulas", factor);
  return static_cast<long>(Number("ScaleFormulas", 0));
}

long FakeDocument::ScalePictures(double factor) {
  Call("ScalePictures", factor);
  return static_cast<long>(Number("ScalePictures", 0));
}

long FakeDocument::AlignFormulas(bool unshift) {
  Call("AlignFormulas", unshift);
  return static_cast<long>(Number("AlignFormulas", 0));
}

void FakeDocument::SaveAs(const word::Text& path) {
  Call("SaveAs", path);
  doc_.fullName = path;
}

void FakeDocument::Close(bool saveChanges) {
  Call("Close", saveChanges);
  auto& open = st_.documents;
  auto it = std::find_if(open.begin(), open.end(), [&](const auto& d) { return d.get() == &doc_; });
  if (it == open.end()) return;
  st_.closed.push_back(std::move(*it));
  open.erase(it);
  st_.active = open.empty() ? 0 : open.size() - 1;
}

Document& FakeDocuments::Make(const word::Text& fullName, const word::Text& attachedTemplate) {
  auto state = std::make_unique<DocumentState>();
  state->number = ++made_;
  state->fullName = fullName;
  state->attachedTemplate = attachedTemplate;
  objects_.push_back(std::make_unique<FakeDocument>(st_, *state));
  state->object = objects_.back().get();
  st_.documents.push_back(std::move(state));
  st_.active = st_.documents.size() - 1;
  return *objects_.back();
}

Document& FakeDocuments::Add(const word::Text& templatePath) {
  if (templatePath.empty()) {
    Call("Add");
  } else {
    Call("Add", templatePath);
  }
  return Make(u"Document" + lp::FromUtf8(std::to_string(made_ + 1)),
              templatePath.empty() ? u"Normal.dot" : templatePath);
}

Document& FakeDocuments::Open(const word::Text& path, bool visible) {
  Call("Open", path, visible);
  return Make(path, u"Normal.dot");
}

}  // namespace word::fake
