#include "graph/scene.h"

#include "graph/drawers.h"

namespace lp::graph {

Scene BuildScene(const GraphSession& session, const AxisOptions& options) {
  Scene scene;
  Labels labels;
  for (const std::u16string& line : session.List()) {
    if (line == kAxesLine) {
      scene.entries.push_back(DrawAxes(session.Axes(), options, labels.x, labels.y));
    } else if (line == kGridLine) {
      scene.entries.push_back(DrawGrid(session.Range(), session.Grid()));
    } else if (const GraphObject* object = session.Record(ParseListLine(line))) {
      scene.entries.push_back(DrawObject(*object, session.Range(), labels));
    }
  }
  scene.labels = CollectTickLabels(std::move(labels.x), std::move(labels.y));
  return scene;
}

}  // namespace lp::graph
