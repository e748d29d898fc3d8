#include "word/docx/drawing/shape_set.h"

#include <algorithm>

#include "word/docx/drawing/anchor.h"

namespace word::docx::drawing {

namespace {

std::vector<pugi::xml_node> ChildOfEachWsp(const std::vector<pugi::xml_node>& anchors,
                                           const char* name) {
  std::vector<pugi::xml_node> found;
  for (pugi::xml_node anchor : anchors) {
    for (pugi::xml_node wsp : WspsOf(anchor)) {
      if (pugi::xml_node child = wsp.child(name)) found.push_back(child);
    }
  }
  return found;
}

}  // namespace

pugi::xml_node ShapeSet::First() const {
  if (anchors_.empty()) throw ComError(-2147024809, "The shape no longer exists.");
  return anchors_.front();
}

std::vector<pugi::xml_node> ShapeSet::ShapeProperties() const {
  return ChildOfEachWsp(anchors_, "wps:spPr");
}

std::vector<pugi::xml_node> ShapeSet::BodyProperties() const {
  return ChildOfEachWsp(anchors_, "wps:bodyPr");
}

void ShapeSet::Changed() const {
  for (pugi::xml_node anchor : anchors_) DropFallback(anchor);
  host_.MarkChanged();
}

void ReplaceInSelection(DocxHost& host, const std::vector<pugi::xml_node>& removed,
                        pugi::xml_node replacement) {
  std::vector<pugi::xml_node> selected = host.SelectedShapes();
  const auto isRemoved = [&removed](pugi::xml_node anchor) {
    return std::find(removed.begin(), removed.end(), anchor) != removed.end();
  };
  if (std::none_of(selected.begin(), selected.end(), isRemoved)) return;
  std::erase_if(selected, isRemoved);
  if (replacement) selected.push_back(replacement);
  host.SelectShapes(selected, true);
}

}  // namespace word::docx::drawing
