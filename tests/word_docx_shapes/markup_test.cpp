// What each Add* method writes, compared with the markup Word writes for the
// same shape.

#include <gtest/gtest.h>

#include "test_host.h"
#include "word/docx/drawing/anchor.h"

namespace shapes_test {
namespace {

using word::docx::MakeShapes;

pugi::xml_node Wsp(TestHost& host, long index) {
  return word::docx::drawing::GraphicOf(
      word::docx::drawing::FindAnchors(host.document)[static_cast<size_t>(index - 1)]);
}

TEST(ShapeMarkup, RectangleIsAFloatingShapeOnThePage) {
  TestHost host;
  auto shapes = MakeShapes(host);
  auto shape = shapes->AddShape(word::msoShapeRectangle, 100, 50.5f, 20, 10);
  const pugi::xml_node paragraph = host.CaretParagraph();
  EXPECT_EQ(
      Markup(paragraph.last_child()),
      "<w:r><mc:AlternateContent><mc:Choice Requires=\"wps\"><w:drawing>"
      "<wp:anchor distT=\"0\" distB=\"0\" distL=\"114300\" distR=\"114300\" simplePos=\"0\" "
      "relativeHeight=\"251659264\" behindDoc=\"0\" locked=\"0\" layoutInCell=\"1\" "
      "allowOverlap=\"1\"><wp:simplePos x=\"0\" y=\"0\"/>"
      "<wp:positionH relativeFrom=\"page\"><wp:posOffset>1270000</wp:posOffset></wp:positionH>"
      "<wp:positionV relativeFrom=\"page\"><wp:posOffset>641350</wp:posOffset></wp:positionV>"
      "<wp:extent cx=\"254000\" cy=\"127000\"/><wp:effectExtent l=\"0\" t=\"0\" r=\"0\" b=\"0\"/>"
      "<wp:wrapNone/><wp:docPr id=\"1\" name=\"Rectangle 1\"/><wp:cNvGraphicFramePr/>"
      "<a:graphic xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\">"
      "<a:graphicData uri=\"http://schemas.microsoft.com/office/word/2010/wordprocessingShape\">"
      "<wps:wsp><wps:cNvSpPr/><wps:spPr><a:xfrm><a:off x=\"0\" y=\"0\"/>"
      "<a:ext cx=\"254000\" cy=\"127000\"/></a:xfrm><a:prstGeom "
      "prst=\"rect\"><a:avLst/></a:prstGeom>"
      "<a:solidFill><a:srgbClr val=\"FFFFFF\"/></a:solidFill><a:ln w=\"9525\"><a:solidFill>"
      "<a:srgbClr val=\"000000\"/></a:solidFill></a:ln></wps:spPr>"
      "<wps:bodyPr rot=\"0\" vert=\"horz\" wrap=\"square\" lIns=\"91440\" tIns=\"45720\" "
      "rIns=\"91440\" bIns=\"45720\" anchor=\"t\" anchorCtr=\"0\" upright=\"1\"><a:noAutofit/>"
      "</wps:bodyPr></wps:wsp></a:graphicData></a:graphic></wp:anchor></w:drawing></mc:Choice>"
      "</mc:AlternateContent></w:r>");
  // The anchor run follows the paragraph's text, which keeps its positions.
  EXPECT_EQ(Markup(paragraph.first_child()), "<w:r><w:t>caret</w:t></w:r>");
  const pugi::xml_node root = host.document.document_element();
  EXPECT_STREQ(root.attribute("xmlns:wps").value(),
               "http://schemas.microsoft.com/office/word/2010/wordprocessingShape");
  EXPECT_TRUE(root.attribute("xmlns:wp") && root.attribute("xmlns:mc") &&
              root.attribute("xmlns:wpg"));
  EXPECT_EQ(shape->Name(), u"Rectangle 1");
  EXPECT_FLOAT_EQ(shape->Top(), 50.5f);
  EXPECT_EQ(shape->Type(), word::msoAutoShape);
}

TEST(ShapeMarkup, EachKindWritesItsGeometry) {
  TestHost host;
  auto shapes = MakeShapes(host);
  shapes->AddShape(word::msoShapeOval, 0, 0, 4, 4);
  auto line = shapes->AddLine(30, 20, 10, 50);  // leftwards and down
  auto box = shapes->AddTextbox(word::msoTextOrientationHorizontal, 0, 0, 60, 20);
  auto curve = shapes->AddCurve({{10, 10}, {20, 0}, {30, 0}, {40, 10}});
  auto builder = shapes->BuildFreeform(word::msoEditingAuto, 0, 0);
  builder->AddNodes(word::msoSegmentLine, word::msoEditingAuto, 10, 0);
  builder->AddNodes(word::msoSegmentLine, word::msoEditingAuto, 0, 0);
  auto freeform = builder->ConvertToShape();

  EXPECT_NE(Markup(Wsp(host, 1)).find("<a:prstGeom prst=\"ellipse\">"), std::string::npos);
  EXPECT_EQ(
      Markup(Wsp(host, 2).child("wps:spPr")),
      "<wps:spPr><a:xfrm flipH=\"1\"><a:off x=\"0\" y=\"0\"/><a:ext cx=\"254000\" cy=\"381000\"/>"
      "</a:xfrm><a:prstGeom prst=\"line\"><a:avLst/></a:prstGeom><a:ln w=\"9525\"><a:solidFill>"
      "<a:srgbClr val=\"000000\"/></a:solidFill></a:ln></wps:spPr>");
  EXPECT_FLOAT_EQ(line->Left(), 10);
  EXPECT_FLOAT_EQ(line->Top(), 20);
  EXPECT_EQ(line->Type(), word::msoLine);
  EXPECT_EQ(Markup(Wsp(host, 3).child("wps:cNvSpPr")), "<wps:cNvSpPr txBox=\"1\"/>");
  EXPECT_EQ(Markup(Wsp(host, 3).child("wps:txbx")),
            "<wps:txbx><w:txbxContent><w:p/></w:txbxContent></wps:txbx>");
  EXPECT_EQ(box->Type(), word::msoTextBox);
  EXPECT_EQ(Markup(Wsp(host, 4).child("wps:spPr").child("a:custGeom").child("a:pathLst")),
            "<a:pathLst><a:path w=\"381000\" h=\"127000\" fill=\"none\"><a:moveTo>"
            "<a:pt x=\"0\" y=\"127000\"/></a:moveTo><a:cubicBezTo><a:pt x=\"127000\" y=\"0\"/>"
            "<a:pt x=\"254000\" y=\"0\"/><a:pt x=\"381000\" y=\"127000\"/></a:cubicBezTo>"
            "</a:path></a:pathLst>");
  EXPECT_EQ(curve->Type(), word::msoFreeform);
  EXPECT_FLOAT_EQ(curve->Left(), 10);
  // A freeform that returns to its start is closed, and so filled.
  EXPECT_EQ(Markup(Wsp(host, 5).child("wps:spPr").child("a:custGeom").child("a:pathLst")),
            "<a:pathLst><a:path w=\"127000\" h=\"1\"><a:moveTo><a:pt x=\"0\" y=\"0\"/></a:moveTo>"
            "<a:lnTo><a:pt x=\"127000\" y=\"0\"/></a:lnTo><a:lnTo><a:pt x=\"0\" y=\"0\"/></a:lnTo>"
            "<a:close/></a:path></a:pathLst>");
  EXPECT_EQ(freeform->Name(), u"Freeform 5");
  // Shapes keep the order in which they were added, each a step higher.
  EXPECT_EQ(shapes->Item(5)->Name(), u"Freeform 5");
  EXPECT_STREQ(
      word::docx::drawing::FindAnchors(host.document)[4].attribute("relativeHeight").value(),
      "251663360");
  EXPECT_THROW(shapes->AddCurve({{0, 0}, {1, 1}}), word::ComError);
}

}  // namespace
}  // namespace shapes_test
