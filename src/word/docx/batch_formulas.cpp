// Formulas and pictures grown or shrunk by a factor, and formula paragraphs
// aligned on the centre line.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>

#include "word/docx/batch_edits.h"
#include "word/docx/char_format.h"
#include "word/docx/field_runs.h"

namespace word::docx {
namespace {

const char* const kAfterTextAlignment[] = {"w:textboxTightWrap", "w:outlineLvl", "w:divId",
                                           "w:cnfStyle",         "w:rPr",        "w:sectPr",
                                           "w:pPrChange"};

bool IsEquationObject(pugi::xml_node object) {
  std::string progId = object.child("o:OLEObject").attribute("ProgID").value();
  return progId.rfind("Equation", 0) == 0 || progId.rfind("MathType", 0) == 0;
}

std::string Number(double value) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%.2f", value);
  std::string s = buf;
  s.erase(s.find_last_not_of('0') + 1);
  if (s.back() == '.') s.pop_back();
  return s;
}

// "width:30.75pt;height:17.25pt;..." with both numbers multiplied.
std::string ScaledVmlStyle(std::string style, double factor) {
  for (const char* key : {"width:", "height:"}) {
    for (size_t at = style.find(key); at != std::string::npos; at = style.find(key, at + 1)) {
      if (at > 0 && style[at - 1] != ';' && style[at - 1] != ' ') continue;
      const size_t start = at + std::strlen(key);
      char* end = nullptr;
      double value = std::strtod(style.c_str() + start, &end);
      if (end == style.c_str() + start) break;
      style.replace(start, end - (style.c_str() + start), Number(value * factor));
      break;
    }
  }
  return style;
}

void ScaleShapeStyle(pugi::xml_node shape, double factor) {
  pugi::xml_attribute style = shape.attribute("style");
  if (style) style.set_value(ScaledVmlStyle(style.value(), factor).c_str());
}

void ScaleEmu(pugi::xml_node extent, double factor) {
  for (const char* name : {"cx", "cy"}) {
    pugi::xml_attribute a = extent.attribute(name);
    if (a) a.set_value(static_cast<long long>(std::llround(a.as_llong() * factor)));
  }
}

// The w:rPr of a run; in an equation run it follows m:rPr.
pugi::xml_node PropertiesOf(pugi::xml_node run) {
  if (std::strcmp(run.name(), "m:r") != 0) return RunPropertiesOf(run);
  if (pugi::xml_node rPr = run.child("w:rPr")) return rPr;
  pugi::xml_node math = run.child("m:rPr");
  return math ? run.insert_child_after("w:rPr", math) : run.prepend_child("w:rPr");
}

void ScaleRun(pugi::xml_node run, double factor, const RunSize& sizeOf) {
  const int halfPoints = std::max(2, static_cast<int>(std::lround(sizeOf(run) * factor)));
  pugi::xml_node rPr = PropertiesOf(run);
  for (const char* name : {"w:sz", "w:szCs"}) {
    pugi::xml_node e = RunPropertyChild(rPr, name);
    e.remove_attribute("w:val");
    e.append_attribute("w:val") = halfPoints;
  }
}

pugi::xml_node ParagraphOf(pugi::xml_node n) {
  while (n && std::strcmp(n.name(), "w:p") != 0) n = n.parent();
  return n;
}

void AlignOnCentre(pugi::xml_node p) {
  pugi::xml_node pPr = p.child("w:pPr");
  if (!pPr) pPr = p.prepend_child("w:pPr");
  pugi::xml_node e = pPr.child("w:textAlignment");
  for (pugi::xml_node c = pPr.first_child(); c && !e; c = c.next_sibling())
    for (const char* name : kAfterTextAlignment)
      if (!e && !std::strcmp(c.name(), name)) e = pPr.insert_child_before("w:textAlignment", c);
  if (!e) e = pPr.append_child("w:textAlignment");
  e.remove_attribute("w:val");
  e.append_attribute("w:val") = "center";
}

std::vector<pugi::xml_node> EquationObjects(pugi::xml_node root) {
  std::vector<pugi::xml_node> out;
  for (const pugi::xpath_node& x : root.select_nodes(".//w:object"))
    if (IsEquationObject(x.node())) out.push_back(x.node());
  return out;
}

std::vector<FieldRuns> EqFields(pugi::xml_node root) {
  std::vector<FieldRuns> out;
  for (FieldRuns& f : OutermostFields(root))
    if (FieldKeyword(f.instruction) == "EQ") out.push_back(std::move(f));
  return out;
}

}  // namespace

long ScaleFormulaNodes(pugi::xml_node root, double factor, const RunSize& sizeOf) {
  long done = 0;
  for (pugi::xml_node object : EquationObjects(root)) {
    for (pugi::xml_node shape = object.first_child(); shape; shape = shape.next_sibling())
      if (!std::strncmp(shape.name(), "v:", 2)) ScaleShapeStyle(shape, factor);
    ++done;
  }
  for (const FieldRuns& f : EqFields(root)) {
    for (pugi::xml_node run : f.runs) ScaleRun(run, factor, sizeOf);
    ++done;
  }
  for (const pugi::xpath_node& x : root.select_nodes(".//m:oMath[not(ancestor::m:oMath)]")) {
    for (const pugi::xpath_node& r : x.node().select_nodes(".//m:r | .//w:r"))
      ScaleRun(r.node(), factor, sizeOf);
    ++done;
  }
  return done;
}

long ScalePictureNodes(pugi::xml_node root, double factor) {
  long done = 0;
  for (const pugi::xpath_node& x : root.select_nodes(".//wp:inline | .//wp:anchor")) {
    pugi::xml_node pic = x.node().select_node(".//pic:pic").node();
    if (!pic) continue;
    ScaleEmu(x.node().child("wp:extent"), factor);
    ScaleEmu(pic.child("pic:spPr").child("a:xfrm").child("a:ext"), factor);
    ++done;
  }
  for (const pugi::xpath_node& x : root.select_nodes(".//v:shape[v:imagedata]")) {
    if (x.node().parent().name() == std::string("w:object")) continue;
    ScaleShapeStyle(x.node(), factor);
    ++done;
  }
  return done;
}

long AlignFormulaParagraphs(pugi::xml_node root, bool unshift) {
  std::set<pugi::xml_node> paragraphs;
  auto formulaRun = [&](pugi::xml_node run) {
    paragraphs.insert(ParagraphOf(run));
    pugi::xml_node position = run.child("w:rPr").child("w:position");
    if (unshift && position) position.parent().remove_child(position);
  };
  for (pugi::xml_node object : EquationObjects(root)) formulaRun(object.parent());
  for (const FieldRuns& f : EqFields(root))
    for (pugi::xml_node run : f.runs) formulaRun(run);
  for (const pugi::xpath_node& x : root.select_nodes(".//m:oMath"))
    paragraphs.insert(ParagraphOf(x.node()));
  paragraphs.erase(pugi::xml_node());
  for (pugi::xml_node p : paragraphs) AlignOnCentre(p);
  return static_cast<long>(paragraphs.size());
}

}  // namespace word::docx
