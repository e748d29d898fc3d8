#include <variant>

#include "graph/axes.h"
#include "graph/drawers.h"

namespace lp::graph {

std::vector<Item> DrawLine(const LineParams& p) {
  return {LineItem{u"直线", {p.x1, p.y1}, {p.x2, p.y2}}};
}

std::vector<Item> DrawPoint(const PointParams& p, Labels& labels) {
  std::vector<Item> items{DotItem{u"点", {p.x, p.y}}};
  if (p.labelled) items.push_back(LabelItem{p.letter + u"点标注", p.letter, {p.x, p.y}, 1.2f, -10});
  if (!p.pointOnly) {
    items.push_back(LineItem{u"标示横坐标的虚线", {p.x, 0}, {p.x, p.y}, true});
    items.push_back(LineItem{u"标示纵坐标的虚线", {0, p.y}, {p.x, p.y}, true});
    labels.x.push_back({static_cast<float>(p.x), NumberLabel(p.x), u"point_x"});
    labels.y.push_back({static_cast<float>(p.y), NumberLabel(p.y), u"point_y"});
  }
  return items;
}

namespace {
template <class... Ts>
struct Overloaded : Ts... {
  using Ts::operator()...;
};
}  // namespace

DrawnObject DrawObject(const GraphObject& object, const View& view, Labels& labels) {
  DrawnObject drawn{object.look, {}};
  drawn.items = std::visit(
      Overloaded{
          [](const AnyParams& p) { return DrawAny(p); },
          [&](const PowerParams& p) { return DrawPower(p, view); },
          [](const ExponentParams& p) { return DrawExponent(p); },
          [](const LogParams& p) { return DrawLog(p); },
          [](const ReciprocalParams& p) { return DrawReciprocal(p); },
          [&](const TrigParams& p) { return DrawTrig(p, labels); },
          [](const LineParams& p) { return DrawLine(p); },
          [](const CircleParams& p) { return DrawCircle(p); },
          [](const ConicParams& p) { return p.hyperbola ? DrawHyperbola(p) : DrawEllipse(p); },
          [](const ParabolaParams& p) { return DrawParabola(p); },
          [&](const PointParams& p) { return DrawPoint(p, labels); },
      },
      object.params);
  return drawn;
}

}  // namespace lp::graph
