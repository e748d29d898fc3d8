#include "word/docx/host/xml_order.h"

#include <algorithm>
#include <string>

namespace word::docx {

const Order kFillChoices = {"a:noFill",   "a:solidFill", "a:gradFill",
                            "a:blipFill", "a:pattFill",  "a:grpFill"};
const Order kShapePropertiesOrder = {"a:xfrm",      "a:custGeom", "a:prstGeom",  "a:noFill",
                                     "a:solidFill", "a:gradFill", "a:blipFill",  "a:pattFill",
                                     "a:grpFill",   "a:ln",       "a:effectLst", "a:effectDag",
                                     "a:scene3d",   "a:sp3d",     "a:extLst"};
const Order kLineOrder = {"a:noFill",   "a:solidFill", "a:gradFill", "a:pattFill",
                          "a:prstDash", "a:custDash",  "a:round",    "a:bevel",
                          "a:miter",    "a:headEnd",   "a:tailEnd",  "a:extLst"};
const Order kWspOrder = {"wps:cNvPr",  "wps:cNvSpPr", "wps:cNvCnPr",    "wps:spPr",  "wps:style",
                         "wps:extLst", "wps:txbx",    "wps:linkedTxbx", "wps:bodyPr"};

const Order kRunPropertiesOrder = {
    "w:rStyle",
    "w:rFonts",
    "w:b",
    "w:bCs",
    "w:i",
    "w:iCs",
    "w:caps",
    "w:smallCaps",
    "w:strike",
    "w:dstrike",
    "w:outline",
    "w:shadow",
    "w:emboss",
    "w:imprint",
    "w:noProof",
    "w:snapToGrid",
    "w:vanish",
    "w:webHidden",
    "w:color",
    "w:spacing",
    "w:w",
    "w:kern",
    "w:position",
    "w:sz",
    "w:szCs",
    "w:highlight",
    "w:u",
    "w:effect",
    "w:bdr",
    "w:shd",
    "w:fitText",
    "w:vertAlign",
    "w:rtl",
    "w:cs",
    "w:em",
    "w:lang",
    "w:eastAsianLayout",
    "w:specVanish",
    "w:oMath",
    "w:rPrChange",
};
const Order kParagraphPropertiesOrder = {
    "w:pStyle",
    "w:keepNext",
    "w:keepLines",
    "w:pageBreakBefore",
    "w:framePr",
    "w:widowControl",
    "w:numPr",
    "w:suppressLineNumbers",
    "w:pBdr",
    "w:shd",
    "w:tabs",
    "w:suppressAutoHyphens",
    "w:kinsoku",
    "w:wordWrap",
    "w:overflowPunct",
    "w:topLinePunct",
    "w:autoSpaceDE",
    "w:autoSpaceDN",
    "w:bidi",
    "w:adjustRightInd",
    "w:snapToGrid",
    "w:spacing",
    "w:ind",
    "w:contextualSpacing",
    "w:mirrorIndents",
    "w:suppressOverlap",
    "w:jc",
    "w:textDirection",
    "w:textAlignment",
    "w:textboxTightWrap",
    "w:outlineLvl",
    "w:divId",
    "w:cnfStyle",
    "w:rPr",
    "w:sectPr",
    "w:pPrChange",
};
const Order kSettingsOrder = {
    "w:writeProtection",
    "w:view",
    "w:zoom",
    "w:removePersonalInformation",
    "w:removeDateAndTime",
    "w:doNotDisplayPageBoundaries",
    "w:displayBackgroundShape",
    "w:printPostScriptOverText",
    "w:printFractionalCharacterWidth",
    "w:printFormsData",
    "w:embedTrueTypeFonts",
    "w:embedSystemFonts",
    "w:saveSubsetFonts",
    "w:saveFormsData",
    "w:mirrorMargins",
    "w:alignBordersAndEdges",
    "w:bordersDoNotSurroundHeader",
    "w:bordersDoNotSurroundFooter",
    "w:gutterAtTop",
    "w:hideSpellingErrors",
    "w:hideGrammaticalErrors",
    "w:activeWritingStyle",
    "w:proofState",
    "w:formsDesign",
    "w:attachedTemplate",
};

namespace {

long RankOf(std::string_view name, Order order) {
  const auto found = std::find(order.begin(), order.end(), name);
  return found == order.end() ? -1 : static_cast<long>(found - order.begin());
}

// Inserts a new child called name after the last child that ranks before it.
pugi::xml_node InsertInOrder(pugi::xml_node parent, std::string_view name, Order order) {
  const long rank = RankOf(name, order);
  const std::string text(name);
  pugi::xml_node after;
  for (pugi::xml_node child : parent.children()) {
    const long r = RankOf(child.name(), order);
    if (r >= 0 && r < rank) after = child;
  }
  return after ? parent.insert_child_after(text.c_str(), after)
               : parent.prepend_child(text.c_str());
}

}  // namespace

pugi::xml_node EnsureChild(pugi::xml_node parent, std::string_view name, Order order) {
  const std::string text(name);
  pugi::xml_node child = parent.child(text.c_str());
  return child ? child : InsertInOrder(parent, name, order);
}

pugi::xml_node ReplaceChoice(pugi::xml_node parent, Order choices, std::string_view name,
                             Order order) {
  while (pugi::xml_node old = FirstChildOf(parent, choices)) parent.remove_child(old);
  return InsertInOrder(parent, name, order);
}

pugi::xml_node FirstChildOf(pugi::xml_node parent, Order names) {
  for (pugi::xml_node child : parent.children()) {
    if (RankOf(child.name(), names) >= 0) return child;
  }
  return {};
}

void SetAttr(pugi::xml_node node, const char* name, const char* value) {
  pugi::xml_attribute attr = node.attribute(name);
  if (!attr) attr = node.append_attribute(name);
  attr.set_value(value);
}

void SetAttr(pugi::xml_node node, const char* name, long long value) {
  SetAttr(node, name, std::to_string(value).c_str());
}

}  // namespace word::docx
