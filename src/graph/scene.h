#pragma once
// The whole list drawn in world terms, in list order, with the tick labels
// collected last: what the preview paints and the Word drawer inserts.

#include <variant>
#include <vector>

#include "graph/axes.h"
#include "graph/session.h"

namespace lp::graph {

using SceneEntry = std::variant<AxesDrawing, DrawnObject>;

struct Scene {
  std::vector<SceneEntry> entries;
  TickLabels labels;
};

Scene BuildScene(const GraphSession& session, const AxisOptions& options);

}  // namespace lp::graph
