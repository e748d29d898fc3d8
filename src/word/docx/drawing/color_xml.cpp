#include "word/docx/drawing/color_xml.h"

#include <cmath>

#include "word/docx/host/units.h"

namespace word::docx::drawing {

namespace {

constexpr double kFull = 100000.0;  // DrawingML percentages

}  // namespace

long ReadColor(pugi::xml_node holder) {
  return ColorOfHex(holder.child("a:srgbClr").attribute("val").value());
}

void WriteColor(pugi::xml_node holder, long bgr) {
  const float transparency = ReadTransparency(holder);
  while (pugi::xml_node old = holder.first_child()) holder.remove_child(old);
  holder.append_child("a:srgbClr").append_attribute("val") = HexOfColor(bgr).c_str();
  WriteTransparency(holder, transparency);
}

float ReadTransparency(pugi::xml_node holder) {
  const pugi::xml_node alpha = holder.first_child().child("a:alpha");
  return alpha ? static_cast<float>(1.0 - alpha.attribute("val").as_double() / kFull) : 0.0f;
}

void WriteTransparency(pugi::xml_node holder, float transparency) {
  pugi::xml_node color = holder.first_child();
  color.remove_child("a:alpha");
  if (transparency <= 0) return;
  const long opacity = std::lround((1.0 - std::fmin(transparency, 1.0f)) * kFull);
  color.append_child("a:alpha").append_attribute("val") = opacity;
}

}  // namespace word::docx::drawing
