#pragma once
// Connectors: a straight line whose ends are attached to connection sites of
// other shapes (wps:cNvCnPr with a:stCxn and a:endCxn naming the shape's id
// and the site's index), so that Word keeps them attached when those shapes
// move.

#include <string>

#include "word/docx/drawing/markup.h"
#include "word/docx/drawing/shape_set.h"
#include "word/shapes.h"

namespace word::docx::drawing {

// wps:wsp of a connector across its frame, mirrored to run from begin to
// end: straight, or an elbow that leaves its begin horizontally and meets its
// end vertically.
std::string ConnectorWsp(MsoConnectorType type, const Frame& frame, bool flipH, bool flipV);

// The preset of an autoshape type Word adds: "rect", "flowChartProcess", ...
// and the name prefix Word gives it; nullptr for a type this engine lacks.
struct PresetOfType {
  const char* preset;
  const char16_t* namePrefix;
};
const PresetOfType* PresetOf(MsoAutoShapeType type);

class DocxConnectorFormat : public ConnectorFormat {
 public:
  explicit DocxConnectorFormat(const ShapeSet& shapes) : shapes_(shapes) {}
  void BeginConnect(Shape& connectedShape, long connectionSite) override;
  void EndConnect(Shape& connectedShape, long connectionSite) override;

 private:
  void Connect(bool begin, Shape& connectedShape, long connectionSite);
  const ShapeSet& shapes_;
};

}  // namespace word::docx::drawing
