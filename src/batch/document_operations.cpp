#include "batch/document_operations.h"

#include <functional>

#include "formula/eq_to_omml.h"
#include "runtime/text.h"

namespace lp::batch {
namespace {

// The properties a school's or an author's name hides in.
const char16_t* const kProperties[] = {u"Title",    u"Subject",     u"Author",   u"Keywords",
                                       u"Comments", u"Last author", u"Category", u"Content status"};

void EditProperties(word::Document& doc,
                    const std::function<std::u16string(std::u16string)>& edit) {
  for (const char16_t* name : kProperties) {
    std::u16string value = doc.BuiltInDocumentProperty(name);
    std::u16string edited = edit(value);
    if (edited != value) doc.SetBuiltInDocumentProperty(name, edited);
  }
}

}  // namespace

std::vector<std::u16string> SplitKeywords(const std::u16string& text) {
  std::vector<std::u16string> words;
  size_t start = 0;
  while (start <= text.size()) {
    size_t end = text.find_first_of(u",，", start);
    if (end == std::u16string::npos) end = text.size();
    std::u16string word = Trim(text.substr(start, end - start));
    if (!word.empty()) words.push_back(word);
    start = end + 1;
  }
  return words;
}

std::u16string ReplaceAll(std::u16string text, const std::u16string& from,
                          const std::u16string& to) {
  if (from.empty()) return text;
  for (size_t at = text.find(from); at != std::u16string::npos;
       at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
  return text;
}

void DelBlankLine(word::Document& doc) {
  doc.DeleteBlankParagraphs();
}
void DelPageHeaderFooter(word::Document& doc) {
  doc.DeleteHeadersFooters();
}
void DelLinkInShape(word::Document& doc) {
  doc.DeleteShapeHyperlinks();
}
void DelLinkInTxt(word::Document& doc) {
  doc.DeleteTextHyperlinks();
}

void DelFileInfo(word::Document& doc, const std::u16string& keywords) {
  const std::vector<std::u16string> words = SplitKeywords(keywords);
  EditProperties(doc, [&](std::u16string value) {
    for (const std::u16string& word : words) value = ReplaceAll(value, word, u"");
    return value;
  });
}

void ChangeFileInfo(word::Document& doc, const std::u16string& from, const std::u16string& to) {
  EditProperties(doc, [&](const std::u16string& value) { return ReplaceAll(value, from, to); });
}

void ChangeFileContent(word::Document& doc, const std::u16string& from, const std::u16string& to) {
  if (!from.empty()) doc.ReplaceAllText(from, to);
}

void AlignFormulas(word::Document& doc, bool unshift) {
  doc.AlignFormulas(unshift);
}

void ScaleFormulas(word::Document& doc, double factor) {
  if (factor != 0 && factor != 1) doc.ScaleFormulas(factor);
}

void ScalePictures(word::Document& doc, double factor) {
  if (factor != 0 && factor != 1) doc.ScalePictures(factor);
}

std::vector<std::u16string> EqFieldsToEquations(word::Document& doc) {
  std::vector<std::u16string> left;
  for (const std::u16string& code : doc.ConvertEqFields(EqFieldToOmml).unconverted)
    left.push_back(Trim(code));
  return left;
}

std::vector<std::u16string> RunOperations(word::Document& doc, const BatchChoice& c) {
  if (c.tab == 0) {
    if (c.blankLine) DelBlankLine(doc);
    if (c.pageHeader) DelPageHeaderFooter(doc);
    if (c.linkInShape) DelLinkInShape(doc);
    if (c.linkInText) DelLinkInTxt(doc);
    if (c.fileInfo) DelFileInfo(doc, c.fileInfoWords);
    return {};
  }
  // First, so that alignment and scaling reach the new equations as well.
  std::vector<std::u16string> left;
  if (c.eqToOmml) left = EqFieldsToEquations(doc);
  if (c.align[0]) AlignFormulas(doc, c.align[1]);
  if (!c.change[2].empty()) ChangeFileInfo(doc, c.change[2], c.change[3]);
  if (!c.change[4].empty()) ChangeFileContent(doc, c.change[4], c.change[5]);
  ScaleFormulas(doc, ScaleFactor(c, 0));
  ScalePictures(doc, ScaleFactor(c, 1));
  return left;
}

}  // namespace lp::batch
