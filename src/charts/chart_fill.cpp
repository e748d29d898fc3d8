#include "charts/chart_fill.h"

#include <chrono>
#include <memory>
#include <random>

#include "runtime/convert.h"

namespace lp::charts {

Random ClockRandom() {
  auto ticks = std::chrono::high_resolution_clock::now().time_since_epoch().count();
  auto generator = std::make_shared<std::mt19937>(static_cast<unsigned>(ticks));
  return [generator] { return std::uniform_real_distribution<double>(0.0, 1.0)(*generator); };
}

void FillRandomColour(figures::FigureShape& shape, const Random& rnd) {
  auto part = [&rnd] { return static_cast<long>(Int(255 * rnd())); };
  long r = part();
  long g = part();
  long b = part();
  shape.fill = figures::FillKind::kColor;
  shape.rgb = r | (g << 8) | (b << 16);
}

void FillPattern(figures::FigureShape& shape, long pattern) {
  shape.fill = figures::FillKind::kPattern;
  shape.rgb = 0;
  shape.pattern = pattern;
}

long RandomPattern(const Random& rnd) {
  return static_cast<long>(Int(34 * rnd() + 14));
}

}  // namespace lp::charts
