#pragma once
// Sampling a function into curve pieces: the scan that cuts a curve where it
// leaves the view or fails, and the node arrays of one piece.

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "graph/canvas.h"
#include "graph/items.h"

namespace lp::graph {

// Values at many points at once; NaN where the function fails there.
using Sampler = std::function<void(std::span<const double> xs, std::span<double> values)>;

// A typed expression in x, compiled once; x passes through its text form
// as the script evaluator receives it. Raises EvalError for a text that is
// no expression.
Sampler ExpressionSampler(const std::u16string& normalised);

struct Segment {
  double start = 0, end = 0;
  bool started = false, ended = false;
};

// The sampling step and the node count of one piece, a count of the form
// 3n+1 that a Bezier chain takes.
struct NodePlan {
  double step = 0.5;
  int count = 0;
};
NodePlan PrepareNodes(double from, double to);

// Walks x from rxmin by 0.01 and returns the stretches where consecutive
// points stay inside the view without failing. roundEnds passes the ends
// through "#.##", as y = f(x) curves store them.
std::vector<Segment> ScanSegments(const Sampler& f, double rxmin, double rxmax, const View& view,
                                  bool roundEnds);

// The nodes of one piece, each coordinate through "#.###"; swapAxes makes
// rows (f(t), t) for x = f(y). Empty when the piece is too short to draw.
std::vector<WorldPoint> SampleNodes(const Sampler& f, double start, double end,
                                    bool swapAxes = false);

// Val(Format(v, "#.###")): the rounding every node goes through.
double Round3(double v);

}  // namespace lp::graph
