#pragma once
// Program flow charts from typed steps, one per line, laid out top to bottom:
// start and end as terminators, processes as rectangles, questions (a line
// ending in "？" or starting with "?") as diamonds, input and output (lines
// starting with "输入" or "输出") as data shapes. A question's "是" goes on
// down; its "否" goes right, to the step written on the next line as
// "否：…", or to an end of its own; a "否" step rejoins the flow beside the
// step after the "是" step unless told not to. Steps are joined by connectors attached
// to their shapes' connection sites, with arrows.

#include <string>
#include <vector>

#include "figures/shape_list.h"

namespace lp::figures {

enum class StepKind { kTerminal, kProcess, kDecision, kInputOutput };

struct FlowStep {
  StepKind kind = StepKind::kProcess;
  std::u16string text;
  // For a decision: the step its "否" leads to, beside it.
  std::vector<FlowStep> no;
};

struct FlowChartRequest {
  std::u16string steps;         // one step per line
  bool addStartEnd = true;      // "开始" first and "结束" last unless typed
  std::u16string width = u"3";  // cm, of a process box
  bool yesNoWords = true;       // "是"/"否", else "Y"/"N"
  // A "否" step comes back beside the step after the "是" step (if-else);
  // else its branch ends there.
  bool joinNo = true;
  float originX = 180;
  float originY = 180;
};

struct FlowChartFigure {
  ShapeList shapes;
  std::u16string error;  // why the steps were refused; shapes then empty
};

// The steps as read, or the message saying what is wrong with them.
struct FlowSteps {
  std::vector<FlowStep> steps;
  std::u16string error;
};
FlowSteps ReadFlowSteps(const std::u16string& typed, bool addStartEnd);

FlowChartFigure MakeFlowChart(const FlowChartRequest& request);

}  // namespace lp::figures
