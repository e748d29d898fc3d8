#pragma once
// Small pieces of answer and figure text: the phase of a sine curve as a
// fraction of pi, Chinese font size names, and the range question of the
// graph tools.

#include <string>

#include "runtime/prompt.h"

namespace lp {

// (t1 + t2) / t3 in the answer notation, "@p" standing for pi:
// ("pi", "0", "2") is "(@p)/2". A "pi" inside a numerator counts as the
// digit 1 once it is noted ("2pi" reads 21).
std::u16string PiFractionText(const std::u16string& t1, const std::u16string& t2,
                              const std::u16string& t3);

// A number as it stands ("12"), else a size name ("五号" is 10.5); 0 when
// neither.
float FontSizeToPoints(const std::u16string& text);

struct Extents {
  double xmin = 0, xmax = 0, ymin = 0, ymax = 0;
};

// When the curve's extents reach beyond the axes, asks the teacher whether
// to go on; true when the teacher cancels.
bool CurveExceedsAxes(const Extents& axes, const Extents& curve, Prompt& prompt);
// The same tests without asking: true when the curve reaches beyond.
bool CurveOutsideAxes(const Extents& axes, const Extents& curve);

}  // namespace lp
