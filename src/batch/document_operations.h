#pragma once
// The operations the batch applies to one document, under the names the
// dialog calls them by, and the order a run applies them in.

#include <string>
#include <vector>

#include "batch/batch_choice.h"
#include "word/document.h"

namespace lp::batch {

void DelBlankLine(word::Document& doc);
void DelPageHeaderFooter(word::Document& doc);
void DelLinkInShape(word::Document& doc);
void DelLinkInTxt(word::Document& doc);
// Removes each keyword (separated by "," or "，") from the document properties.
void DelFileInfo(word::Document& doc, const std::u16string& keywords);
void ChangeFileInfo(word::Document& doc, const std::u16string& from, const std::u16string& to);
void ChangeFileContent(word::Document& doc, const std::u16string& from, const std::u16string& to);
void AlignFormulas(word::Document& doc, bool unshift);
void ScaleFormulas(word::Document& doc, double factor);
void ScalePictures(word::Document& doc, double factor);

// Every EQ field of the document that converts becomes a native equation;
// the codes of the fields left as they were.
std::vector<std::u16string> EqFieldsToEquations(word::Document& doc);

// The chosen operations of the choice's tab, in the order a run applies them;
// the codes of the EQ fields the conversion left.
std::vector<std::u16string> RunOperations(word::Document& doc, const BatchChoice& choice);

// The keywords of a list typed with "," or "，" between them, blanks trimmed.
std::vector<std::u16string> SplitKeywords(const std::u16string& text);
// text with every occurrence of from replaced by to.
std::u16string ReplaceAll(std::u16string text, const std::u16string& from,
                          const std::u16string& to);

}  // namespace lp::batch
