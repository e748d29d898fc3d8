#pragma once
// The fills of chart columns and sectors: a random colour, a random pattern
// or a fixed one, drawn from the caller's random source.

#include <functional>

#include "figures/shape_list.h"

namespace lp::charts {

// A number in [0, 1), as Rnd gives after Randomize.
using Random = std::function<double()>;

// A generator seeded from the clock.
Random ClockRandom();

// RGB(Int(255 Rnd), Int(255 Rnd), Int(255 Rnd)).
void FillRandomColour(figures::FigureShape& shape, const Random& rnd);
// Black on white in the given pattern.
void FillPattern(figures::FigureShape& shape, long pattern);
// One of the patterns 14 to 47: Int(34 Rnd + 14).
long RandomPattern(const Random& rnd);

}  // namespace lp::charts
