#pragma once
// The whole-document clean-ups of the batch runner on the XML of one part
// (document.xml, a header, footer or notes part). Each returns how many items
// it changed; a part it did not change is left as it was.

#include <functional>
#include <string>

#include <pugixml.hpp>

namespace word::docx {

// w:hyperlink elements and HYPERLINK fields give way to their text; runs lose
// the hyperlink character style (hyperlinkStyleId gives it, empty if none;
// asked only when there is a link, as it costs a read of the styles).
long UnwrapTextHyperlinks(pugi::xml_node root,
                          const std::function<std::string()>& hyperlinkStyleId);
// Click and hover links of DrawingML objects and the href of VML shapes.
long RemoveShapeHyperlinks(pugi::xml_node root);
// The header and footer references of every section.
long RemoveHeaderFooterReferences(pugi::xml_node root);
// Blank paragraphs: only blanks in plain runs, nothing else. Kept are the
// last paragraph of its container (body, cell, text box, content control),
// one that ends a section, and one whose removal would join two tables.
long RemoveBlankParagraphs(pugi::xml_node root);
// Every occurrence of findText (UTF-8) in the text of each paragraph, across
// run boundaries; the replacement goes into the run where the match begins.
long ReplaceParagraphText(pugi::xml_node root, const std::string& findText,
                          const std::string& replacement);

// The effective font size of a run in half points.
using RunSize = std::function<int(pugi::xml_node run)>;
// Equation objects (their shape), EQ field runs and native equation runs.
long ScaleFormulaNodes(pugi::xml_node root, double factor, const RunSize& sizeOf);
// Inline and floating pictures (DrawingML) and VML pictures.
long ScalePictureNodes(pugi::xml_node root, double factor);
// Paragraphs holding a formula align on the centre line; with unshift,
// formula runs lose their raised or lowered position.
long AlignFormulaParagraphs(pugi::xml_node root, bool unshift);

}  // namespace word::docx
