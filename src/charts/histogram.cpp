#include "charts/histogram.h"

#include <algorithm>
#include <charconv>
#include <set>

#include "runtime/convert.h"
#include "runtime/error.h"
#include "runtime/text.h"

namespace lp::charts {
namespace {

using figures::FigureShape;
using figures::Point;

constexpr double kPointsPerCm = 28.4;
constexpr float kLabelHeight = 16.2f;

// A single-precision value as the runtime shows it: its shortest decimal
// form, so that 0.1 stays 0.1 and not 0.100000001490116.
double ShownSingle(float value) {
  char text[32];
  auto end = std::to_chars(text, text + sizeof text, value).ptr;
  double shown = 0;
  std::from_chars(text, end, shown);
  return shown;
}

std::u16string Number(double value) {
  return Trim(Str(value));
}

struct Chart {
  Chart(const HistogramRequest& request, HistogramData data) : r(request), d(std::move(data)) {}

  const HistogramRequest& r;
  HistogramData d;
  double W = 0, H = 0, classWidth = 0, firstValue = 0;
  double S = 0, T = 0, t = 0, w = 0, pad = 0, D = 0, offset = 0;
  int n = 0;
  std::set<int16_t> marked;  // values whose mark stands already
  figures::ShapeList shapes;

  double X(double x) const { return r.originX + x; }
  double Y(double v) const {
    if (S == 0) throw RuntimeError(kDivisionByZero);
    return r.originY - (v / S) * t;
  }
  double Col(int i) const { return D * (i - 1) / n; }
  bool Histogram() const { return r.type != ChartType::kBar; }

