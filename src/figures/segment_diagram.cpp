#include "figures/segment_diagram.h"

#include "runtime/convert.h"
#include "runtime/error.h"
#include "runtime/text.h"

namespace lp::figures {
namespace {

constexpr double kPointsPerCm = 28.4;
constexpr double kPointsPerMm = 2.84;

std::u16string Numbered(const std::u16string& base, int number) {
  return base + Trim(Str(number));
}

// A tick of height h standing on the bar at x.
FigureShape Tick(int number, double x, const SegmentRequest& r, int16_t h) {
  auto at = static_cast<float>(x);
  return Line(Numbered(u"线段竖线", number), at, r.originY - h, at, r.originY);
}

FigureShape Piece(int number, double from, double to, const SegmentRequest& r) {
  return Line(Numbered(u"线段横线", number), static_cast<float>(from), r.originY,
              static_cast<float>(to), r.originY);
}

// The bar is cut where the pieces add up, in units of the whole length over
// the rounded sum: pieces that are not whole leave the bar short of its length.
ShapeList ByRatio(const SegmentRequest& r, int16_t h) {
  std::vector<float> pieces = SplitRatio(r.ratio);
  if (pieces.empty()) return {};
  int16_t sum = RatioSum(pieces);
  if (sum == 0) throw RuntimeError(kDivisionByZero);
  double u = Val(r.length) * kPointsPerCm / sum;
  ShapeList shapes{Tick(1, r.originX, r, h)};
  double c = 0;
  for (size_t i = 0; i < pieces.size(); ++i) {
    c += pieces[i];
    int index = static_cast<int>(i);
    shapes.push_back(Tick(index + 2, u * c + r.originX, r, h));
    shapes.push_back(Piece(index + 1, u * (c - pieces[i]) + r.originX, u * c + r.originX, r));
  }
  return shapes;
}

ShapeList EqualParts(const SegmentRequest& r, int16_t h) {
  int16_t n = CInt(Val(r.parts));
  if (n <= 0) return {};
  double u = Val(r.length) * kPointsPerCm / n;
  ShapeList shapes;
  for (int i = 1; i <= n; ++i) {
    shapes.push_back(Tick(i, (i - 1) * u + r.originX, r, h));
    shapes.push_back(Piece(i, (i - 1) * u + r.originX, i * u + r.originX, r));
  }
  shapes.push_back(Tick(n + 1, n * u + r.originX, r, h));
  return shapes;
}

}  // namespace

std::vector<float> SplitRatio(const std::u16string& ratio) {
  std::u16string text = StrConvNarrow(ratio);
  if (InStr(text, u":") == 0) return {};
  std::vector<float> pieces;
  for (const std::u16string& piece : Split(text, u":")) pieces.push_back(CSng(Val(piece)));
  return pieces;
}

int16_t RatioSum(const std::vector<float>& pieces) {
  int16_t sum = 0;
  for (float p : pieces) sum = CInt(static_cast<double>(sum) + p);
  return sum;
}

ShapeList SegmentDiagram(const SegmentRequest& r) {
  int16_t h = CInt(Val(r.height) * kPointsPerMm);
  return r.equalParts ? EqualParts(r, h) : ByRatio(r, h);
}

}  // namespace lp::figures
