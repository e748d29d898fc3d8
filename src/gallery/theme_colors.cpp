#include "gallery/theme_colors.h"

#include "gallery/xml_name.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace lp::gallery {
namespace {

constexpr double kFull = 100000.0;  // DrawingML percentages

struct Named {
  const char* name;
  long rgb;
};

// Word's default theme, for a document that carries none.
constexpr Named kDefaultScheme[] = {
    {"dk1", 0x000000},     {"lt1", 0xFFFFFF},     {"dk2", 0x44546A},     {"lt2", 0xE7E6E6},
    {"accent1", 0x4472C4}, {"accent2", 0xED7D31}, {"accent3", 0xA5A5A5}, {"accent4", 0xFFC000},
    {"accent5", 0x5B9BD5}, {"accent6", 0x70AD47}, {"hlink", 0x0563C1},   {"folHlink", 0x954F72}};
constexpr double kDefaultLineWidths[] = {6350, 12700, 19050};

constexpr Named kPresetColors[] = {{"black", 0x000000}, {"white", 0xFFFFFF}, {"red", 0xFF0000},
                                   {"green", 0x008000}, {"blue", 0x0000FF},  {"yellow", 0xFFFF00},
                                   {"gray", 0x808080},  {"orange", 0xFFA500}};

// The text and background names of a scheme stand for its dark and light colours.
const char* SchemeSlot(const char* name) {
  constexpr Named kMapped[] = {{"tx1", 0}, {"bg1", 1}, {"tx2", 2}, {"bg2", 3}};
  constexpr const char* kSlots[] = {"dk1", "lt1", "dk2", "lt2"};
  for (const Named& m : kMapped)
    if (std::strcmp(name, m.name) == 0) return kSlots[m.rgb];
  return name;
}

std::optional<long> Lookup(const Named* table, size_t count, const char* name) {
  for (size_t i = 0; i < count; ++i)
    if (std::strcmp(table[i].name, name) == 0) return table[i].rgb;
  return std::nullopt;
}

long Hex(const char* text) {
  return std::strtol(text, nullptr, 16) & 0xFFFFFF;
}

using Rgb = std::array<double, 3>;  // 0..1 each

Rgb Channels(long rgb) {
  return {((rgb >> 16) & 0xFF) / 255.0, ((rgb >> 8) & 0xFF) / 255.0, (rgb & 0xFF) / 255.0};
}

long Packed(const Rgb& c) {
  long rgb = 0;
  for (double v : c) rgb = rgb << 8 | std::lround(std::clamp(v, 0.0, 1.0) * 255);
  return rgb;
}

double ToLinear(double v) {
  return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}
double FromLinear(double v) {
  return v <= 0.0031308 ? v * 12.92 : 1.055 * std::pow(v, 1 / 2.4) - 0.055;
}

// Luminance changes work on hue, saturation and lightness.
Rgb WithLightness(const Rgb& c, double factor, double offset) {
  const double high = std::max({c[0], c[1], c[2]}), low = std::min({c[0], c[1], c[2]});
  const double l = (high + low) / 2;
  const double target = std::clamp(l * factor + offset, 0.0, 1.0);
  if (high == low) return {target, target, target};
  const double s = l > 0.5 ? (high - low) / (2 - high - low) : (high - low) / (high + low);
  const double q = target < 0.5 ? target * (1 + s) : target + s - target * s, p = 2 * target - q;
  Rgb out;
  for (int i = 0; i < 3; ++i) {
    // Where channel i sits between low and high keeps the hue.
    const double t = (c[i] - low) / (high - low);
    out[i] = p + (q - p) * t;
  }
  return out;
}

// Shades darken and tints lighten in linear light, as Word mixes them.
Rgb Mixed(const Rgb& c, double amount, bool toWhite) {
  Rgb out;
  for (int i = 0; i < 3; ++i) {
    const double linear = ToLinear(c[i]);
    out[i] = FromLinear(toWhite ? 1 - (1 - linear) * amount : linear * amount);
  }
  return out;
}

long Modified(long rgb, pugi::xml_node color) {
  Rgb c = Channels(rgb);
  for (pugi::xml_node change : color.children()) {
    const double amount = change.attribute("val").as_double() / kFull;
    if (Is(change, "a:lumMod")) c = WithLightness(c, amount, 0);
    if (Is(change, "a:lumOff")) c = WithLightness(c, 1, amount);
    if (Is(change, "a:shade")) c = Mixed(c, amount, false);
    if (Is(change, "a:tint")) c = Mixed(c, amount, true);
  }
  return Packed(c);
}

bool IsFill(pugi::xml_node node) {
  static const char* const kFills[] = {"a:noFill",   "a:solidFill", "a:gradFill",
                                       "a:pattFill", "a:blipFill",  "a:grpFill"};
  return std::any_of(std::begin(kFills), std::end(kFills),
                     [&](const char* name) { return Is(node, name); });
}

pugi::xml_node FillChild(pugi::xml_node parent) {
  for (pugi::xml_node child : parent.children())
    if (IsFill(child)) return child;
  return {};
}

pugi::xml_node Nth(pugi::xml_node list, int index) {
  for (pugi::xml_node child : list.children())
    if (child.type() == pugi::node_element && --index == 0) return child;
  return {};
}

}  // namespace