  void Add(FigureShape shape) { shapes.push_back(std::move(shape)); }
  void AddLine(std::u16string name, double x1, double y1, double x2, double y2) {
    Add(figures::Line(std::move(name), static_cast<float>(x1), static_cast<float>(y1),
                      static_cast<float>(x2), static_cast<float>(y2)));
  }
  void AddDashed(std::u16string name, double x1, double y1, double x2, double y2) {
    AddLine(std::move(name), x1, y1, x2, y2);
    shapes.back().dashed = true;
  }
  void AddLabel(std::u16string name, std::u16string text, double left, double top, double width,
                double height) {
    Add(figures::Label(std::move(name), std::move(text), static_cast<float>(left),
                       static_cast<float>(top), static_cast<float>(width),
                       static_cast<float>(height)));
  }
  void AddFreeform(std::u16string name, std::vector<Point> points) {
    FigureShape shape = figures::Line(std::move(name), 0, 0, 0, 0);
    shape.kind = figures::ShapeKind::kFreeform;
    shape.points = std::move(points);
    Add(std::move(shape));
  }
  Point P(double x, double y) const { return {static_cast<float>(X(x)), static_cast<float>(y)}; }
};

void LayOut(Chart& c) {
  const double oy = c.r.originY;
  c.T = c.r.fixedYScale ? ShownSingle(CSng(Val(c.r.yEnd))) : c.d.maxValue;
  if (c.S == 0) throw RuntimeError(kDivisionByZero);
  if (!c.r.framed) {
    c.w = Int(c.W / (c.n + 2));
    c.pad = c.w;
    c.t = c.H / (c.T / c.S + 1);
  } else {
    c.w = Int(c.W / (c.n + 3));
    c.pad = c.r.type == ChartType::kFrequency ? 2 * c.w : c.w;
    c.t = c.H / (c.T / c.S + 2);
    double right = c.W - c.w / 2;
    c.AddFreeform(u"外框", {c.P(0, oy - c.H + c.t), c.P(right, oy - c.H + c.t), c.P(right, oy)});
  }
  c.D = c.W - c.w - c.pad;
  c.offset = c.firstValue == 0 ? 0 : c.w;
}

void FixedYScale(Chart& c) {
  float start = CSng(Val(c.r.yStart));
  float end = CSng(Val(c.r.yEnd));
  float step = CSng(Val(c.r.yStep));
  for (float v = start; v <= end; v += step) {
    std::u16string text = Number(ShownSingle(v));
    double y = c.Y(ShownSingle(v));
    c.AddDashed(u"柱状图刻度线y" + text, c.X(0), y, c.X(c.W - c.w / 2), y);
    double len = Len(text);
    c.AddLabel(u"刻度文字y" + text, text, c.X(-len * 6), y - 8, len * 7 * 1.2, kLabelHeight);
  }
}

void Axes(Chart& c) {
  const double oy = c.r.originY;
  const double w = c.w;
  if (c.r.brokenAxis) {
    c.AddFreeform(u"x轴折线部分", {c.P(0, oy), c.P(3 * w / 8, oy), c.P(7 * w / 16, oy - 5),
                                   c.P(9 * w / 16, oy + 5), c.P(5 * w / 8, oy), c.P(w, oy)});
    c.AddLine(u"x轴", c.X(w), oy, c.X(c.W), oy);
  } else {
    c.AddLine(u"x轴", c.X(0), oy, c.X(c.W), oy);
  }
  c.shapes.back().axisArrows = true;
  c.AddLine(u"y轴", c.X(0), oy, c.X(0), oy - c.H);
  c.shapes.back().axisArrows = true;
}

void Column(Chart& c, int i, int16_t value, const Random& rnd) {
  const double left = c.X(c.Col(i) + c.offset);
  const double height = (value / c.S) * c.t;
  const double top = c.r.originY - height;
  const std::u16string index = Number(i);
  if (c.Histogram()) {
    c.Add(figures::Rectangle(u"柱状图" + index, static_cast<float>(left), static_cast<float>(top),
                             static_cast<float>(c.D / c.n), static_cast<float>(height)));
  } else {
    c.Add(figures::Rectangle(u"条形图" + index, static_cast<float>(left), static_cast<float>(top),
                             static_cast<float>(c.D / c.n - c.w / 3), static_cast<float>(height)));
  }
  if (c.r.fill) {
    FigureShape& column = c.shapes.back();
    if (!c.r.shading)
      FillRandomColour(column, rnd);
    else
      FillPattern(column, c.r.type == ChartType::kFrequency ? RandomPattern(rnd) : 22);
  }
  if (!c.Histogram()) {
    const double oy = c.r.originY;
    double right = c.X(c.D * i / c.n + c.offset - c.w / 3);
    c.AddLine(u"条形图" + index + u"左竖线", left, oy, left, oy - 5);
    c.AddLine(u"条形图" + index + u"右竖线", right, oy, right, oy - 5);
  }
}

// The dashed line from the y axis at the height of the value, and its label.
// A value marked already is not marked again: two equal labels on one spot
// print as one smudged label.
void ValueMark(Chart& c, int i, int16_t value) {
  if (!c.marked.insert(value).second) return;
  const double y = c.Y(value);
  const std::u16string text = Number(value);
  if (!c.r.framed) {
    double end = c.Col(i) + c.w;
    if (c.r.type == ChartType::kBar && c.firstValue == 0) end = c.Col(i);
    c.AddDashed(u"柱状图刻度线y" + text, c.X(0), y, c.X(end), y);
  } else {
    double level = c.d.maxValue - c.S * i;
    c.AddDashed(u"柱状图刻度线y" + Number(level), c.X(0), y, c.X(c.W - c.w / 2), y);
  }
  if (c.r.type == ChartType::kRelativeFrequency) {
    double denominator = static_cast<double>(c.d.total) * c.classWidth;
    if (denominator == 0) throw RuntimeError(kDivisionByZero);
    std::u16string pattern = u"0." + std::u16string(CInt(Val(c.r.decimals)), u'0');
    std::u16string share = Format(value / denominator, pattern);
    double len = Len(share);
    c.AddLabel(u"频率/组距y" + Str(i), share, c.X(-len * 5), y - 8, len * 7 * 1.8 - 3,
               kLabelHeight);
  } else {
    double len = Len(text);
    c.AddLabel(u"频数文字y" + text, text, c.X(-len * 6), y - 8, len * 7 * 1.2, kLabelHeight);
  }
}

// The class boundary under column i: centred on the boundary in a histogram,
// starting at the column in a bar chart.
void ClassLabel(Chart& c, int i) {
  std::u16string text = Number((i - 1) * c.classWidth + c.firstValue);
  double len = Len(text);
  double left = c.Histogram() ? c.X(-len * 2.5 + c.Col(i) + c.offset) : c.X(c.Col(i) + c.offset);
  c.AddLabel(u"样本文字x" + Number(i), text, left, c.r.originY, len * 7 * 1.2, kLabelHeight);
}

void Captions(Chart& c) {
  const double oy = c.r.originY;
  const std::u16string& y = c.r.captionY;
  if (c.r.type != ChartType::kRelativeFrequency) {
    c.AddLabel(u"频数文字标注", y, c.X(5), oy - c.H - 9, Len(y) * 7 * 1.8, kLabelHeight);
  } else {
    c.AddLabel(u"频率/组距文字标注", y, c.X(5), oy - c.H - 10, 25, 40);
    if (y == kRelativeFrequencyCaption) {
      c.shapes.back().text = kRelativeFrequencyField;
      c.shapes.back().textIsEqField = true;
    }
  }
  const std::u16string& x = c.r.captionX;
  c.AddLabel(u"样本文字标注", x, c.X(c.W - 5), oy + 2, Len(x) * 7 * 1.8, 15);
}

bool YScaleValid(const HistogramRequest& r) {
  double start = CSng(Val(r.yStart));
  double end = CSng(Val(r.yEnd));
  double step = CSng(Val(r.yStep));
  // A step below 0 would never reach the end.
  return start * end * step != 0 && step > 0;
}

}  // namespace

HistogramData ReadHistogramData(const std::u16string& text) {
  std::u16string list = Replace(StrConvNarrow(Trim(text)), u":", u",");
  if (!list.empty() && list.back() == u',') list.pop_back();
  HistogramData d;
  for (const std::u16string& entry : Split(list, u",")) d.values.push_back(CInt(Val(entry)));
  if (d.values.empty()) throw RuntimeError(kSubscriptOutOfRange);
  d.sorted = d.values;
  std::sort(d.sorted.begin(), d.sorted.end());
  d.maxValue = d.sorted.back();
  for (int16_t v : d.values) d.total = CInt(static_cast<double>(d.total) + v);
  for (size_t i = 1; i < d.sorted.size(); ++i) {
    int gap = d.sorted[i] - d.sorted[i - 1];
    if (gap != 0 && (d.gap == 0 || d.gap > gap)) d.gap = CInt(gap);
  }
  return d;
}

ChartResult Histogram(const HistogramRequest& r, const Random& rnd) {
  if (r.fixedYScale && !YScaleValid(r)) return {{}, kYScaleRefused};
  Chart c(r, ReadHistogramData(r.data));
  c.classWidth = Val(r.classWidth);
  c.firstValue = ShownSingle(CSng(Val(r.firstValue)));
  c.W = CInt(Val(r.lengthX) * kPointsPerCm);
  c.H = CInt(Val(r.lengthY) * kPointsPerCm);
  c.n = static_cast<int>(c.d.values.size());
  c.S = r.fixedYScale ? CInt(Val(r.yStep)) : c.d.gap;
  LayOut(c);
  if (r.fixedYScale) FixedYScale(c);
  Axes(c);
  for (int i = 1; i <= c.n; ++i) {
    int16_t value = c.d.values[i - 1];
    Column(c, i, value, rnd);
    if (!r.fixedYScale) ValueMark(c, i, value);
    ClassLabel(c, i);
  }
  if (c.Histogram()) ClassLabel(c, c.n + 1);
  Captions(c);
  return {std::move(c.shapes), {}};
}

}  // namespace lp::charts
