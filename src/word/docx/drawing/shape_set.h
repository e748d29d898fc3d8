#pragma once
// The anchors that one Shape or ShapeRange object stands for. Its formats
// (line, fill, text frame, wrap) read the first shape and write to all.

#include <vector>

#include <pugixml.hpp>

#include "word/docx/host/docx_host.h"

namespace word::docx::drawing {

class ShapeSet {
 public:
  ShapeSet(DocxHost& host, const std::vector<pugi::xml_node>& anchors);

  DocxHost& Host() const { return host_; }
  // The anchors; ComError 5825 once any of them left the document.
  std::vector<pugi::xml_node> Anchors() const;
  // The first anchor; ComError also when the set is empty.
  pugi::xml_node First() const;
  // wps:spPr of every wps:wsp in the set, groups opened.
  std::vector<pugi::xml_node> ShapeProperties() const;
  // wps:bodyPr of every wps:wsp in the set, groups opened.
  std::vector<pugi::xml_node> BodyProperties() const;
  // To call after every edit.
  void Changed() const;

 private:
  DocxHost& host_;
  std::vector<LiveAnchors::Handle> handles_;
};

}  // namespace word::docx::drawing
