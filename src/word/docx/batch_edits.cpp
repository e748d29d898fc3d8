#include "word/docx/batch_edits.h"

#include <cstring>
#include <optional>
#include <vector>

#include "word/docx/field_runs.h"
#include "word/docx/xml_part.h"

namespace word::docx {
namespace {

// Moves the element's children before it and removes it.
void Unwrap(pugi::xml_node element) {
  pugi::xml_node parent = element.parent();
  while (pugi::xml_node child = element.first_child()) parent.insert_move_before(child, element);
  parent.remove_child(element);
}

void DropHyperlinkStyle(pugi::xml_node run, const std::string& styleId) {
  pugi::xml_node rPr = run.child("w:rPr");
  pugi::xml_node style = rPr.child("w:rStyle");
  if (styleId.empty() || !style || styleId != style.attribute("w:val").value()) return;
  rPr.remove_child(style);
  if (!rPr.first_child()) run.remove_child(rPr);
}

bool BlankText(const char* text) {
  for (const char* p = text; *p;) {
    if (*p == ' ') {
      ++p;
    } else if (!std::strncmp(p, "\xE3\x80\x80", 3)) {  // U+3000, the ideographic blank
      p += 3;
    } else {
      return false;
    }
  }
  return true;
}

bool BlankRun(pugi::xml_node run) {
  for (pugi::xml_node c = run.first_child(); c; c = c.next_sibling()) {
    if (Named(c, "w:rPr") || Named(c, "w:lastRenderedPageBreak")) continue;
    if (!Named(c, "w:t") || !BlankText(c.text().get())) return false;
  }
  return true;
}

bool BlankParagraph(pugi::xml_node p) {
  for (pugi::xml_node c = p.first_child(); c; c = c.next_sibling()) {
    if (Named(c, "w:pPr")) {
      if (c.child("w:sectPr")) return false;
    } else if (!Named(c, "w:proofErr") && !(Named(c, "w:r") && BlankRun(c))) {
      return false;
    }
  }
  return true;
}

pugi::xml_node PreviousElement(pugi::xml_node n) {
  for (n = n.previous_sibling(); n && n.type() != pugi::node_element; n = n.previous_sibling()) {
  }
  return n;
}

pugi::xml_node NextElement(pugi::xml_node n) {
  for (n = n.next_sibling(); n && n.type() != pugi::node_element; n = n.next_sibling()) {
  }
  return n;
}

bool Removable(pugi::xml_node p) {
  if (!p.next_sibling("w:p")) return false;  // the last paragraph of its container
  pugi::xml_node before = PreviousElement(p), after = NextElement(p);
  return !(before && after && Named(before, "w:tbl") && Named(after, "w:tbl"));
}

}  // namespace

long UnwrapTextHyperlinks(pugi::xml_node root,
                          const std::function<std::string()>& hyperlinkStyleId) {
  long done = 0;
  std::optional<std::string> styleId;
  auto dropStyle = [&](pugi::xml_node run) {
    if (!styleId) styleId = hyperlinkStyleId();
    DropHyperlinkStyle(run, *styleId);
  };
  for (pugi::xml_node link : DescendantsNamed(root, {"w:hyperlink"})) {
    for (pugi::xml_node run : DescendantsNamed(link, {"w:r"})) dropStyle(run);
    Unwrap(link);
    ++done;
  }
  for (const FieldRuns& f : OutermostFields(root)) {
    if (FieldKeyword(f.instruction) != "HYPERLINK") continue;
    for (pugi::xml_node run : f.runs) dropStyle(run);
    if (f.simple) {
      Unwrap(f.simple);
    } else {
      for (pugi::xml_node mark : f.marks) RemoveFromRun(mark);
    }
    ++done;
  }
  return done;
}

long RemoveShapeHyperlinks(pugi::xml_node root) {
  long done = 0;
  auto linked = [](pugi::xml_node n) {
    const char* name = n.name();
    if (name[0] == 'v' && name[1] == ':') return static_cast<bool>(n.attribute("href"));
    return name[0] == 'a' && (Named(n, "a:hlinkClick") || Named(n, "a:hlinkHover"));
  };
  for (pugi::xml_node n : NodesBelow(root, linked)) {  // only elements bear such names
    if (n.name()[0] == 'a')
      n.parent().remove_child(n);  // DrawingML: the link is an element
    else
      n.remove_attribute("href");  // VML: an attribute of the shape
    ++done;
  }
  return done;
}

long RemoveHeaderFooterReferences(pugi::xml_node root) {
  long done = 0;
  for (pugi::xml_node section : DescendantsNamed(root, {"w:sectPr"})) {
    for (pugi::xml_node ref = section.first_child(), next; ref; ref = next) {
      next = ref.next_sibling();
      if (!Named(ref, "w:headerReference") && !Named(ref, "w:footerReference")) continue;
      section.remove_child(ref);
      ++done;
    }
  }
  return done;
}

long RemoveBlankParagraphs(pugi::xml_node root) {
  long done = 0;
  for (pugi::xml_node p : DescendantsNamed(root, {"w:p"})) {
    if (!BlankParagraph(p) || !Removable(p)) continue;
    p.parent().remove_child(p);
    ++done;
  }
  return done;
}

}  // namespace word::docx
