#pragma once
// The anchors that one Shape or ShapeRange object stands for. Its formats
// (line, fill, text frame, wrap) read the first shape and write to all.

#include <vector>

#include <pugixml.hpp>

#include "word/docx/docx_host.h"

namespace word::docx::drawing {

class ShapeSet {
 public:
  ShapeSet(DocxHost& host, std::vector<pugi::xml_node> anchors)
      : host_(host), anchors_(std::move(anchors)) {}

  DocxHost& Host() const { return host_; }
  const std::vector<pugi::xml_node>& Anchors() const { return anchors_; }
  void Reset(std::vector<pugi::xml_node> anchors) { anchors_ = std::move(anchors); }
  // The first anchor; ComError when the set is empty (its shapes were deleted).
  pugi::xml_node First() const;
  // wps:spPr of every wps:wsp in the set, groups opened.
  std::vector<pugi::xml_node> ShapeProperties() const;
  // wps:bodyPr of every wps:wsp in the set, groups opened.
  std::vector<pugi::xml_node> BodyProperties() const;
  // To call after every edit.
  void Changed() const;

 private:
  DocxHost& host_;
  std::vector<pugi::xml_node> anchors_;
};

// Anchors taken out of the document leave the selection; when any of them
// was selected, their replacement (a new group) is selected instead.
void ReplaceInSelection(DocxHost& host, const std::vector<pugi::xml_node>& removed,
                        pugi::xml_node replacement = {});

}  // namespace word::docx::drawing
