#pragma once
// The scene as Word shapes: every item named, styled and placed on the page
// through the page transform, the tick labels last, the whole figure one
// named group at the caret.

#include "graph/axes.h"
#include "graph/scene.h"
#include "session/session.h"

namespace lp::graph {

// The axis options of the settings store.
AxisOptions SessionAxisOptions(const Session& session);

// Draws the scene and closes the figure; the shape names of the figure are
// emptied afterwards. Word failures inside one shape skip that shape.
void InsertScene(Session& session, const Scene& scene, const View& view);

}  // namespace lp::graph
