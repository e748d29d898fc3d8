#pragma once
// Curves and freeforms: a path of line and cubic Bezier segments in points,
// written as a:custGeom over the path's bounding box.

#include <vector>

#include "word/docx/host/docx_host.h"
#include "word/shapes.h"

namespace word::docx::drawing {

struct PathSegment {
  bool curve = false;
  PointF control1;  // curves only
  PointF control2;  // curves only
  PointF end;
};

struct PointPath {
  PointF start;
  std::vector<PathSegment> segments;
};

// Start, then two controls and an end per segment: AddCurve's 3n+1 points.
PointPath BezierPath(const std::vector<PointF>& points);

// Adds the path as a floating shape; a path that ends where it starts is closed.
std::unique_ptr<Shape> AddPathShape(DocxHost& host, const PointPath& path, const Text& namePrefix);

std::unique_ptr<FreeformBuilder> MakeFreeformBuilder(DocxHost& host, float x, float y);

}  // namespace word::docx::drawing
