#pragma once
// Each object of the list drawn into world items, with the tick labels it
// offers. The preview and the Word drawer both paint these values.

#include <vector>

#include "graph/items.h"
#include "graph/records.h"

namespace lp::graph {

struct Labels {
  std::vector<Tick> x, y;
};

std::vector<Item> DrawAny(const AnyParams& p);
std::vector<Item> DrawPower(const PowerParams& p, const View& view);
std::vector<Item> DrawExponent(const ExponentParams& p);
std::vector<Item> DrawLog(const LogParams& p);
std::vector<Item> DrawReciprocal(const ReciprocalParams& p);
std::vector<Item> DrawTrig(const TrigParams& p, Labels& labels);
std::vector<Item> DrawCircle(const CircleParams& p);
std::vector<Item> DrawEllipse(const ConicParams& p);
std::vector<Item> DrawHyperbola(const ConicParams& p);
std::vector<Item> DrawParabola(const ParabolaParams& p);
std::vector<Item> DrawLine(const LineParams& p);
std::vector<Item> DrawPoint(const PointParams& p, Labels& labels);

// The object with its look; a record that fails to evaluate draws nothing.
DrawnObject DrawObject(const GraphObject& object, const View& view, Labels& labels);

// The sampler of a trigonometric kind: y = A f(W x + F) + K.
Sampler TrigSampler(const TrigParams& p);
// x^e for any real x where it is real: a negative base takes its sign from
// the reduced exponent n/m; NaN where no real value exists.
Sampler PowerSampler(int16_t n, int16_t m);

}  // namespace lp::graph
