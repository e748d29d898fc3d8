// Reads the drawing list of a Word document: the DrawingML of its floating
// shapes, groups opened through their child coordinate spaces, and the runs
// of text boxes and of the body.

#include <zip.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include <pugixml.hpp>

#include "gallery/drawing_list.h"
#include "gallery/run_text.h"
#include "runtime/utf8.h"

namespace lp::gallery {
namespace {

constexpr double kEmuPerPoint = 12700;

std::optional<std::string> ReadZipEntry(const std::string& path, const char* entry) {
  int error = 0;
  zip_t* zip = zip_open(path.c_str(), ZIP_RDONLY, &error);
  if (!zip) return std::nullopt;
  std::optional<std::string> bytes;
  zip_stat_t stat;
  if (zip_stat(zip, entry, 0, &stat) == 0 && (stat.valid & ZIP_STAT_SIZE)) {
    if (zip_file_t* file = zip_fopen(zip, entry, 0)) {
      std::string data(stat.size, '\0');
      if (zip_fread(file, data.data(), stat.size) == static_cast<zip_int64_t>(stat.size))
        bytes = std::move(data);
      zip_fclose(file);
    }
  }
  zip_discard(zip);
  return bytes;
}

double Emu(pugi::xml_node node, const char* attribute) {
  return node.attribute(attribute).as_double() / kEmuPerPoint;
}

// Maps a shape's coordinates (points) onto the figure's.
struct Map {
  double sx = 1, sy = 1, tx = 0, ty = 0;
  Point operator()(double x, double y) const { return {x * sx + tx, y * sy + ty}; }
  Map Then(const Map& inner) const {
    return {sx * inner.sx, sy * inner.sy, sx * inner.tx + tx, sy * inner.ty + ty};
  }
};

struct Box {
  double x = 0, y = 0, cx = 0, cy = 0;
  bool flipH = false, flipV = false;
  double rotation = 0;  // degrees, clockwise
};

// Turns p about c by the box's rotation, as the page shows a turned shape.
Point Turned(Point p, Point c, double degrees) {
  if (degrees == 0) return p;
  const double a = degrees * 3.14159265358979 / 180, cs = std::cos(a), sn = std::sin(a);
  return {c.x + (p.x - c.x) * cs - (p.y - c.y) * sn, c.y + (p.x - c.x) * sn + (p.y - c.y) * cs};
}

// Where a point of the box lands in the figure: mapped, then turned about
// the box's centre.
Point Place(const Box& box, const Map& map, double x, double y) {
  return Turned(map(x, y), map(box.x + box.cx / 2, box.y + box.cy / 2), box.rotation);
}

Box BoxOf(pugi::xml_node xfrm) {
  Box box{Emu(xfrm.child("a:off"), "x"), Emu(xfrm.child("a:off"), "y"),
          Emu(xfrm.child("a:ext"), "cx"), Emu(xfrm.child("a:ext"), "cy")};
  box.flipH = xfrm.attribute("flipH").as_bool();
  box.flipV = xfrm.attribute("flipV").as_bool();
  box.rotation = xfrm.attribute("rot").as_double() / 60000;
  return box;
}

long ColorOf(pugi::xml_node fillParent, long fallback) {
  pugi::xml_node rgb = fillParent.child("a:solidFill").child("a:srgbClr");
  if (!rgb) return fallback;
  return std::strtol(rgb.attribute("val").value(), nullptr, 16);
}

Stroke StrokeOf(pugi::xml_node wsp) {
  Stroke stroke;
  pugi::xml_node ln = wsp.child("wps:spPr").child("a:ln");
  if (!ln) {
    stroke.visible = wsp.child("wps:style").child("a:lnRef").attribute("idx").as_int() > 0;
    return stroke;
  }
  stroke.visible = !ln.child("a:noFill");
  stroke.rgb = ColorOf(ln, 0);
  if (ln.attribute("w")) stroke.width = Emu(ln, "w");
  const char* dash = ln.child("a:prstDash").attribute("val").value();
  stroke.dashed = *dash && std::strcmp(dash, "solid") != 0;
  const auto arrow = [](pugi::xml_node end) {
    const char* type = end.attribute("type").value();
    return *type && std::strcmp(type, "none") != 0;
  };
  stroke.beginArrow = arrow(ln.child("a:headEnd"));
  stroke.endArrow = arrow(ln.child("a:tailEnd"));
  return stroke;
}

Fill FillOf(pugi::xml_node wsp) {
  pugi::xml_node spPr = wsp.child("wps:spPr");
  Fill fill;
  fill.visible = static_cast<bool>(spPr.child("a:solidFill"));
  fill.rgb = ColorOf(spPr, 0xFFFFFF);
  return fill;
}

PathStep Step(PathStep::Kind kind, std::vector<Point> points) {
  return PathStep{kind, std::move(points)};
}

// The custom geometry's paths, scaled from each path's own size to the box.
std::vector<PathStep> CustomPath(pugi::xml_node custGeom, const Box& box, const Map& map) {
  std::vector<PathStep> steps;
  for (pugi::xml_node path : custGeom.child("a:pathLst").children("a:path")) {
    const double w = path.attribute("w").as_double(), h = path.attribute("h").as_double();
    const auto at = [&](pugi::xml_node pt) {
      double x = w > 0 ? pt.attribute("x").as_double() / w * box.cx : 0;
      double y = h > 0 ? pt.attribute("y").as_double() / h * box.cy : 0;
      if (box.flipH) x = box.cx - x;
      if (box.flipV) y = box.cy - y;
      return Place(box, map, box.x + x, box.y + y);
    };
    for (pugi::xml_node command : path.children()) {
      std::vector<Point> points;
      for (pugi::xml_node pt : command.children("a:pt")) points.push_back(at(pt));
      const std::string name = command.name();
      if (name == "a:moveTo") steps.push_back(Step(PathStep::kMove, points));
      if (name == "a:lnTo") steps.push_back(Step(PathStep::kLine, points));
      if (name == "a:cubicBezTo") steps.push_back(Step(PathStep::kCubic, points));
      if (name == "a:close") steps.push_back(Step(PathStep::kClose, {}));
    }
  }
  return steps;
}

// A preset outline by corners of the box, in fractions of its size.
std::vector<PathStep> Polygon(const Box& box, const Map& map,
                              std::initializer_list<std::pair<double, double>> corners) {
  std::vector<PathStep> steps;
  for (const auto& [fx, fy] : corners) {
    const double x = box.flipH ? 1 - fx : fx, y = box.flipV ? 1 - fy : fy;
    steps.push_back(Step(steps.empty() ? PathStep::kMove : PathStep::kLine,
                         {Place(box, map, box.x + x * box.cx, box.y + y * box.cy)}));
  }
  steps.push_back(Step(PathStep::kClose, {}));
  return steps;
}

std::vector<PathStep> PresetPath(const std::string& preset, const Box& box, const Map& map) {
  if (preset == "line" || preset.rfind("straightConnector", 0) == 0) {
    std::vector<PathStep> steps = Polygon(box, map, {{0, 0}, {1, 1}});
    steps.pop_back();
    return steps;
  }
  if (preset == "flowChartDecision" || preset == "diamond")
    return Polygon(box, map, {{0.5, 0}, {1, 0.5}, {0.5, 1}, {0, 0.5}});
  if (preset == "flowChartInputOutput" || preset == "parallelogram")
    return Polygon(box, map, {{0.2, 0}, {1, 0}, {0.8, 1}, {0, 1}});
  if (preset == "triangle") return Polygon(box, map, {{0.5, 0}, {1, 1}, {0, 1}});
  if (preset == "rtTriangle") return Polygon(box, map, {{0, 0}, {1, 1}, {0, 1}});
  return Polygon(box, map, {{0, 0}, {1, 0}, {1, 1}, {0, 1}});
}

void ReadShape(pugi::xml_node wsp, const Map& map, DrawingList& list) {
  pugi::xml_node spPr = wsp.child("wps:spPr");
  const Box box = BoxOf(spPr.child("a:xfrm"));
  Item item;
  item.stroke = StrokeOf(wsp);
  item.fill = FillOf(wsp);
  const std::string preset = spPr.child("a:prstGeom").attribute("prst").value();
  if (pugi::xml_node custom = spPr.child("a:custGeom")) {
    item.path = CustomPath(custom, box, map);
  } else if (preset == "ellipse" || preset == "flowChartConnector") {
    item.kind = Item::kEllipse;
    item.rotation = box.rotation;
    item.topLeft = map(box.x, box.y);
    item.bottomRight = map(box.x + box.cx, box.y + box.cy);
  } else {
    item.path = PresetPath(preset, box, map);
  }
  list.items.push_back(item);
  pugi::xml_node content = wsp.child("wps:txbx").child("w:txbxContent");
  if (!content) return;
  Item text;
  text.kind = Item::kText;
  text.stroke.visible = false;
  text.rotation = box.rotation;
  text.topLeft = map(box.x, box.y);
  text.bottomRight = map(box.x + box.cx, box.y + box.cy);
  pugi::xml_node bodyPr = wsp.child("wps:bodyPr");
  if (bodyPr.attribute("lIns")) text.insetLeft = Emu(bodyPr, "lIns");
  if (bodyPr.attribute("tIns")) text.insetTop = Emu(bodyPr, "tIns");
  text.lines = ReadParagraphs(content);
  list.items.push_back(text);
}

void ReadGraphic(pugi::xml_node graphic, const Map& map, DrawingList& list) {
  const std::string name = graphic.name();
  if (name == "wps:wsp") return ReadShape(graphic, map, list);
  if (name != "wpg:wgp" && name != "wpg:grpSp") return;
  pugi::xml_node xfrm = graphic.child("wpg:grpSpPr").child("a:xfrm");
  const Box box = BoxOf(xfrm);
  const double chx = Emu(xfrm.child("a:chOff"), "x"), chy = Emu(xfrm.child("a:chOff"), "y");
  const double chcx = Emu(xfrm.child("a:chExt"), "cx"), chcy = Emu(xfrm.child("a:chExt"), "cy");
  Map inner;
  inner.sx = chcx > 0 ? box.cx / chcx : 1;
  inner.sy = chcy > 0 ? box.cy / chcy : 1;
  inner.tx = box.x - chx * inner.sx;
  inner.ty = box.y - chy * inner.sy;
  const Map childMap = map.Then(inner);
  for (pugi::xml_node child : graphic.children()) ReadGraphic(child, childMap, list);
}

pugi::xml_node GraphicOf(pugi::xml_node anchor) {
  return anchor.child("a:graphic").child("a:graphicData").first_child();
}

std::vector<pugi::xml_node> AnchorsOf(pugi::xml_node body) {
  std::vector<pugi::xml_node> anchors;
  for (pugi::xpath_node x : body.select_nodes(".//wp:anchor")) {
    // Shapes inside text boxes and the fallbacks of older readers are not figures.
    bool nested = false;
    for (pugi::xml_node up = x.node().parent(); up && up != body; up = up.parent())
      nested = nested || std::strcmp(up.name(), "w:txbxContent") == 0 ||
               std::strcmp(up.name(), "mc:Fallback") == 0;
    if (!nested) anchors.push_back(x.node());
  }
  return anchors;
}

void Extend(const Point& p, Point& low, Point& high) {
  low = {std::min(low.x, p.x), std::min(low.y, p.y)};
  high = {std::max(high.x, p.x), std::max(high.y, p.y)};
}

// Moves the figure so that its drawn extent starts at 0, 0.
void Normalise(DrawingList& list) {
  constexpr double kMax = std::numeric_limits<double>::max();
  Point low{kMax, kMax}, high{-kMax, -kMax};
  for (const Item& item : list.items) {
    if (item.kind != Item::kPath) {
      Extend(item.topLeft, low, high);
      Extend(item.bottomRight, low, high);
    }
    for (const PathStep& step : item.path)
      for (const Point& p : step.points) Extend(p, low, high);
  }
  if (low.x > high.x) return;
  const auto shift = [&](Point& p) { p = {p.x - low.x, p.y - low.y}; };
  for (Item& item : list.items) {
    shift(item.topLeft);
    shift(item.bottomRight);
    for (PathStep& step : item.path)
      for (Point& p : step.points) shift(p);
  }
  list.width = high.x - low.x;
  list.height = high.y - low.y;
}

std::u16string NameOf(pugi::xml_node anchor) {
  return FromUtf8(anchor.child("wp:docPr").attribute("name").value());
}

}  // namespace

std::optional<DrawingList> ReadDrawingList(const std::string& path,
                                           const std::vector<std::u16string>& names) {
  auto bytes = ReadZipEntry(path, "word/document.xml");
  pugi::xml_document xml;
  if (!bytes || !xml.load_buffer(bytes->data(), bytes->size())) return std::nullopt;
  pugi::xml_node body = xml.document_element().child("w:body");
  if (!body) return std::nullopt;
  DrawingList list;
  for (pugi::xml_node anchor : AnchorsOf(body)) {
    if (!names.empty() && std::find(names.begin(), names.end(), NameOf(anchor)) == names.end())
      continue;
    list.names.push_back(NameOf(anchor));
    Map page;
    page.tx = anchor.child("wp:positionH").child("wp:posOffset").text().as_double() / kEmuPerPoint;
    page.ty = anchor.child("wp:positionV").child("wp:posOffset").text().as_double() / kEmuPerPoint;
    ReadGraphic(GraphicOf(anchor), page, list);
  }
  if (list.items.empty() && names.empty()) {
    Item text;
    text.kind = Item::kText;
    text.stroke.visible = false;
    text.insetLeft = text.insetTop = 0;
    text.lines = ReadParagraphs(body);
    if (!text.lines.empty()) list.items.push_back(text);
    return list;
  }
  Normalise(list);
  return list;
}

}  // namespace lp::gallery
