#pragma once
// DrawingML colours as the page shows them: a plain RGB value, or a colour
// of the document's theme (accent1, tx1, ...) through the shape's style,
// with the shade, tint and luminance changes Word applies to it.

#include <optional>

#include <pugixml.hpp>

namespace lp::gallery {

class ThemeColors {
 public:
  // `theme` is the a:theme element of the document's theme part; without
  // one, the colours of Word's default theme stand in.
  explicit ThemeColors(pugi::xml_node theme = {});

  // The colour `holder` (a:solidFill, a:lnRef, a:fgClr, ...) holds, as
  // 0xRRGGBB; `placeholder` is what a style's phClr stands for.
  std::optional<long> ColorIn(pugi::xml_node holder, long placeholder = 0) const;

  // The fill colour of a shape's own properties, or of the theme's fill
  // style its a:fillRef names; nothing when it is unfilled. A gradient shows
  // its first stop, a pattern its fore colour.
  std::optional<long> FillOf(pugi::xml_node spPr, pugi::xml_node style, long placeholder = 0) const;

  // The colour of a shape's outline (a:ln, or the theme's line style its
  // a:lnRef names); nothing when it has none. An outline with no colour of
  // its own and no style is black.
  std::optional<long> LineColorOf(pugi::xml_node ln, pugi::xml_node style) const;

  // The width in EMU of the theme's line style `index` (1-based), 0 if none.
  double LineStyleWidth(int index) const;

 private:
  long SchemeColor(const char* name, long placeholder) const;
  pugi::xml_node scheme_;
  pugi::xml_node formats_;
};

}  // namespace lp::gallery
