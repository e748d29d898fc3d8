#pragma once
// What a graph object turns into: plain values in world units that both the
// preview and the Word drawer paint, so the two never disagree. Sizes that
// belong to one canvas only (arrow heads, dot sizes, label boxes) are left
// to that canvas; an item says where and what, not how big in points.

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace lp::graph {

struct WorldPoint {
  double x = 0;
  double y = 0;
};

// How a curve, line or conic is drawn: the raw values of cmbStyle, cmbWidth
// and labColor.
struct Look {
  int16_t style = 1;
  float weight = 0.75f;
  long color = 0;  // RGB as Word takes it: red in the low byte
};

// 3n+1 nodes of a Bezier chain, every row already rounded as the sampler
// rounds it.
struct CurveItem {
  std::u16string prefix;
  std::vector<WorldPoint> nodes;
};

struct LineItem {
  std::u16string prefix;
  WorldPoint from, to;
  bool dashed = false;  // projection lines of a point: always dashed
};

struct OvalItem {
  std::u16string prefix;
  WorldPoint centre;
  double rx = 0, ry = 0;
};

// A small round mark. On the page its box is offset from the point by
// (offsetX, offsetY) points; most dots are centred (-1.2, -1.2), a few
// keep other offsets on purpose.
struct DotItem {
  std::u16string prefix;
  WorldPoint at;
  float offsetX = -1.2f;
  float offsetY = -1.2f;
};

// A letter beside a point: on the page a 15 by 15 box at the point plus
// (offsetX, offsetY) points.
struct LabelItem {
  std::u16string prefix;
  std::u16string text;
  WorldPoint at;
  float offsetX = 0;
  float offsetY = 0;
};

using Item = std::variant<CurveItem, LineItem, OvalItem, DotItem, LabelItem>;

// One object of the list, drawn: its items in drawing order and its look.
struct DrawnObject {
  Look look;
  std::vector<Item> items;
};

// A tick label offered by an object: world position, text, who added it.
struct Tick {
  float value = 0;
  std::u16string text;
  std::u16string source;
};

}  // namespace lp::graph
