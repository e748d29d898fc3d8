// The batch clean-ups of DocxDocument: document.xml is edited in place, the
// header, footer and notes parts are read, edited and written back only when
// an edit changed them.

#include <cstring>

#include "runtime/utf8.h"
#include "word/docx/batch_edits.h"
#include "word/docx/docx_document.h"
#include "word/docx/eq_fields.h"
#include "word/docx/selection.h"
#include "word/docx/xml_part.h"

namespace word::docx {
namespace {

const std::vector<std::string> kHeadersFooters = {"/header", "/footer"};
const std::vector<std::string> kOtherStories = {"/header", "/footer", "/footnotes", "/endnotes"};

bool EndsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// The parts the main part's relationships name with a type of these kinds.
std::vector<std::string> PartsOfKinds(const Package& package, const std::string& mainPart,
                                      const std::vector<std::string>& kinds) {
  std::vector<std::string> parts;
  auto bytes = package.Read(RelsPartOf(mainPart));
  pugi::xml_document rels;
  if (!bytes || !ParseXml(*bytes, rels)) return parts;
  for (pugi::xml_node r : rels.child("Relationships").children("Relationship")) {
    if (std::string(r.attribute("TargetMode").value()) == "External") continue;
    for (const std::string& kind : kinds)
      if (EndsWith(r.attribute("Type").value(), kind))
        parts.push_back(ResolveTarget(mainPart, r.attribute("Target").value()));
  }
  return parts;
}

}  // namespace

long DocxDocument::EditMain(const std::function<long(pugi::xml_node)>& edit) {
  long done = edit(xml_);
  if (done == 0) return 0;
  MarkChanged();
  if (selection_) selection_->SetPlace(*main_, 0, 0);
  return done;
}

long DocxDocument::EditOtherStories(const std::vector<std::string>& kinds,
                                    const std::function<long(pugi::xml_node)>& edit) {
  long done = 0;
  for (const std::string& part : PartsOfKinds(package_, mainPart_, kinds)) {
    auto bytes = package_.Read(part);
    pugi::xml_document xml;
    if (!bytes || !ParseXml(*bytes, xml)) continue;
    long n = edit(xml);
    if (n == 0) continue;
    package_.Write(part, SerializeXml(xml));
    partsChanged_ = true;
    done += n;
  }
  return done;
}

std::string DocxDocument::HyperlinkStyleId() const {
  Styles();  // reads the styles part
  for (pugi::xml_node style : stylesXml_.child("w:styles").children("w:style")) {
    std::string name = style.child("w:name").attribute("w:val").value();
    if (name == "Hyperlink" || name == "hyperlink") return style.attribute("w:styleId").value();
  }
  return {};
}

long DocxDocument::DeleteTextHyperlinks() {
  auto style = [this] { return HyperlinkStyleId(); };
  auto edit = [&](pugi::xml_node root) { return UnwrapTextHyperlinks(root, style); };
  return EditMain(edit) + EditOtherStories(kOtherStories, edit);
}

long DocxDocument::DeleteShapeHyperlinks() {
  return EditMain(RemoveShapeHyperlinks) + EditOtherStories(kHeadersFooters, RemoveShapeHyperlinks);
}

// Without their references the sections show no header or footer; the parts
// stay in the package, unreferenced, as Word tolerates.
long DocxDocument::DeleteHeadersFooters() {
  return EditMain(RemoveHeaderFooterReferences);
}

long DocxDocument::DeleteBlankParagraphs() {
  return EditMain(RemoveBlankParagraphs);
}

long DocxDocument::ReplaceAllText(const Text& findText, const Text& replacement) {
  const std::string from = lp::ToUtf8(findText), to = lp::ToUtf8(replacement);
  auto edit = [&](pugi::xml_node root) { return ReplaceParagraphText(root, from, to); };
  return EditMain(edit) + EditOtherStories(kOtherStories, edit);
}

long DocxDocument::ScaleFormulas(double factor) {
  auto sizeOf = [this](pugi::xml_node run) {
    pugi::xml_node p = run;
    while (p && std::strcmp(p.name(), "w:p") != 0) p = p.parent();
    return Styles().Effective(run, p).halfPoints.value_or(21);
  };
  return EditMain([&](pugi::xml_node root) { return ScaleFormulaNodes(root, factor, sizeOf); });
}

long DocxDocument::ScalePictures(double factor) {
  return EditMain([&](pugi::xml_node root) { return ScalePictureNodes(root, factor); });
}

long DocxDocument::AlignFormulas(bool unshift) {
  return EditMain([&](pugi::xml_node root) { return AlignFormulaParagraphs(root, unshift); });
}

EqConversion DocxDocument::ConvertEqFields(const EqFieldConverter& convert) {
  EqConversion result;
  auto edit = [&](pugi::xml_node root) {
    EqConversion part = ReplaceEqFields(root, convert, Styles());
    result.converted += part.converted;
    result.unconverted.insert(result.unconverted.end(), part.unconverted.begin(),
                              part.unconverted.end());
    return part.converted;
  };
  EditMain(edit);
  EditOtherStories(kOtherStories, edit);
  return result;
}

}  // namespace word::docx
