#include <string>

#include "word/docx/drawing/color_xml.h"
#include "word/docx/drawing/dml_tables.h"
#include "word/docx/drawing/formats.h"
#include "word/docx/host/units.h"
#include "word/docx/host/xml_order.h"

namespace word::docx::drawing {

namespace {

constexpr float kDefaultWeight = 0.75f;

}  // namespace

DocxLineFormat::DocxLineFormat(const ShapeSet& shapes)
    : shapes_(shapes),
      foreColor_([this] { return ReadColor(FirstLine().child("a:solidFill")); },
                 [this](long bgr) {
                   EditLines([bgr](pugi::xml_node ln) {
                     WriteColor(EnsureChild(ln, "a:solidFill", kLineOrder), bgr);
                     while (pugi::xml_node other =
                                FirstChildOf(ln, {"a:noFill", "a:gradFill", "a:pattFill"})) {
                       ln.remove_child(other);
                     }
                   });
                 }) {}

pugi::xml_node DocxLineFormat::FirstLine() const {
  for (pugi::xml_node spPr : shapes_.ShapeProperties()) {
    if (pugi::xml_node ln = spPr.child("a:ln")) return ln;
  }
  return {};
}

void DocxLineFormat::EditLines(const std::function<void(pugi::xml_node)>& edit) {
  for (pugi::xml_node spPr : shapes_.ShapeProperties()) {
    edit(EnsureChild(spPr, "a:ln", kShapePropertiesOrder));
  }
  shapes_.Changed();
}

bool DocxLineFormat::Visible() const {
  return !FirstLine().child("a:noFill");
}

void DocxLineFormat::SetVisible(bool visible) {
  EditLines([visible](pugi::xml_node ln) {
    if (!visible) {
      ReplaceChoice(ln, kFillChoices, "a:noFill", kLineOrder);
    } else if (!FirstChildOf(ln, kFillChoices) || ln.child("a:noFill")) {
      WriteColor(ReplaceChoice(ln, kFillChoices, "a:solidFill", kLineOrder), 0);
    }
  });
}

float DocxLineFormat::Weight() const {
  const pugi::xml_attribute width = FirstLine().attribute("w");
  return width ? ToPoints(width.as_llong()) : kDefaultWeight;
}

void DocxLineFormat::SetWeight(float points) {
  EditLines([points](pugi::xml_node ln) { SetAttr(ln, "w", ToEmu(points)); });
}

MsoLineDashStyle DocxLineFormat::DashStyle() const {
  const pugi::xml_node ln = FirstLine();
  return DashStyleOfName(ln.child("a:prstDash").attribute("val").value(),
                         std::string(ln.attribute("cap").value()) == "rnd");
}

void DocxLineFormat::SetDashStyle(MsoLineDashStyle style) {
  EditLines([style](pugi::xml_node ln) {
    SetAttr(EnsureChild(ln, "a:prstDash", kLineOrder), "val", std::string(DashName(style)).c_str());
    if (DashHasRoundCap(style)) {
      SetAttr(ln, "cap", "rnd");
    } else {
      ln.remove_attribute("cap");
    }
  });
}

void DocxLineFormat::SetEndAttribute(const char* end, const char* attribute,
                                     std::string_view value) {
  const std::string text(value);
  EditLines([&](pugi::xml_node ln) {
    SetAttr(EnsureChild(ln, end, kLineOrder), attribute, text.c_str());
  });
}

// In DrawingML the head is where the line begins and the tail where it ends.
void DocxLineFormat::SetBeginArrowheadStyle(MsoArrowheadStyle style) {
  SetEndAttribute("a:headEnd", "type", ArrowheadName(style));
}
void DocxLineFormat::SetEndArrowheadStyle(MsoArrowheadStyle style) {
  SetEndAttribute("a:tailEnd", "type", ArrowheadName(style));
}
void DocxLineFormat::SetBeginArrowheadLength(MsoArrowheadLength length) {
  SetEndAttribute("a:headEnd", "len", ArrowheadSizeName(length));
}
void DocxLineFormat::SetBeginArrowheadWidth(MsoArrowheadWidth width) {
  SetEndAttribute("a:headEnd", "w", ArrowheadSizeName(width));
}
void DocxLineFormat::SetEndArrowheadLength(MsoArrowheadLength length) {
  SetEndAttribute("a:tailEnd", "len", ArrowheadSizeName(length));
}
void DocxLineFormat::SetEndArrowheadWidth(MsoArrowheadWidth width) {
  SetEndAttribute("a:tailEnd", "w", ArrowheadSizeName(width));
}

}  // namespace word::docx::drawing
