#include "word/docx/drawing/path_shape.h"

#include <algorithm>
#include <cmath>

#include "word/docx/drawing/markup.h"
#include "word/docx/drawing/shape_range.h"
#include "word/docx/host/units.h"
#include "word/errors.h"

namespace word::docx::drawing {

namespace {

// Points of a path that count as one: closer than a hundredth of a point.
constexpr float kSamePoint = 0.01f;

std::vector<PointF> AllPoints(const PointPath& path) {
  std::vector<PointF> points{path.start};
  for (const PathSegment& segment : path.segments) {
    if (segment.curve) {
      points.push_back(segment.control1);
      points.push_back(segment.control2);
    }
    points.push_back(segment.end);
  }
  return points;
}

Frame BoundsOf(const std::vector<PointF>& points) {
  float left = points.front().x, top = points.front().y, right = left, bottom = top;
  for (const PointF& p : points) {
    left = std::min(left, p.x);
    top = std::min(top, p.y);
    right = std::max(right, p.x);
    bottom = std::max(bottom, p.y);
  }
  return {ToEmu(left), ToEmu(top), ToEmu(right) - ToEmu(left), ToEmu(bottom) - ToEmu(top)};
}

std::string PointXml(const PointF& p, const Frame& frame) {
  return "<a:pt x=\"" + std::to_string(ToEmu(p.x) - frame.x) + "\" y=\"" +
         std::to_string(ToEmu(p.y) - frame.y) + "\"/>";
}

std::string CommandsOf(const PointPath& path, const Frame& frame, bool closed) {
  std::string commands = "<a:moveTo>" + PointXml(path.start, frame) + "</a:moveTo>";
  for (const PathSegment& segment : path.segments) {
    if (segment.curve) {
      commands += "<a:cubicBezTo>" + PointXml(segment.control1, frame) +
                  PointXml(segment.control2, frame) + PointXml(segment.end, frame) +
                  "</a:cubicBezTo>";
    } else {
      commands += "<a:lnTo>" + PointXml(segment.end, frame) + "</a:lnTo>";
    }
  }
  return closed ? commands + "<a:close/>" : commands;
}

bool EndsAtStart(const PointPath& path) {
  if (path.segments.empty()) return false;
  const PointF end = path.segments.back().end;
  return std::fabs(end.x - path.start.x) < kSamePoint &&
         std::fabs(end.y - path.start.y) < kSamePoint;
}

class DocxFreeformBuilder : public FreeformBuilder {
 public:
  DocxFreeformBuilder(DocxHost& host, float x, float y) : host_(host) { path_.start = {x, y}; }

  // A curve with automatic editing gives only its end: it runs straight,
  // its controls at the thirds of the chord.
  void AddNodes(MsoSegmentType segment, MsoEditingType editing, float x1, float y1, float x2,
                float y2, float x3, float y3) override {
    if (segment == msoSegmentLine) {
      path_.segments.push_back({false, {}, {}, {x1, y1}});
    } else if (editing == msoEditingCorner) {
      path_.segments.push_back({true, {x1, y1}, {x2, y2}, {x3, y3}});
    } else {
      const PointF from = path_.segments.empty() ? path_.start : path_.segments.back().end;
      const PointF c1{from.x + (x1 - from.x) / 3, from.y + (y1 - from.y) / 3};
      const PointF c2{from.x + 2 * (x1 - from.x) / 3, from.y + 2 * (y1 - from.y) / 3};
      path_.segments.push_back({true, c1, c2, {x1, y1}});
    }
  }

  std::unique_ptr<Shape> ConvertToShape() override {
    if (path_.segments.empty()) throw InvalidArgument();
    return AddPathShape(host_, path_, u"Freeform");
  }

 private:
  DocxHost& host_;
  PointPath path_;
};

}  // namespace

PointPath BezierPath(const std::vector<PointF>& points) {
  if (points.size() < 4 || points.size() % 3 != 1) {
    throw InvalidArgument();
  }
  PointPath path{points.front(), {}};
  for (size_t i = 1; i + 2 < points.size(); i += 3) {
    path.segments.push_back({true, points[i], points[i + 1], points[i + 2]});
  }
  return path;
}

std::unique_ptr<Shape> AddPathShape(DocxHost& host, const PointPath& path, const Text& namePrefix) {
  const Frame frame = BoundsOf(AllPoints(path));
  const bool closed = EndsAtStart(path);
  const pugi::xml_node anchor =
      InsertAnchor(host, frame, GraphicKind::kShape,
                   PathWsp(frame, CommandsOf(path, frame, closed), closed), namePrefix);
  return std::make_unique<AnchorRange>(host, std::vector{anchor});
}

std::unique_ptr<FreeformBuilder> MakeFreeformBuilder(DocxHost& host, float x, float y) {
  return std::make_unique<DocxFreeformBuilder>(host, x, y);
}

}  // namespace word::docx::drawing
