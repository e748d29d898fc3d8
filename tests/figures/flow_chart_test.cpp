#include "figures/flow_chart.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "figures/draw_list.h"
#include "runtime/recording_prompt.h"
#include "word/fake/fake_word.h"

namespace lp::figures {
namespace {

TEST(FlowChart, StepsAreReadByTheirFirstAndLastCharacters) {
  const FlowSteps read = ReadFlowSteps(u"输入 x\r\n\n？x>0\n否：输出 无解\n x=x+1 \n输出 x", true);
  ASSERT_TRUE(read.error.empty());
  const std::vector<std::pair<StepKind, std::u16string>> expected = {
      {StepKind::kTerminal, u"开始"},      {StepKind::kInputOutput, u"输入 x"},
      {StepKind::kDecision, u"x>0"},       {StepKind::kProcess, u"x=x+1"},
      {StepKind::kInputOutput, u"输出 x"}, {StepKind::kTerminal, u"结束"}};
  ASSERT_EQ(read.steps.size(), expected.size());
  for (size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(read.steps[i].kind, expected[i].first) << i;
    EXPECT_EQ(read.steps[i].text, expected[i].second) << i;
  }
  ASSERT_EQ(read.steps[2].no.size(), 1u);
  EXPECT_EQ(read.steps[2].no[0].kind, StepKind::kInputOutput);
  EXPECT_EQ(ReadFlowSteps(u"a≥b？\nc", false).steps.size(), 2u);
}

TEST(FlowChart, RefusedStepsSayWhy) {
  const struct {
    const char* row;
    const char16_t* steps;
    bool startEnd;
  } rows[] = {{"nothing", u"\n \n", true},
              {"no after a process", u"x=1\n否：y", true},
              {"a question last", u"开始\nx>0？", false},
              {"empty no", u"x>0?\n否：\ny", true},
              {"too long", u"一二三四五六七八九十一二三四五六七八九十一二三四五", true},
              {"too many", u"1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11", true}};
  for (const auto& row : rows) {
    FlowChartRequest r;
    r.steps = row.steps;
    r.addStartEnd = row.startEnd;
    const FlowChartFigure f = MakeFlowChart(r);
    EXPECT_FALSE(f.error.empty()) << row.row;
    EXPECT_TRUE(f.shapes.empty()) << row.row;
  }
  FlowChartRequest r;
  r.width = u"0.5";
  EXPECT_FALSE(MakeFlowChart(r).error.empty());
}

// Each step follows the one above, a question's "否" goes right; every
// connector is attached at both ends to the shapes it joins.
TEST(FlowChart, ConnectorsJoinTheStepsAndAreAttachedWhenDrawn) {
  FlowChartRequest r;
  r.steps = u"x>0？\ny=x";
  const FlowChartFigure f = MakeFlowChart(r);
  ASSERT_TRUE(f.error.empty());
  std::vector<const FigureShape*> connectors;
  for (const FigureShape& s : f.shapes)
    if (s.kind == ShapeKind::kConnector) connectors.push_back(&s);
  // 开始 → question, question → 否 end, question → y=x, y=x → 结束.
  ASSERT_EQ(connectors.size(), 4u);
  const auto text = [&](size_t i) { return f.shapes[i].text; };
  EXPECT_EQ(text(connectors[1]->from), u"x>0？");
  EXPECT_EQ(connectors[1]->fromSite, 4);
  EXPECT_EQ(text(connectors[1]->to), u"结束");
  EXPECT_EQ(connectors[1]->toSite, 2);
  EXPECT_EQ(text(connectors[2]->to), u"y=x");
  EXPECT_EQ(connectors[2]->toSite, 1);
  const auto words = std::count_if(f.shapes.begin(), f.shapes.end(),
                                   [](const FigureShape& s) { return s.name == u"是否"; });
  EXPECT_EQ(words, 2);

  word::fake::FakeWord word;
  RecordingPrompt prompt;
  Session session(word, prompt);
  ASSERT_TRUE(DrawFigure(session, f.shapes, u"流程图"));
  const auto& calls = word.Calls();
  const auto connects = std::count_if(calls.begin(), calls.end(), [](const std::string& c) {
    return c.find("ConnectorFormat.BeginConnect(") != std::string::npos ||
           c.find("ConnectorFormat.EndConnect(") != std::string::npos;
  });
  EXPECT_EQ(connects, 8);
  EXPECT_TRUE(std::any_of(calls.begin(), calls.end(), [](const std::string& c) {
    return c.rfind("Shapes.AddShape(63,", 0) == 0;  // the question's diamond
  }));
}

}  // namespace
}  // namespace lp::figures
