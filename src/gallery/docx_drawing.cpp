// Reads the drawing list of a Word document: the DrawingML of its floating
// shapes, groups opened through their child coordinate spaces, and the runs
// of text boxes and of the body.

#include <zip.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <string_view>

#include <pugixml.hpp>

#include "gallery/drawing_list.h"
#include "gallery/preset_outline.h"
#include "gallery/run_text.h"
#include "gallery/theme_colors.h"
#include "gallery/xml_name.h"
#include "runtime/utf8.h"

namespace lp::gallery {
namespace {

constexpr double kEmuPerPoint = 12700;

// The entries of a zip file, opened once for all the reads.
class ZipEntries {
 public:
  explicit ZipEntries(const std::string& path) {
    int error = 0;
    zip_.reset(zip_open(path.c_str(), ZIP_RDONLY, &error));
  }

  std::optional<std::string> Read(const std::string& entry) const {
    zip_stat_t stat;
    if (!zip_ || zip_stat(zip_.get(), entry.c_str(), 0, &stat) != 0 ||
        !(stat.valid & ZIP_STAT_SIZE))
      return std::nullopt;
    zip_file_t* file = zip_fopen(zip_.get(), entry.c_str(), 0);
    if (!file) return std::nullopt;
    std::string data(stat.size, '\0');
    const bool whole =
        zip_fread(file, data.data(), stat.size) == static_cast<zip_int64_t>(stat.size);
    zip_fclose(file);
    return whole ? std::optional<std::string>(std::move(data)) : std::nullopt;
  }

 private:
  struct Discard {
    void operator()(zip_t* zip) const { zip_discard(zip); }
  };
  std::unique_ptr<zip_t, Discard> zip_;
};

bool Load(const std::optional<std::string>& bytes, pugi::xml_document& xml) {
  return bytes && xml.load_buffer(bytes->data(), bytes->size());
}

// The main document and what its shapes refer to outside it: the theme's
// colours, and pictures by relationship id.
class Sources {
 public:
  explicit Sources(const std::string& path) : zip_(path) {
    Load(zip_.Read("word/_rels/document.xml.rels"), rels_);
    for (pugi::xml_node r : rels_.child("Relationships").children("Relationship"))
      if (std::string_view(r.attribute("Type").value()).ends_with("/theme"))
        if (Load(zip_.Read(PartOf(r)), themeXml_)) theme_ = ThemeColors(themeXml_.child("a:theme"));
  }

  std::optional<std::string> Body() const { return zip_.Read("word/document.xml"); }
  const ThemeColors& Theme() const { return theme_; }

  // The bytes of the picture the relationship names; empty when missing.
  std::string Picture(const char* id) const {
    pugi::xml_node r =
        rels_.child("Relationships").find_child_by_attribute("Relationship", "Id", id);
    if (!r || std::strcmp(r.attribute("TargetMode").value(), "External") == 0) return {};
    return zip_.Read(PartOf(r)).value_or("");
  }

 private:
  static std::string PartOf(pugi::xml_node relationship) {
    const std::string target = relationship.attribute("Target").value();
    return target.starts_with('/') ? target.substr(1) : "word/" + target;
  }

