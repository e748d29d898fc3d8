#pragma once
// Lettered points: a small filled dot with its name in italic Times New Roman
// beside it, one point at the figure origin or a row of points spread evenly
// along a segment drawn from there to the right.

#include <string>
#include <vector>

#include "figures/shape_list.h"

namespace lp::figures {

// Where a name stands from its dot: the eight directions of the compass.
enum class LabelPlace {
  kAbove,
  kBelow,
  kLeft,
  kRight,
  kAboveLeft,
  kAboveRight,
  kBelowLeft,
  kBelowRight
};

struct PointLabelRequest {
  bool alongSegment = false;
  std::u16string names = u"A";   // blank- or comma-separated: A, B', C1, A_2'
  std::u16string count = u"3";   // points on the segment, ends included
  std::u16string length = u"4";  // cm
  bool drawSegment = true;
  LabelPlace place = LabelPlace::kAboveLeft;
  std::u16string dx = u"0";  // points added to the name's place, right
  std::u16string dy = u"0";  // and down
  std::u16string size = u"10.5";
  float originX = 180;
  float originY = 180;
};

// A name as it is printed: primes as ′ and the subscript digits' positions.
struct PointName {
  std::u16string text;
  std::vector<long> subscripts;  // 1-based
};

// Reads "A", "B'", "C1", "A_1'", "P''"; false for anything else.
bool ParsePointName(const std::u16string& typed, PointName& name);

// The names of n points: those typed, then further ones following the last
// (A, B → C, D, …; A1, A2 → A3, …).
std::vector<std::u16string> ContinueNames(std::vector<std::u16string> typed, size_t n);

struct PointLabelFigure {
  ShapeList shapes;
  std::u16string error;  // why the input was refused; shapes then empty
};

PointLabelFigure MakePointLabels(const PointLabelRequest& request);

}  // namespace lp::figures
