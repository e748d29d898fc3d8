#include "word/docx/drawing/connector.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string_view>

#include "word/docx/drawing/anchor.h"
#include "word/docx/drawing/shape_range.h"
#include "word/docx/host/xml_order.h"
#include "word/errors.h"

namespace word::docx::drawing {

namespace {

constexpr PresetOfType kPresets[] = {
    {"rect", u"Rectangle"},
    {"ellipse", u"Oval"},
    {"flowChartProcess", u"Flowchart: Process"},
    {"flowChartDecision", u"Flowchart: Decision"},
    {"flowChartInputOutput", u"Flowchart: Data"},
    {"flowChartTerminator", u"Flowchart: Terminator"},
};

// The connection sites of a preset as fractions of its frame, in the order
// of its cxnLst (Word's site n is index n - 1): top, left, bottom, right. The
// data shape's slanted sides put its sites off the middle.
struct Site {
  double x, y;
};
struct PresetSites {
  std::string_view preset;
  Site sites[4];
};
constexpr PresetSites kSites[] = {
    {"rect", {{0.5, 0}, {0, 0.5}, {0.5, 1}, {1, 0.5}}},
    {"flowChartProcess", {{0.5, 0}, {0, 0.5}, {0.5, 1}, {1, 0.5}}},
    {"flowChartDecision", {{0.5, 0}, {0, 0.5}, {0.5, 1}, {1, 0.5}}},
    {"flowChartTerminator", {{0.5, 0}, {0, 0.5}, {0.5, 1}, {1, 0.5}}},
    {"flowChartInputOutput", {{0.4, 0}, {0.1, 0.5}, {0.6, 1}, {0.9, 0.5}}},
};

struct Point {
  std::int64_t x, y;
};

// Where site (1-based) of the anchored shape lies on the page, in EMU.
Point SiteOf(DocxHost& host, pugi::xml_node anchor, long site) {
  const std::string_view preset =
      GraphicOf(anchor).child("wps:spPr").child("a:prstGeom").attribute("prst").value();
  const auto sites = std::find_if(std::begin(kSites), std::end(kSites),
                                  [&](const PresetSites& s) { return s.preset == preset; });
  if (sites == std::end(kSites) || site < 1 || site > 4) throw InvalidArgument();
  const Site at = sites->sites[site - 1];
  const auto along = [&](Axis axis, double fraction) {
    return PageOffsetOf(host, anchor, axis) + std::llround(fraction * ExtentOf(anchor, axis));
  };
  return {along(Axis::kHorizontal, at.x), along(Axis::kVertical, at.y)};
}

// The connector's two ends from its frame and flips.
std::pair<Point, Point> EndsOf(DocxHost& host, pugi::xml_node anchor) {
  const pugi::xml_node xfrm = TransformOf(GraphicOf(anchor));
  const bool flipH = xfrm.attribute("flipH").as_bool(), flipV = xfrm.attribute("flipV").as_bool();
  const std::int64_t x = PageOffsetOf(host, anchor, Axis::kHorizontal);
  const std::int64_t y = PageOffsetOf(host, anchor, Axis::kVertical);
  const std::int64_t cx = ExtentOf(anchor, Axis::kHorizontal);
  const std::int64_t cy = ExtentOf(anchor, Axis::kVertical);
  const Point left{x, y}, right{x + cx, y + cy};
  return {{flipH ? right.x : left.x, flipV ? right.y : left.y},
          {flipH ? left.x : right.x, flipV ? left.y : right.y}};
}

void SetFlip(pugi::xml_node xfrm, const char* name, bool on) {
  xfrm.remove_attribute(name);
  if (on) xfrm.append_attribute(name) = "1";
}

void PlaceBetween(DocxHost& host, pugi::xml_node anchor, Point begin, Point end) {
  SetPageOffset(host, anchor, Axis::kHorizontal, std::min(begin.x, end.x));
  SetPageOffset(host, anchor, Axis::kVertical, std::min(begin.y, end.y));
  SetExtent(anchor, Axis::kHorizontal, std::llabs(end.x - begin.x));
  SetExtent(anchor, Axis::kVertical, std::llabs(end.y - begin.y));
  const pugi::xml_node xfrm = TransformOf(GraphicOf(anchor));
  SetFlip(xfrm, "flipH", end.x < begin.x);
  SetFlip(xfrm, "flipV", end.y < begin.y);
}

// a:stCxn comes before a:endCxn in wps:cNvCnPr.
void WriteConnection(pugi::xml_node nonVisual, bool begin, const char* id, long site) {
  const char* name = begin ? "a:stCxn" : "a:endCxn";
  nonVisual.remove_child(name);
  pugi::xml_node connection = begin ? nonVisual.prepend_child(name) : nonVisual.append_child(name);
  connection.append_attribute("id") = id;
  connection.append_attribute("idx") = site - 1;
}

}  // namespace

std::string ConnectorWsp(MsoConnectorType type, const Frame& frame, bool flipH, bool flipV) {
  std::string wsp = LineWsp(frame, flipH, flipV);
  const std::string from = "<wps:cNvSpPr/>", to = "<wps:cNvCnPr/>";
  wsp.replace(wsp.find(from), from.size(), to);
  const std::string line = "prst=\"line\"";
  wsp.replace(
      wsp.find(line), line.size(),
      type == msoConnectorElbow ? "prst=\"bentConnector2\"" : "prst=\"straightConnector1\"");
  return wsp;
}

const PresetOfType* PresetOf(MsoAutoShapeType type) {
  switch (type) {
    case msoShapeRectangle:
      return &kPresets[0];
    case msoShapeOval:
      return &kPresets[1];
    case msoShapeFlowchartProcess:
      return &kPresets[2];
    case msoShapeFlowchartDecision:
      return &kPresets[3];
    case msoShapeFlowchartData:
      return &kPresets[4];
    case msoShapeFlowchartTerminator:
      return &kPresets[5];
  }
  return nullptr;
}

void DocxConnectorFormat::BeginConnect(Shape& connectedShape, long connectionSite) {
  Connect(true, connectedShape, connectionSite);
}

void DocxConnectorFormat::EndConnect(Shape& connectedShape, long connectionSite) {
  Connect(false, connectedShape, connectionSite);
}

// As Word does, the end moves onto the site; only a connector has ends.
void DocxConnectorFormat::Connect(bool begin, Shape& connectedShape, long connectionSite) {
  auto* target = dynamic_cast<AnchorRange*>(&connectedShape);
  if (!target) throw TypeMismatch();
  const pugi::xml_node targetAnchor = target->FirstAnchor();
  const pugi::xml_node anchor = shapes_.First();
  const pugi::xml_node nonVisual = GraphicOf(anchor).child("wps:cNvCnPr");
  if (!nonVisual) throw InvalidArgument();
  DocxHost& host = shapes_.Host();
  const Point site = SiteOf(host, targetAnchor, connectionSite);
  auto [from, to] = EndsOf(host, anchor);
  (begin ? from : to) = site;
  PlaceBetween(host, anchor, from, to);
  WriteConnection(nonVisual, begin, targetAnchor.child("wp:docPr").attribute("id").value(),
                  connectionSite);
  DropFallback(anchor);
  shapes_.Changed();
}

}  // namespace word::docx::drawing