  ZipEntries zip_;
  pugi::xml_document rels_, themeXml_;
  ThemeColors theme_;
};

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

Stroke StrokeOf(pugi::xml_node wsp, const ThemeColors& theme) {
  Stroke stroke;
  pugi::xml_node ln = wsp.child("wps:spPr").child("a:ln");
  pugi::xml_node style = wsp.child("wps:style");
  const std::optional<long> color = theme.LineColorOf(ln, style);
  stroke.visible = color.has_value();
  stroke.rgb = color.value_or(0);
  if (ln.attribute("w")) {
    stroke.width = Emu(ln, "w");
  } else if (const double w =
                 theme.LineStyleWidth(style.child("a:lnRef").attribute("idx").as_int())) {
    stroke.width = w / kEmuPerPoint;
  }
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

Fill FillOf(pugi::xml_node wsp, const ThemeColors& theme) {
  Fill fill;
  if (std::optional<long> color = theme.FillOf(wsp.child("wps:spPr"), wsp.child("wps:style"))) {
    fill.visible = true;
    fill.rgb = *color;
  }
  return fill;
}

// Where a point of a shape's own box (from 0, 0 to its size) lands in the
// figure: mirrored as the shape is, mapped, then turned with it.
std::vector<PathStep> Placed(std::vector<PathStep> steps, const Box& box, const Map& map) {
  for (PathStep& step : steps) {
    for (Point& p : step.points) {
      const double x = box.flipH ? box.cx - p.x : p.x, y = box.flipV ? box.cy - p.y : p.y;
      p = Place(box, map, box.x + x, box.y + y);
    }
  }
  return steps;
}

// A path of a custom geometry, scaled from the path's own size to the box.
std::vector<PathStep> CustomPath(pugi::xml_node path, const Box& box) {
  const double w = path.attribute("w").as_double(), h = path.attribute("h").as_double();
  const auto at = [&](pugi::xml_node pt) {
    return Point{w > 0 ? pt.attribute("x").as_double() / w * box.cx : 0,
                 h > 0 ? pt.attribute("y").as_double() / h * box.cy : 0};
  };
  std::vector<PathStep> steps;
  for (pugi::xml_node command : path.children()) {
    std::vector<Point> points;
    for (pugi::xml_node pt : command.children("a:pt")) points.push_back(at(pt));
    if (Is(command, "a:moveTo")) steps.push_back({PathStep::kMove, points});
    if (Is(command, "a:lnTo")) steps.push_back({PathStep::kLine, points});
    if (Is(command, "a:cubicBezTo")) steps.push_back({PathStep::kCubic, points});
    if (Is(command, "a:close")) steps.push_back({PathStep::kClose, {}});
  }
  return steps;
}

// Ellipses, text and pictures fill the shape's box and turn with it.
void PutInBox(Item& item, const Box& box, const Map& map) {
  item.rotation = box.rotation;
  item.topLeft = map(box.x, box.y);
  item.bottomRight = map(box.x + box.cx, box.y + box.cy);
}

// The paths of a custom geometry, scaled from each path's own size to the
// box; a path may be there only to be outlined, or only to be filled.
std::vector<OutlinePath> CustomPaths(pugi::xml_node custom, const Box& box) {
  std::vector<OutlinePath> paths;
  for (pugi::xml_node path : custom.child("a:pathLst").children("a:path"))
    paths.push_back({CustomPath(path, box), path.attribute("stroke").as_bool(true),
                     std::strcmp(path.attribute("fill").value(), "none") != 0});
  return paths;
}

// The outline of a shape: its paths, or an ellipse kept whole.
void ReadOutline(pugi::xml_node wsp, const Box& box, const Map& map, const ThemeColors& theme,
                 DrawingList& list) {
  pugi::xml_node spPr = wsp.child("wps:spPr");
  Item item;
  item.stroke = StrokeOf(wsp, theme);
  item.fill = FillOf(wsp, theme);
  pugi::xml_node geometry = spPr.child("a:prstGeom"), custom = spPr.child("a:custGeom");
  const std::string preset = geometry.attribute("prst").value();
  if (!custom && (preset == "ellipse" || preset == "flowChartConnector")) {
    item.kind = Item::kEllipse;
    PutInBox(item, box, map);
    list.items.push_back(item);
    return;
  }
  const std::vector<OutlinePath> paths =
      custom ? CustomPaths(custom, box)
             : PresetOutline(preset, box.cx, box.cy, geometry.child("a:avLst"));
  for (const OutlinePath& path : paths) {
    Item part = item;
    part.path = Placed(path.steps, box, map);
    part.stroke.visible = item.stroke.visible && path.stroked;
    part.fill.visible = item.fill.visible && path.filled;
    list.items.push_back(part);
  }
}

void ReadTextBox(pugi::xml_node wsp, const Box& box, const Map& map, const ThemeColors& theme,
                 DrawingList& list) {
  pugi::xml_node content = wsp.child("wps:txbx").child("w:txbxContent");
  if (!content) return;
  Item text;
  text.kind = Item::kText;
  text.stroke.visible = false;
  PutInBox(text, box, map);
  pugi::xml_node bodyPr = wsp.child("wps:bodyPr");
  if (bodyPr.attribute("lIns")) text.insetLeft = Emu(bodyPr, "lIns");
  if (bodyPr.attribute("tIns")) text.insetTop = Emu(bodyPr, "tIns");
  if (bodyPr.attribute("bIns")) text.insetBottom = Emu(bodyPr, "bIns");
  const char* anchor = bodyPr.attribute("anchor").value();
  text.anchor = std::strcmp(anchor, "ctr") == 0 ? 1 : std::strcmp(anchor, "b") == 0 ? 2 : 0;
  // Text with no colour of its own takes the one the shape's style gives.
  text.lines =
      ReadParagraphs(content, theme.ColorIn(wsp.child("wps:style").child("a:fontRef")).value_or(0));
  list.items.push_back(text);
}

void ReadShape(pugi::xml_node wsp, const Map& map, const ThemeColors& theme, DrawingList& list) {
  const Box box = BoxOf(wsp.child("wps:spPr").child("a:xfrm"));
  ReadOutline(wsp, box, map, theme, list);
  ReadTextBox(wsp, box, map, theme, list);
}

// A flipped or turned group mirrors, then turns, what it holds about its
// centre; text moves with its box but still reads left to right.
void TurnWithGroup(Item& item, const Box& group, Point centre) {
  if (!group.flipH && !group.flipV && group.rotation == 0) return;
  const auto move = [&](Point p) {
    if (group.flipH) p.x = 2 * centre.x - p.x;
    if (group.flipV) p.y = 2 * centre.y - p.y;
    return Turned(p, centre, group.rotation);
  };
  for (PathStep& step : item.path)
    for (Point& p : step.points) p = move(p);
  if (item.kind == Item::kPath) return;
  const Point half{(item.bottomRight.x - item.topLeft.x) / 2,
                   (item.bottomRight.y - item.topLeft.y) / 2};
  const Point middle = move({item.topLeft.x + half.x, item.topLeft.y + half.y});
  item.topLeft = {middle.x - half.x, middle.y - half.y};
  item.bottomRight = {middle.x + half.x, middle.y + half.y};
  if (group.flipH != group.flipV) item.rotation = -item.rotation;
  item.rotation += group.rotation;
}

// A picture keeps its file's bytes; the painter decodes them.
void ReadPicture(pugi::xml_node pic, const Map& map, const Sources& sources, DrawingList& list) {
  const Box box = BoxOf(pic.child("pic:spPr").child("a:xfrm"));
  Item item;
  item.kind = Item::kPicture;
  item.stroke.visible = false;
  item.mirrorH = box.flipH;
  item.mirrorV = box.flipV;
  PutInBox(item, box, map);
  item.picture =
      sources.Picture(pic.child("pic:blipFill").child("a:blip").attribute("r:embed").value());
  if (!item.picture.empty()) list.items.push_back(std::move(item));
}

void ReadGraphic(pugi::xml_node graphic, const Map& map, const Sources& sources,
                 DrawingList& list) {
  if (Is(graphic, "wps:wsp")) return ReadShape(graphic, map, sources.Theme(), list);
  if (Is(graphic, "pic:pic")) return ReadPicture(graphic, map, sources, list);
  if (!Is(graphic, "wpg:wgp") && !Is(graphic, "wpg:grpSp")) return;
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
  const size_t first = list.items.size();
  for (pugi::xml_node child : graphic.children()) ReadGraphic(child, childMap, sources, list);
  const Point centre = map(box.x + box.cx / 2, box.y + box.cy / 2);
  for (size_t i = first; i < list.items.size(); ++i) TurnWithGroup(list.items[i], box, centre);
}

pugi::xml_node GraphicOf(pugi::xml_node anchor) {
  return anchor.child("a:graphic").child("a:graphicData").first_child();
}

// The drawings (wp:anchor or wp:inline) of the body.
std::vector<pugi::xml_node> DrawingsOf(pugi::xml_node body, const char* kind) {
  std::vector<pugi::xml_node> anchors;
  for (pugi::xpath_node x : body.select_nodes((std::string(".//") + kind).c_str())) {
    // Shapes inside text boxes and the fallbacks of older readers are not figures.
    bool nested = false;
    for (pugi::xml_node up = x.node().parent(); up && up != body; up = up.parent())
      nested = nested || Is(up, "w:txbxContent") || Is(up, "mc:Fallback");
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

// Drawings in line with the text stand side by side, as a line shows them.
void ReadInlineDrawings(pugi::xml_node body, const Sources& sources, DrawingList& list) {
  Map inLine;
  for (pugi::xml_node drawing : DrawingsOf(body, "wp:inline")) {
    ReadGraphic(GraphicOf(drawing), inLine, sources, list);
    inLine.tx += Emu(drawing.child("wp:extent"), "cx");
  }
}

std::u16string NameOf(pugi::xml_node anchor) {
  return FromUtf8(anchor.child("wp:docPr").attribute("name").value());
}

}  // namespace

std::optional<DrawingList> ReadDrawingList(const std::string& path,
                                           const std::vector<std::u16string>& names) {
  const Sources sources(path);
  pugi::xml_document xml;
  if (!Load(sources.Body(), xml)) return std::nullopt;
  pugi::xml_node body = xml.document_element().child("w:body");
  if (!body) return std::nullopt;
  DrawingList list;
  for (pugi::xml_node anchor : DrawingsOf(body, "wp:anchor")) {
    if (!names.empty() && std::find(names.begin(), names.end(), NameOf(anchor)) == names.end())
      continue;
    list.names.push_back(NameOf(anchor));
    Map page;
    page.tx = anchor.child("wp:positionH").child("wp:posOffset").text().as_double() / kEmuPerPoint;
    page.ty = anchor.child("wp:positionV").child("wp:posOffset").text().as_double() / kEmuPerPoint;
    ReadGraphic(GraphicOf(anchor), page, sources, list);
  }
  if (list.items.empty() && names.empty()) ReadInlineDrawings(body, sources, list);
  if (list.items.empty() && names.empty()) {
    Item text;
    text.kind = Item::kText;
    text.stroke.visible = false;
    text.insetLeft = text.insetTop = text.insetBottom = 0;
    text.lines = ReadParagraphs(body);
    if (!text.lines.empty()) list.items.push_back(text);
    return list;
  }
  Normalise(list);
  return list;
}

}  // namespace lp::gallery
