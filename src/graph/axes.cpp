#include "graph/axes.h"

#include <algorithm>
#include <cmath>

#include "runtime/convert.h"
#include "runtime/text.h"
#include "toolkit/normalise.h"

namespace lp::graph {

double TickStep(const View& view, bool autoKD) {
  if (!autoKD) return 1;
  double step = Int((view.xmax - view.xmin) / 10);
  return step == 0 ? 1 : step;
}

std::vector<double> TickPositions(double from, double to, double step) {
  std::vector<double> positions;
  for (double k = std::floor(from / step) + 1; k * step < to; ++k)
    if (k != 0) positions.push_back(k * step);
  return positions;
}

std::u16string NumberLabel(double value) {
  std::u16string text = Trim(Format(value, u"0.00"));
  if (InStr(text, u".") > 0) {
    while (!text.empty() && text.back() == u'0') text.pop_back();
    if (!text.empty() && text.back() == u'.') text.pop_back();
  }
  return text == u"-0" ? u"0" : text;
}

AxesDrawing DrawAxes(const AxesRecord& zbx, const AxisOptions& options, std::vector<Tick>& xLabels,
                     std::vector<Tick>& yLabels) {
  AxesDrawing axes{zbx.range, zbx.look, {}, {}};
  if (!zbx.drawScale) return axes;
  double step = TickStep(zbx.range, options.autoKD);
  axes.xTicks = TickPositions(zbx.range.xmin, zbx.range.xmax, step);
  axes.yTicks = TickPositions(zbx.range.ymin, zbx.range.ymax, step);
  for (double x : axes.xTicks) xLabels.push_back({static_cast<float>(x), NumberLabel(x), u"zbx"});
  for (double y : axes.yTicks) yLabels.push_back({static_cast<float>(y), NumberLabel(y), u"zbx"});
  return axes;
}

DrawnObject DrawGrid(const View& view, const Look& look) {
  DrawnObject grid{look, {}};
  double step = TickStep(view, true);
  for (double y : TickPositions(view.ymin, view.ymax, step))
    grid.items.push_back(
        LineItem{u"坐标网格线y=" + NumberLabel(y), {view.xmin, y}, {view.xmax, y}});
  for (double x : TickPositions(view.xmin, view.xmax, step))
    grid.items.push_back(
        LineItem{u"坐标网格线x=" + NumberLabel(x), {x, view.ymin}, {x, view.ymax}});
  return grid;
}

namespace {

// Axis numbers closer than this to an object's own label would print over it.
constexpr float kCrowded = 0.35f;

std::vector<Tick> Survivors(std::vector<Tick> ticks) {
  std::erase_if(ticks, [](const Tick& t) { return t.value == 0; });
  std::stable_sort(ticks.begin(), ticks.end(),
                   [](const Tick& a, const Tick& b) { return a.value < b.value; });
  std::vector<Tick> kept;
  for (size_t i = 0; i < ticks.size(); ++i) {
    bool sameAsBefore = i > 0 && ticks[i].value == ticks[i - 1].value;
    if (!sameAsBefore || HasFormulaSymbols(ticks[i].text)) kept.push_back(ticks[i]);
  }
  auto crowded = [&kept](const Tick& t) {
    if (t.source != u"zbx") return false;
    return std::any_of(kept.begin(), kept.end(), [&t](const Tick& other) {
      return other.source != u"zbx" && std::fabs(other.value - t.value) < kCrowded;
    });
  };
  std::erase_if(kept, crowded);
  return kept;
}

void Split(const std::vector<Tick>& ticks, std::vector<Tick>& plain, std::vector<Tick>& formula) {
  for (const Tick& t : ticks) (HasFormulaSymbols(t.text) ? formula : plain).push_back(t);
}

std::vector<Tick> ThinAxisNumbers(const std::vector<Tick>& plain, const std::vector<Tick>& formula,
                                  double minGap) {
  std::vector<float> taken{0};
  for (const std::vector<Tick>* ticks : {&plain, &formula})
    for (const Tick& t : *ticks)
      if (t.source != u"zbx") taken.push_back(t.value);
  std::vector<Tick> numbers;
  for (const Tick& t : plain)
    if (t.source == u"zbx") numbers.push_back(t);
  std::stable_sort(numbers.begin(), numbers.end(), [](const Tick& a, const Tick& b) {
    return std::fabs(a.value) < std::fabs(b.value);
  });
  std::vector<Tick> kept;
  for (const Tick& t : plain)
    if (t.source != u"zbx") kept.push_back(t);
  for (const Tick& t : numbers) {
    bool clear = std::all_of(taken.begin(), taken.end(),
                             [&](float at) { return std::fabs(at - t.value) >= minGap; });
    if (!clear) continue;
    taken.push_back(t.value);
    kept.push_back(t);
  }
  std::stable_sort(kept.begin(), kept.end(),
                   [](const Tick& a, const Tick& b) { return a.value < b.value; });
  return kept;
}

}  // namespace

TickLabels Thinned(const TickLabels& labels, double minGap) {
  TickLabels thin = labels;
  thin.plainX = ThinAxisNumbers(labels.plainX, labels.formulaX, minGap);
  thin.plainY = ThinAxisNumbers(labels.plainY, labels.formulaY, minGap);
  return thin;
}

TickLabels CollectTickLabels(std::vector<Tick> xLabels, std::vector<Tick> yLabels) {
  TickLabels labels;
  Split(Survivors(std::move(xLabels)), labels.plainX, labels.formulaX);
  Split(Survivors(std::move(yLabels)), labels.plainY, labels.formulaY);
  return labels;
}

}  // namespace lp::graph
