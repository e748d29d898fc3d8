#include "word/docx/drawing/z_order.h"

#include <algorithm>
#include <vector>

#include "word/docx/drawing/anchor.h"
#include "word/docx/host/xml_order.h"
#include "word/errors.h"

namespace word::docx::drawing {

namespace {

// Word numbers its shapes upwards from here, a step apart.
constexpr unsigned kFirstHeight = 251658240;
constexpr unsigned kStep = 1024;

const Order kAnchorOrder = {
    "wp:simplePos", "wp:positionH",         "wp:positionV", "wp:extent",      "wp:effectExtent",
    "wp:wrapNone",  "wp:wrapSquare",        "wp:wrapTight", "wp:wrapThrough", "wp:wrapTopAndBottom",
    "wp:docPr",     "wp:cNvGraphicFramePr", "a:graphic"};
const Order kWraps = {"wp:wrapNone", "wp:wrapSquare", "wp:wrapTight", "wp:wrapThrough",
                      "wp:wrapTopAndBottom"};

unsigned HeightOf(pugi::xml_node anchor) {
  return anchor.attribute("relativeHeight").as_uint();
}
void SetHeight(pugi::xml_node anchor, unsigned height) {
  SetAttr(anchor, "relativeHeight", static_cast<long long>(height));
}

// The other anchor whose height is nearest above (up) or below this one's.
pugi::xml_node Neighbour(const std::vector<pugi::xml_node>& anchors, pugi::xml_node anchor,
                         bool up) {
  pugi::xml_node best;
  const unsigned own = HeightOf(anchor);
  for (pugi::xml_node other : anchors) {
    if (other == anchor) continue;
    const unsigned height = HeightOf(other);
    if (up ? height <= own : height >= own) continue;
    if (!best || (up ? height < HeightOf(best) : height > HeightOf(best))) best = other;
  }
  return best;
}

void Swap(pugi::xml_node a, pugi::xml_node b) {
  const unsigned height = HeightOf(a);
  SetHeight(a, HeightOf(b));
  SetHeight(b, height);
}

void SendToBack(const std::vector<pugi::xml_node>& anchors, pugi::xml_node anchor) {
  unsigned lowest = HeightOf(anchor);
  for (pugi::xml_node other : anchors) lowest = std::min(lowest, HeightOf(other));
  if (lowest >= kStep) {
    SetHeight(anchor, lowest - kStep);
    return;
  }
  for (pugi::xml_node other : anchors) SetHeight(other, HeightOf(other) + kStep);
  SetHeight(anchor, lowest);
}

// In front of or behind the text, the text no longer flows around the shape.
void PlaceAgainstText(pugi::xml_node anchor, bool behind) {
  SetWrapType(anchor, behind ? wdWrapBehind : wdWrapNone);
}

// The polygon Word writes for a new tight or through wrap: the shape's frame,
// in its 21600-unit square.
void AddFramePolygon(pugi::xml_node wrap) {
  pugi::xml_node polygon = wrap.append_child("wp:wrapPolygon");
  polygon.append_attribute("edited") = "0";
  const int corners[][2] = {{0, 0}, {0, 21600}, {21600, 21600}, {21600, 0}, {0, 0}};
  bool first = true;
  for (const auto& corner : corners) {
    pugi::xml_node point = polygon.append_child(first ? "wp:start" : "wp:lineTo");
    point.append_attribute("x") = corner[0];
    point.append_attribute("y") = corner[1];
    first = false;
  }
}

}  // namespace

unsigned NextRelativeHeight(const pugi::xml_document& document) {
  unsigned highest = kFirstHeight;
  for (pugi::xml_node anchor : FindAnchors(document)) highest = std::max(highest, HeightOf(anchor));
  return highest + kStep;
}

void ApplyZOrder(const pugi::xml_document& document, pugi::xml_node anchor, MsoZOrderCmd command) {
  const std::vector<pugi::xml_node> anchors = FindAnchors(document);
  switch (command) {
    case msoBringToFront:
      if (Neighbour(anchors, anchor, true)) SetHeight(anchor, NextRelativeHeight(document));
      break;
    case msoSendToBack:
      if (Neighbour(anchors, anchor, false)) SendToBack(anchors, anchor);
      break;
    case msoBringForward:
    case msoSendBackward:
      if (pugi::xml_node other = Neighbour(anchors, anchor, command == msoBringForward)) {
        Swap(anchor, other);
      }
      break;
    case msoBringInFrontOfText:
      PlaceAgainstText(anchor, false);
      break;
    case msoSendBehindText:
      PlaceAgainstText(anchor, true);
      break;
  }
}

WdWrapType WrapTypeOf(pugi::xml_node anchor) {
  const pugi::xml_node wrap = FirstChildOf(anchor, kWraps);
  if (Is(wrap, "wp:wrapSquare")) return wdWrapSquare;
  if (Is(wrap, "wp:wrapTight")) return wdWrapTight;
  if (Is(wrap, "wp:wrapThrough")) return wdWrapThrough;
  if (Is(wrap, "wp:wrapTopAndBottom")) return wdWrapTopBottom;
  return anchor.attribute("behindDoc").as_bool() ? wdWrapBehind : wdWrapNone;
}

void SetWrapType(pugi::xml_node anchor, WdWrapType type) {
  const char* name = nullptr;
  switch (type) {
    case wdWrapSquare:
      name = "wp:wrapSquare";
      break;
    case wdWrapTight:
      name = "wp:wrapTight";
      break;
    case wdWrapThrough:
      name = "wp:wrapThrough";
      break;
    case wdWrapTopBottom:
      name = "wp:wrapTopAndBottom";
      break;
    case wdWrapNone:
    case wdWrapBehind:
      name = "wp:wrapNone";
      break;
    default:
      throw WrapNotSettable();
  }
  SetAttr(anchor, "behindDoc", type == wdWrapBehind ? "1" : "0");
  pugi::xml_node wrap = ReplaceChoice(anchor, kWraps, name, kAnchorOrder);
  if (type == wdWrapSquare || type == wdWrapTight || type == wdWrapThrough) {
    wrap.append_attribute("wrapText") = "bothSides";
  }
  if (type == wdWrapTight || type == wdWrapThrough) AddFramePolygon(wrap);
}

}  // namespace word::docx::drawing
