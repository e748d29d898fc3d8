#pragma once
// Graphs that open again: an inserted group carries its session as text in
// its alternative text; functiongraph over such a selected group reopens the
// dialog with that graph, and inserting replaces the group in place.

#include <optional>
#include <string>

#include "graph/axes.h"
#include "graph/session.h"
#include "session/session.h"

namespace lp::graph {

// The list, the look of every object, its typed texts and the view, as text.
std::u16string SaveGraph(const GraphSession& graph);
// Rebuilds a session from saved text; false (and the session untouched) for
// a text that is no saved graph. Objects whose texts no longer read drop out.
bool RestoreGraph(const std::u16string& text, GraphSession& graph);

// Where an inserted graph stands.
struct PlacedGraph {
  std::u16string name;
  float left = 0, top = 0;
};

// The graph group selected in the document, restored into graph; nothing
// when the selection holds no saved graph.
std::optional<PlacedGraph> SelectedGraph(Session& session, GraphSession& graph);

// Inserts the graph as one group at the caret, or where the group it
// replaces stands, deleting that one; the group carries the saved graph.
PlacedGraph InsertGraph(Session& session, const GraphSession& graph,
                        const std::optional<PlacedGraph>& replacing);

}  // namespace lp::graph
