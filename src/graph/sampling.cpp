#include "graph/sampling.h"

#include <cmath>
#include <memory>

#include "runtime/convert.h"
#include "toolkit/expression.h"

namespace lp::graph {

Sampler ExpressionSampler(const std::u16string& normalised) {
  auto compiled = std::make_shared<CompiledExpression>(normalised);
  return [compiled](std::span<const double> xs, std::span<double> values) {
    std::vector<double> through(xs.size());
    for (size_t i = 0; i < xs.size(); ++i) through[i] = XThroughText(xs[i]);
    compiled->EvaluateMany(through, values);
  };
}

double Round3(double v) {
  // Away from a half and from large values the text's rounding is plain
  // rounding to the nearest thousandth, and a whole number of thousandths
  // divided by 1000 is the double the text reads back as.
  double scaled = v * 1000, whole = std::floor(scaled), fraction = scaled - whole;
  if (std::fabs(v) < 1e5 && std::fabs(fraction - 0.5) > 1e-6)
    return (fraction > 0.5 ? whole + 1 : whole) / 1000;
  return Val(Format(v, u"#.###"));
}

NodePlan PrepareNodes(double from, double to) {
  NodePlan plan;
  plan.count = static_cast<int>(Int((to - from) / plan.step));
  while (plan.count < 501) {
    if (plan.step < 0.08) break;
    plan.step -= 0.05;
    plan.count = static_cast<int>(Int((to - from) / plan.step));
  }
  if (plan.count % 3 == 0) plan.count += 1;
  if (plan.count % 3 == 2) plan.count += 2;
  return plan;
}

std::vector<Segment> ScanSegments(const Sampler& f, double rxmin, double rxmax, const View& view,
                                  bool roundEnds) {
  std::vector<double> xs{rxmin};
  for (double x = rxmin + 0.01; x <= rxmax; x += 0.01) xs.push_back(x);
  std::vector<double> ys(xs.size());
  f(xs, ys);

  std::vector<Segment> segments(1);
  // A failed evaluation leaves y as it was, as the script's error path does.
  double y0 = std::isnan(ys[0]) ? 0 : ys[0];
  WorldPoint previous{xs[0], y0};
  for (size_t i = 1; i < xs.size(); ++i) {
    bool failed = std::isnan(ys[i]);
    WorldPoint current{xs[i], failed ? previous.y : ys[i]};
    Segment& s = segments.back();
    if (!failed && !OutsideView(view, previous, current)) {
      if (!s.started) {
        s.start = previous.x;
        s.started = true;
      }
    } else if (s.started && !s.ended) {
      s.end = previous.x;
      s.ended = true;
      segments.emplace_back();
    }
    previous = current;
  }
  if (!segments.back().started) {
    segments.pop_back();
  } else if (!segments.back().ended) {
    segments.back().end = previous.x;
    segments.back().ended = true;
  }
  if (roundEnds) {
    for (Segment& s : segments) {
      s.start = Val(Format(s.start, u"#.##"));
      s.end = Val(Format(s.end, u"#.##"));
    }
  }
  return segments;
}

std::vector<WorldPoint> SampleNodes(const Sampler& f, double start, double end, bool swapAxes) {
  NodePlan plan = PrepareNodes(start, end);
  if (plan.count < 2) return {};
  std::vector<double> ts;
  ts.reserve(plan.count);
  for (double t = start; t <= end && static_cast<int>(ts.size()) < plan.count; t += plan.step) {
    t = Round3(t);
    ts.push_back(t);
  }
  // The rows the walk left over end exactly on the piece's end.
  size_t walked = ts.size();
  size_t left = plan.count - walked;
  for (size_t k = 0; k < left; ++k) {
    bool beforeLast = left == 2 && k == 0;
    ts.push_back(beforeLast ? end - plan.step : end);
  }
  std::vector<double> values(ts.size());
  f(ts, values);
  std::vector<WorldPoint> nodes(ts.size());
  double last = 0;
  for (size_t i = 0; i < ts.size(); ++i) {
    if (!std::isnan(values[i])) last = Round3(values[i]);
    nodes[i] = swapAxes ? WorldPoint{last, ts[i]} : WorldPoint{ts[i], last};
  }
  return nodes;
}

}  // namespace lp::graph
