#pragma once
// The shapes of a number line: the axis with its ticks, and one interval
// above it, each shape named for the figure as it is made.

#include <string>
#include <vector>

#include "figures/interval_form.h"

namespace lp {

// Where an interval stands: its kind, its ends as values and as the
// normalised texts the labels show, its height and colour.
struct IntervalSpec {
  IntervalKind kind = kNoKind;
  double a = 0, b = 0;
  std::u16string TextA, TextB;
  int16_t h = 10;
  long colour = 0;
  bool chkKD = false;
};

// The axis, the 0 and 1 ticks, and the other ticks by tickMode ("auto", or
// the entries of numberList for anything else).
void DrawAxis(Session& session, const IntervalState& state, bool noX,
              const std::u16string& tickMode, const std::u16string& numberList);

void DrawInterval(Session& session, const IntervalState& state, const IntervalSpec& interval);

// Whether a label entry is set as a formula (an EQ field) instead of plain text.
bool IsFormulaEntry(const std::u16string& entry);

}  // namespace lp
