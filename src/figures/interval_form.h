#pragma once
// The number-line dialog without its widgets: the values of its controls, the
// state of the figure being drawn, and its two buttons. The dialog and the
// inequality solver (which drives the dialog unseen) both go through here.

#include <cstdint>
#include <random>
#include <string>

#include "session/session.h"

namespace lp {

// What txtNumberList shows until the teacher types ticks: at once the hint.
inline constexpr char16_t kNumberListHint[] = u"各数用半角逗号隔开（如1,2,2.3）";

// The eight interval kinds, in the order of their option buttons.
enum IntervalKind : int {
  kNoKind = -1,
  kBigThanA,
  kNoLessThanA,
  kLessThanA,
  kNoBigThanA,
  kBTaLTb,
  kNLTaLTb,
  kBTaNBTb,
  kNLTaNBTb,
};

// "BigThanA", ... : the kind's name, which also tells its solid ends.
std::u16string IntervalKindName(IntervalKind kind);
// Kinds 4 to 7 have two ends; the others leave txtB aside.
bool IsTwoEnded(IntervalKind kind);
// The option buttons by the kind they set: optBigThanA, ...
std::u16string IntervalOptionName(IntervalKind kind);

struct IntervalControls {
  std::u16string txtXmin = u"-5", txtXmax = u"5", txtLengthOfAxis = u"5";
  bool chkNumberAxisOnly = false;
  int optKD = 0;  // the tick option set: 0 "自动刻度", 1 "指定刻度"
  std::u16string txtNumberList = kNumberListHint;
  bool chkNoX = false;
  bool chkKD = false;
  IntervalKind kind = kNoKind;
  std::u16string txtA, txtB;
  bool randomColour = true;  // optColor(0); optColor(1) takes labIntervalColor
  long labIntervalColor = 0;
  // Whether Frame2 (the axis settings) still takes input.
  bool frame2Enabled = true;
  std::u16string caption = u"在数轴上表示区间（作者：林岚）";
};

struct IntervalState {
  int16_t AxisLengthPt = 0;  // L
  double XMin = 0;
  int16_t XMax = 0;
  int16_t Unit = 0;  // U
  int16_t HeightOffset = 10;
  bool AxisDrawn = false;
  std::u16string IntervalType;
  std::mt19937 random;  // seeded at the first random colour
  bool randomized = false;
};

struct IntervalForm {
  IntervalControls controls;
  IntervalState state;
};

// Form_Load: the controls as record slot 9 left them (when it holds seven
// fields), the axis length, and the axis-only rule.
IntervalForm LoadIntervalForm(Session& session);
// The axis-only rule, also run when the check box is clicked.
void ApplyAxisOnlyRule(IntervalControls& controls);

enum class IntervalClick { kRefused, kDrawn, kDrawnAndClose };

// cmdOK: validates (telling the teacher what is wrong), draws the axis once
// and then one interval per click. kDrawnAndClose after an axis-only figure:
// the dialog unloads. A text the evaluator refuses raises its error.
IntervalClick IntervalOK(IntervalForm& form, Session& session);

// Form_Unload (cmdCancel and after an axis-only figure): groups the figure,
// places it at the caret and writes the record slot. The caller ends the run.
void CloseIntervalForm(IntervalForm& form, Session& session);

// The seven fields of record slot 9, "@@"-joined.
std::u16string IntervalRecord(const IntervalControls& controls);

}  // namespace lp
