#pragma once
// The outlines of Word's preset shapes (rectangles, connectors, arrows, flow
// chart boxes), drawn in the shape's own box: x from 0 to w, y from 0 to h,
// in points, before the shape is mirrored, turned and placed.

#include <string>
#include <vector>

#include <pugixml.hpp>

#include "gallery/drawing_list.h"

namespace lp::gallery {

// A path of an outline; some are only filled (an arc's slice) or only
// stroked (its curve).
struct OutlinePath {
  std::vector<PathStep> steps;
  bool stroked = true, filled = true;
};

// `adjustments` is the shape's a:avLst (its a:gd values move the bends,
// corners and angles); a preset not drawn here shows as its box.
std::vector<OutlinePath> PresetOutline(const std::string& preset, double w, double h,
                                       pugi::xml_node adjustments);

}  // namespace lp::gallery
