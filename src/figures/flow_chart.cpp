#include "figures/flow_chart.h"

#include <algorithm>
#include <cmath>

#include "runtime/convert.h"
#include "runtime/text.h"

namespace lp::figures {
namespace {

constexpr double kPointsPerCm = 28.4;
constexpr float kFontSize = 10.5f;
constexpr float kLineHeight = 14;
constexpr float kGap = 24;      // between two steps, for the connector
constexpr float kSideGap = 40;  // between a question and its "否" step
constexpr size_t kMostSteps = 12;
constexpr size_t kLongestText = 24;

// Connection sites as Word numbers them on these shapes.
constexpr long kTop = 1, kLeft = 2, kBottom = 3, kRight = 4;

bool StartsWith(const std::u16string& s, std::u16string_view prefix) {
  return s.rfind(prefix, 0) == 0;
}

bool EndsWith(const std::u16string& s, std::u16string_view suffix) {
  return s.size() >= suffix.size() &&
         s.compare(s.size() - suffix.size(), suffix.size(), suffix) == 0;
}

FlowStep StepOf(std::u16string text) {
  if (StartsWith(text, u"?") || StartsWith(text, u"？"))
    return {StepKind::kDecision, Trim(text.substr(1)), {}};
  if (EndsWith(text, u"?") || EndsWith(text, u"？")) return {StepKind::kDecision, text, {}};
  if (text == u"开始" || text == u"结束") return {StepKind::kTerminal, text, {}};
  if (StartsWith(text, u"输入") || StartsWith(text, u"输出"))
    return {StepKind::kInputOutput, text, {}};
  return {StepKind::kProcess, text, {}};
}

// "否：…" or "否:…" names the step a question's "否" leads to.
bool IsNoBranch(const std::u16string& line, std::u16string& rest) {
  if (!StartsWith(line, u"否：") && !StartsWith(line, u"否:")) return false;
  rest = Trim(line.substr(2));
  return true;
}

std::u16string CheckSteps(const std::vector<FlowStep>& steps) {
  if (steps.empty()) return u"请输入流程的步骤，每行一步。";
  if (steps.size() > kMostSteps) return u"步骤太多：一张流程图最多 12 步。";
  if (steps.back().kind == StepKind::kDecision)
    return u"判断框“" + steps.back().text + u"”后面还应有一步，作为“是”的去向。";
  for (const FlowStep& step : steps) {
    if (!step.no.empty() && step.no[0].text.empty()) return u"“否：”后面应写出这一步要做的事。";
    for (const std::u16string& text : {step.text, step.no.empty() ? u"" : step.no[0].text})
      if (text.size() > kLongestText) return u"每一步的文字不要超过 24 个字：" + text;
  }
  return {};
}

}  // namespace

FlowSteps ReadFlowSteps(const std::u16string& typed, bool addStartEnd) {
  FlowSteps read;
  std::vector<FlowStep>& steps = read.steps;
  for (const std::u16string& raw : Split(Replace(typed, u"\r", u""), u"\n")) {
    const std::u16string line = Trim(raw);
    std::u16string rest;
    if (line.empty()) continue;
    if (IsNoBranch(line, rest)) {
      if (steps.empty() || steps.back().kind != StepKind::kDecision || !steps.back().no.empty())
        return {{}, u"“否：”一行应紧跟在判断框（以“？”结尾的一行）之后。"};
      steps.back().no.push_back(StepOf(rest));
      continue;
    }
    steps.push_back(StepOf(line));
  }
  if (addStartEnd && !steps.empty()) {
    if (steps.front().text != u"开始") steps.insert(steps.begin(), StepOf(u"开始"));
    if (steps.back().text != u"结束") steps.push_back(StepOf(u"结束"));
  }
  if (std::u16string error = CheckSteps(steps); !error.empty()) return {{}, error};
  return read;
}

namespace {

struct Box {
  float width, height, textTop;
};

// The shape's size from its text: the text wraps within the part of the shape
// that holds it (half of a diamond, three fifths of a data shape).
Box BoxOf(const FlowStep& step, float processWidth) {
  float width = processWidth, textShare = 1, heightShare = 1;
  switch (step.kind) {
    case StepKind::kTerminal:
      width = processWidth * 0.8f, textShare = 0.8f;
      break;
    case StepKind::kDecision:
      width = processWidth * 1.2f, textShare = 0.5f, heightShare = 0.5f;
      break;
    case StepKind::kInputOutput:
      width = processWidth * 1.15f, textShare = 0.6f;
      break;
    case StepKind::kProcess:
      textShare = 0.9f;
      break;
  }
  const float perLine = std::max(1.0f, std::floor(width * textShare / kFontSize));
  const float lines = std::ceil(static_cast<float>(step.text.size()) / perLine);
  const float textHeight = lines * kLineHeight;
  const float height =
      std::max(step.kind == StepKind::kDecision ? 46.0f : 26.0f, textHeight / heightShare + 8);
  const float textArea = height * heightShare;
  return {width, height, (textArea - textHeight) / 2};
}

// Where the data shape's top and bottom sites lie across its width: its
// slanted sides put them off the middle, so the chain below it moves over to
// keep every connector upright.
float TopSiteAt(StepKind kind) {
  return kind == StepKind::kInputOutput ? 0.4f : 0.5f;
}

float BottomSiteAt(StepKind kind) {
  return kind == StepKind::kInputOutput ? 0.6f : 0.5f;
}

word::MsoAutoShapeType ShapeTypeOf(StepKind kind) {
  switch (kind) {
    case StepKind::kTerminal:
      return word::msoShapeFlowchartTerminator;
    case StepKind::kDecision:
      return word::msoShapeFlowchartDecision;
    case StepKind::kInputOutput:
      return word::msoShapeFlowchartData;
    case StepKind::kProcess:
      break;
  }
  return word::msoShapeFlowchartProcess;
}

class Layout {
 public:
  Layout(const FlowChartRequest& r, float processWidth) : r_(r), processWidth_(processWidth) {}

