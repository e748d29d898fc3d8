#pragma once
// The outlines of Word's preset shapes (rectangles, connectors, arrows, flow
// chart boxes), drawn in the shape's own box: x from 0 to w, y from 0 to h,
// in points, before the shape is mirrored, turned and placed.

#include <string>
#include <vector>

#include <pugixml.hpp>

#include "gallery/drawing_list.h"

namespace lp::gallery {

// `adjustments` is the shape's a:avLst (its a:gd values move the bends and
// corners); a preset not drawn here shows as its box.
std::vector<PathStep> PresetOutline(const std::string& preset, double w, double h,
                                    pugi::xml_node adjustments);

}  // namespace lp::gallery
