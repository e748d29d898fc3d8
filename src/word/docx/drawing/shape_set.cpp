#include "word/docx/drawing/shape_set.h"

#include "word/docx/drawing/anchor.h"
#include "word/errors.h"

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

ShapeSet::ShapeSet(DocxHost& host, const std::vector<pugi::xml_node>& anchors) : host_(host) {
  for (pugi::xml_node anchor : anchors) handles_.push_back(host.Live().Track(anchor));
}

std::vector<pugi::xml_node> ShapeSet::Anchors() const {
  std::vector<pugi::xml_node> anchors;
  for (const LiveAnchors::Handle& handle : handles_) anchors.push_back(LiveAnchor(handle));
  return anchors;
}

pugi::xml_node ShapeSet::First() const {
  if (handles_.empty()) throw ShapeArgument("该形状已不存在。");
  return LiveAnchor(handles_.front());
}

std::vector<pugi::xml_node> ShapeSet::ShapeProperties() const {
  return ChildOfEachWsp(Anchors(), "wps:spPr");
}

std::vector<pugi::xml_node> ShapeSet::BodyProperties() const {
  return ChildOfEachWsp(Anchors(), "wps:bodyPr");
}

void ShapeSet::Changed() const {
  for (pugi::xml_node anchor : Anchors()) DropFallback(anchor);
  host_.MarkChanged();
}

}  // namespace word::docx::drawing