ThemeColors::ThemeColors(pugi::xml_node theme)
    : scheme_(theme.child("a:themeElements").child("a:clrScheme")),
      formats_(theme.child("a:themeElements").child("a:fmtScheme")) {}

long ThemeColors::SchemeColor(const char* name, long placeholder) const {
  if (std::strcmp(name, "phClr") == 0) return placeholder;
  const char* slot = SchemeSlot(name);
  if (pugi::xml_node entry = scheme_.child((std::string("a:") + slot).c_str()))
    if (std::optional<long> rgb = ColorIn(entry)) return *rgb;
  return Lookup(kDefaultScheme, std::size(kDefaultScheme), slot).value_or(0);
}

std::optional<long> ThemeColors::ColorIn(pugi::xml_node holder, long placeholder) const {
  for (pugi::xml_node color : holder.children()) {
    std::optional<long> rgb;
    if (Is(color, "a:srgbClr")) rgb = Hex(color.attribute("val").value());
    if (Is(color, "a:schemeClr")) rgb = SchemeColor(color.attribute("val").value(), placeholder);
    if (Is(color, "a:sysClr")) rgb = Hex(color.attribute("lastClr").value());
    if (Is(color, "a:prstClr"))
      rgb = Lookup(kPresetColors, std::size(kPresetColors), color.attribute("val").value());
    if (rgb) return Modified(*rgb, color);
  }
  return std::nullopt;
}

std::optional<long> ThemeColors::FillOf(pugi::xml_node spPr, pugi::xml_node style,
                                        long placeholder) const {
  pugi::xml_node fill = FillChild(spPr);
  if (!fill) {
    pugi::xml_node ref = style.child("a:fillRef");
    const int index = ref.attribute("idx").as_int();
    if (index <= 0) return std::nullopt;
    placeholder = ColorIn(ref).value_or(0);
    const bool background = index > 1000;
    fill = Nth(formats_.child(background ? "a:bgFillStyleLst" : "a:fillStyleLst"),
               background ? index - 1000 : index);
    if (!fill) return placeholder;
  }
  if (Is(fill, "a:solidFill")) return ColorIn(fill, placeholder).value_or(placeholder);
  if (Is(fill, "a:gradFill"))
    return ColorIn(fill.child("a:gsLst").child("a:gs"), placeholder).value_or(placeholder);
  if (Is(fill, "a:pattFill")) return ColorIn(fill.child("a:fgClr"), placeholder);
  return std::nullopt;
}

std::optional<long> ThemeColors::LineColorOf(pugi::xml_node ln, pugi::xml_node style) const {
  if (FillChild(ln)) return FillOf(ln, {});
  pugi::xml_node ref = style.child("a:lnRef");
  const int index = ref.attribute("idx").as_int();
  if (index <= 0) return ln ? std::optional<long>(0) : std::nullopt;
  const long placeholder = ColorIn(ref).value_or(0);
  pugi::xml_node line = Nth(formats_.child("a:lnStyleLst"), index);
  return FillChild(line) ? FillOf(line, {}, placeholder) : placeholder;
}

double ThemeColors::LineStyleWidth(int index) const {
  if (pugi::xml_node line = Nth(formats_.child("a:lnStyleLst"), index))
    return line.attribute("w").as_double();
  if (!formats_ && index >= 1 && index <= 3) return kDefaultLineWidths[index - 1];
  return 0;
}

}  // namespace lp::gallery
