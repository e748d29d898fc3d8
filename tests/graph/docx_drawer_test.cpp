// A graph inserted into a real .docx: one named group at the caret holding
// every shape of the scene, with the labels' formulas as EQ fields.
#include <gtest/gtest.h>

#include <filesystem>

#include "graph/scene.h"
#include "graph/word_drawer.h"
#include "runtime/recording_prompt.h"
#include "runtime/text.h"
#include "word/docx/docx_application.h"
#include "word/fake/fake_word.h"

namespace lp::graph {
namespace {

TEST(DocxDrawer, OneGroupWithEveryShape) {
  auto path = std::filesystem::temp_directory_path() / "lp_graph_drawer.docx";
  std::filesystem::remove(path);
  auto app = word::docx::OpenDocx(path);
  RecordingPrompt prompt;
  Session session(*app, prompt);
  session.config.blAutoKD = -1;

  GraphSession graph;
  graph.Axes().drawScale = true;
  TrigParams sine;
  sine.segments = {{0, 6.28, true, true}};
  sine.marks = {{{1.5707963, 1}, u"(@p)/2", u"1"}};
  graph.Confirm(u"sj", {Look{}, sine, {}});
  CircleParams circle{1, 1, 4, true};
  graph.Confirm(u"yuan", {Look{}, circle, {}});
  Scene scene = BuildScene(graph, SessionAxisOptions(session));
  InsertScene(session, scene, graph.Range());

  word::Shapes& shapes = app->ActiveDocument().Shapes();
  ASSERT_EQ(shapes.Count(), 1);
  auto group = shapes.Item(1);
  EXPECT_EQ(group->Type(), word::msoGroup);
  EXPECT_EQ(Left(group->Name(), 3), u"组合：");
  EXPECT_EQ(session.ShapeCounter, 0);
  EXPECT_TRUE(session.ShapeNames.empty());
  std::filesystem::remove(path);
}

TEST(FakeDrawer, PageTransformAndNames) {
  word::fake::FakeWord app;
  RecordingPrompt prompt;
  Session session(app, prompt);
  GraphSession graph;
  PointParams point;
  point.x = 2, point.y = 1, point.letter = u"A", point.labelled = true;
  graph.Confirm(u"point", {Look{}, point, {}});
  InsertScene(session, BuildScene(graph, SessionAxisOptions(session)), graph.Range());
  std::string calls;
  for (const std::string& c : app.Calls()) calls += c + "\n";
  // A4: the origin at (298, 421), 11.92 points to the unit.
  const char* expected[] = {
      "Shapes.AddLine(238.4,421,357.6,421)",       // x axis
      "Shape1.Line.EndArrowheadStyle=4",           //
      "Shapes.AddLine(298,480.6,298,361.4)",       // y axis
      "Shape3.Line.BeginArrowheadLength=2",        // shorter than the x axis's 3
      "Shapes.AddShape(9,320.64,407.88,2.4,2.4)",  // the dot, centred
      "Shapes.AddTextbox(1,323.04,399.08,15,15)",  // its letter
      "Shapes.AddLine(321.84,421,321.84,409.08)",  // projection to the x axis
      "Shape8.Line.DashStyle=4",
      "Shape10.TextFrame.TextRange.Text=\"2\"",  // the point's x as a tick label
  };
  for (const char* line : expected) EXPECT_NE(calls.find(line), std::string::npos) << line;
  EXPECT_NE(calls.find("ZOrder(4)"), std::string::npos);
}

}  // namespace
}  // namespace lp::graph
