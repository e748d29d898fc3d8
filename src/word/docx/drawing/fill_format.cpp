#include <string>

#include "word/docx/drawing/color_xml.h"
#include "word/docx/drawing/dml_tables.h"
#include "word/docx/drawing/formats.h"
#include "word/docx/host/xml_order.h"
#include "word/errors.h"

namespace word::docx::drawing {

namespace {

constexpr long kWhite = 0xFFFFFF;

// The element that holds the fore colour of a fill: the solid colour, or the
// foreground of a pattern.
pugi::xml_node ForeHolder(pugi::xml_node fill) {
  return Is(fill, "a:pattFill") ? fill.child("a:fgClr") : fill;
}

// A shape without a fill of its own may be filled by its theme style.
bool StyleFills(pugi::xml_node spPr) {
  return spPr.parent().child("wps:style").child("a:fillRef").attribute("idx").as_int() > 0;
}

pugi::xml_node NewSolid(pugi::xml_node spPr, long bgr, float transparency) {
  pugi::xml_node solid = ReplaceChoice(spPr, kFillChoices, "a:solidFill", kShapePropertiesOrder);
  WriteColor(solid, bgr);
  WriteTransparency(solid, transparency);
  return solid;
}

}  // namespace

DocxFillFormat::DocxFillFormat(const ShapeSet& shapes)
    : shapes_(shapes),
      foreColor_([this] { return Fore(); }, [this](long bgr) { SetFore(bgr); }),
      backColor_([this] { return Back(); }, [this](long bgr) { SetBack(bgr); }) {}

pugi::xml_node DocxFillFormat::FirstFill() const {
  const auto all = shapes_.ShapeProperties();
  return all.empty() ? pugi::xml_node() : FirstChildOf(all.front(), kFillChoices);
}

void DocxFillFormat::EditFills(
    const std::function<void(pugi::xml_node spPr, pugi::xml_node fill)>& edit) {
  for (pugi::xml_node spPr : shapes_.ShapeProperties()) {
    edit(spPr, FirstChildOf(spPr, kFillChoices));
  }
  shapes_.Changed();
}

bool DocxFillFormat::Visible() const {
  const auto all = shapes_.ShapeProperties();
  if (all.empty()) return false;
  const pugi::xml_node fill = FirstChildOf(all.front(), kFillChoices);
  return fill ? !Is(fill, "a:noFill") : StyleFills(all.front());
}

void DocxFillFormat::SetVisible(bool visible) {
  EditFills([visible](pugi::xml_node spPr, pugi::xml_node fill) {
    if (!visible) {
      ReplaceChoice(spPr, kFillChoices, "a:noFill", kShapePropertiesOrder);
    } else if (fill ? Is(fill, "a:noFill") : !StyleFills(spPr)) {
      NewSolid(spPr, kWhite, 0);
    }
  });
}

long DocxFillFormat::Fore() const {
  return ReadColor(ForeHolder(FirstFill()));
}

// A colour given to a hidden fill shows it, solid.
void DocxFillFormat::SetFore(long bgr) {
  EditFills([bgr](pugi::xml_node spPr, pugi::xml_node fill) {
    if (Is(fill, "a:solidFill") || Is(fill, "a:pattFill")) {
      WriteColor(ForeHolder(fill), bgr);
    } else {
      NewSolid(spPr, bgr, 0);
    }
  });
}

long DocxFillFormat::Back() const {
  const pugi::xml_node back = FirstFill().child("a:bgClr");
  return back ? ReadColor(back) : kWhite;
}

// Only a pattern has a second colour to keep.
void DocxFillFormat::SetBack(long bgr) {
  EditFills([bgr](pugi::xml_node, pugi::xml_node fill) {
    if (Is(fill, "a:pattFill")) WriteColor(fill.child("a:bgClr"), bgr);
  });
}

void DocxFillFormat::Solid() {
  EditFills([](pugi::xml_node spPr, pugi::xml_node fill) {
    if (Is(fill, "a:pattFill")) {
      const pugi::xml_node fore = fill.child("a:fgClr");
      NewSolid(spPr, ReadColor(fore), ReadTransparency(fore));
    }
  });
}

void DocxFillFormat::Patterned(long pattern) {
  const std::string name(PatternName(pattern));
  if (name.empty()) throw InvalidArgument();
  EditFills([&name](pugi::xml_node spPr, pugi::xml_node fill) {
    const bool shown = fill && !Is(fill, "a:noFill");
    const long fore = shown ? ReadColor(ForeHolder(fill)) : 0;
    const float transparency = shown ? ReadTransparency(ForeHolder(fill)) : 0;
    const pugi::xml_node oldBack = fill.child("a:bgClr");
    const long back = oldBack ? ReadColor(oldBack) : kWhite;
    pugi::xml_node patterned =
        ReplaceChoice(spPr, kFillChoices, "a:pattFill", kShapePropertiesOrder);
    patterned.append_attribute("prst") = name.c_str();
    for (const auto& [holder, bgr] : {std::pair{"a:fgClr", fore}, std::pair{"a:bgClr", back}}) {
      pugi::xml_node color = patterned.append_child(holder);
      WriteColor(color, bgr);
      WriteTransparency(color, transparency);
    }
  });
}

float DocxFillFormat::Transparency() const {
  return ReadTransparency(ForeHolder(FirstFill()));
}

void DocxFillFormat::SetTransparency(float fraction) {
  EditFills([fraction](pugi::xml_node, pugi::xml_node fill) {
    if (Is(fill, "a:solidFill")) WriteTransparency(fill, fraction);
    if (Is(fill, "a:pattFill")) {
      WriteTransparency(fill.child("a:fgClr"), fraction);
      WriteTransparency(fill.child("a:bgClr"), fraction);
    }
  });
}

}  // namespace word::docx::drawing
