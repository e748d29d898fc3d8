// A document holding every kind of shape is valid markup.

#include <gtest/gtest.h>

#include "schema_check.h"
#include "test_host.h"

namespace shapes_test {
namespace {

void AddEveryKind(word::Shapes& shapes, TestHost& host) {
  auto rectangle = shapes.AddShape(word::msoShapeRectangle, 72, 72, 100, 50);
  rectangle->Fill().Patterned(35);
  rectangle->Line().SetDashStyle(word::msoLineLongDashDot);
  auto line = shapes.AddLine(200, 100, 80, 150);
  line->Line().SetEndArrowheadStyle(word::msoArrowheadTriangle);
  line->Line().SetBeginArrowheadWidth(word::msoArrowheadWide);
  line->Line().ForeColor().SetRGB(word::RGB(0, 0, 255));
  auto box = shapes.AddTextbox(word::msoTextOrientationHorizontal, 300, 72, 80, 30);
  box->TextFrame().SetMarginLeft(0);
  box->TextFrame().TextRange();
  host.lastStory.child("w:p").append_child("w:r").append_child("w:t").text().set("文本");
  box->WrapFormat().SetType(word::wdWrapTight);
  shapes.AddCurve({{0, 0}, {10, 10}, {20, 10}, {30, 0}})->Fill().SetVisible(false);
  auto builder = shapes.BuildFreeform(word::msoEditingAuto, 50, 300);
  builder->AddNodes(word::msoSegmentLine, word::msoEditingAuto, 80, 330);
  builder->AddNodes(word::msoSegmentCurve, word::msoEditingAuto, 50, 300);
  builder->ConvertToShape()->Fill().SetTransparency(0.5f);
  auto oval = shapes.AddShape(word::msoShapeOval, 400, 400, 10, 10);
  oval->TextFrame().TextRange();
  oval->SetName(u"点：1_lumenpad");
  shapes.Item(1)->SetName(u"柱：2_lumenpad");
  shapes.Range({u"柱：2_lumenpad", u"点：1_lumenpad"})->Group()->ZOrder(word::msoSendBehindText);
  auto question = shapes.AddShape(word::msoShapeFlowchartDecision, 100, 500, 80, 40);
  auto data = shapes.AddShape(word::msoShapeFlowchartData, 100, 600, 80, 30);
  auto straight = shapes.AddConnector(word::msoConnectorStraight, 0, 0, 10, 10);
  straight->ConnectorFormat().BeginConnect(*question, 3);
  straight->ConnectorFormat().EndConnect(*data, 1);
  auto elbow = shapes.AddConnector(word::msoConnectorElbow, 0, 0, 10, 10);
  elbow->ConnectorFormat().BeginConnect(*data, 4);
  elbow->ConnectorFormat().EndConnect(*question, 4);
  elbow->Line().SetBeginArrowheadStyle(word::msoArrowheadTriangle);
  const std::vector<word::Text> chart = {u"流程：1", u"流程：2", u"流程：3", u"流程：4"};
  question->SetName(chart[0]);
  data->SetName(chart[1]);
  straight->SetName(chart[2]);
  elbow->SetName(chart[3]);
  shapes.Range(chart)->Group();
}

TEST(ShapeSchema, EveryKindOfShapeValidates) {
  TestHost host;
  auto shapes = word::docx::MakeShapes(host);
  AddEveryKind(*shapes, host);
  EXPECT_TRUE(ValidatesWithShapeSchemas(host.document));
}

}  // namespace
}  // namespace shapes_test