  // Adds the step's shape with its left edge at x, or its top site there;
  // returns its index.
  size_t AddStep(const FlowStep& step, float x, float top, bool underSite) {
    const Box box = BoxOf(step, processWidth_);
    const float left = underSite ? x - TopSiteAt(step.kind) * box.width : x;
    FigureShape s = Rectangle(u"流程框", left, top, box.width, box.height);
    s.kind = ShapeKind::kFlowShape;
    s.flowShape = ShapeTypeOf(step.kind);
    s.text = step.text;
    s.textMarginTop = box.textTop;
    s.textStyle = {kFontSize, false, u"Times New Roman", u"宋体", true, false, false, {}};
    shapes_.push_back(s);
    return shapes_.size() - 1;
  }

  void Connect(size_t from, long fromSite, size_t to, long toSite, bool backwards = false) {
    const Point a = SiteNear(shapes_[from], fromSite), b = SiteNear(shapes_[to], toSite);
    FigureShape c = Line(u"连接线", a.x, a.y, b.x, b.y);
    c.kind = ShapeKind::kConnector;
    c.from = from, c.fromSite = fromSite, c.to = to, c.toSite = toSite;
    c.elbow = c.arrowAtFrom = backwards;
    shapes_.push_back(c);
  }

  // The question's "否": its step to the right, at the question's height,
  // or an end of its own; returns the step's index.
  size_t AddNoBranch(size_t question, const FlowStep& step) {
    const FigureShape q = shapes_[question];  // the list grows below
    const FlowStep side = step.no.empty() ? FlowStep{StepKind::kTerminal, u"结束", {}} : step.no[0];
    const Box box = BoxOf(side, processWidth_);
    const float left = q.left + q.width + kSideGap;
    const size_t no = AddStep(side, left, q.top + q.height / 2 - box.height / 2, false);
    Connect(question, kRight, no, kLeft);
    Word(false, q.left + q.width + kSideGap / 2 - 7, q.top + q.height / 2 - 16);
    return no;
  }

  void Word(bool yes, float left, float top) {
    const std::u16string text = r_.yesNoWords ? (yes ? u"是" : u"否") : (yes ? u"Y" : u"N");
    FigureShape label = Label(u"是否", text, left, top, 14, 14);
    label.textStyle = {kFontSize, false, u"Times New Roman", u"宋体", false, true, false, {}};
    shapes_.push_back(label);
  }

  const FigureShape& operator[](size_t i) const { return shapes_[i]; }
  ShapeList Take() { return std::move(shapes_); }

 private:
  // Where a connector is first drawn; attaching it moves it onto the site.
  static Point SiteNear(const FigureShape& s, long site) {
    switch (site) {
      case kTop:
        return {s.left + s.width / 2, s.top};
      case kLeft:
        return {s.left, s.top + s.height / 2};
      case kBottom:
        return {s.left + s.width / 2, s.top + s.height};
      default:
        return {s.left + s.width, s.top + s.height / 2};
    }
  }

  const FlowChartRequest& r_;
  float processWidth_;
  ShapeList shapes_;
};

}  // namespace

FlowChartFigure MakeFlowChart(const FlowChartRequest& r) {
  const double widthCm = Val(r.width);
  if (!(widthCm >= 1.5 && widthCm <= 8)) return {{}, u"框的宽度应在 1.5 到 8 厘米之间。"};
  const FlowSteps read = ReadFlowSteps(r.steps, r.addStartEnd);
  if (!read.error.empty()) return {{}, read.error};
  const float processWidth = static_cast<float>(widthCm * kPointsPerCm);
  Layout layout(r, processWidth);
  float centre = r.originX + processWidth * 0.6f;  // where the next step's top site goes
  float top = r.originY;
  std::vector<size_t> main, no(read.steps.size(), 0);
  for (size_t i = 0; i < read.steps.size(); ++i) {
    const FlowStep& step = read.steps[i];
    main.push_back(layout.AddStep(step, centre, top, true));
    if (i > 0) {
      layout.Connect(main[i - 1], kBottom, main[i], kTop);
      if (read.steps[i - 1].kind == StepKind::kDecision)
        layout.Word(true, centre + 3, top - kGap / 2 - 7);
    }
    if (step.kind == StepKind::kDecision) no[i] = layout.AddNoBranch(main[i], step);
    const FigureShape& shape = layout[main[i]];
    top += shape.height + kGap;
    centre = shape.left + BottomSiteAt(step.kind) * shape.width;
  }
  // An if-else: the "否" step done, the flow comes back in beside the step
  // that follows the "是" step, through an elbow that leaves that step's side.
  for (size_t i = 0; r.joinNo && i + 2 < read.steps.size(); ++i) {
    const FlowStep& step = read.steps[i];
    if (step.kind != StepKind::kDecision || step.no.empty() ||
        step.no[0].kind == StepKind::kTerminal || read.steps[i + 2].kind == StepKind::kDecision)
      continue;
    layout.Connect(main[i + 2], kRight, no[i], kBottom, true);
  }
  return {layout.Take(), {}};
}

}  // namespace lp::figures
