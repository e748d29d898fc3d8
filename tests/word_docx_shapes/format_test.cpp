// Line, fill, text frame and wrap settings as they land in the DrawingML.

#include <gtest/gtest.h>

#include "test_host.h"
#include "word/docx/drawing/anchor.h"

namespace shapes_test {
namespace {

pugi::xml_node SpPr(TestHost& host) {
  return word::docx::drawing::GraphicOf(word::docx::drawing::FindAnchors(host.document).back())
      .child("wps:spPr");
}

TEST(ShapeFormats, LineColourWeightDashAndArrowheads) {
  TestHost host;
  auto line = word::docx::MakeShapes(host)->AddLine(0, 0, 100, 0);
  word::LineFormat& format = line->Line();
  format.ForeColor().SetRGB(word::RGB(255, 0, 0));
  format.SetWeight(1.5f);
  format.SetDashStyle(word::msoLineRoundDot);
  format.SetEndArrowheadStyle(word::msoArrowheadStealth);
  format.SetEndArrowheadLength(word::msoArrowheadLengthMedium);
  format.SetEndArrowheadWidth(word::msoArrowheadNarrow);
  format.SetBeginArrowheadStyle(word::msoArrowheadNone);
  EXPECT_EQ(Markup(SpPr(host).child("a:ln")),
            "<a:ln w=\"19050\" cap=\"rnd\"><a:solidFill><a:srgbClr val=\"FF0000\"/></a:solidFill>"
            "<a:prstDash val=\"sysDot\"/><a:headEnd type=\"none\"/>"
            "<a:tailEnd type=\"stealth\" len=\"med\" w=\"sm\"/></a:ln>");
  EXPECT_EQ(format.ForeColor().RGB(), word::RGB(255, 0, 0));
  EXPECT_FLOAT_EQ(format.Weight(), 1.5f);
  EXPECT_EQ(format.DashStyle(), word::msoLineRoundDot);
  format.SetVisible(false);
  EXPECT_FALSE(format.Visible());
  format.SetVisible(true);
  EXPECT_EQ(format.ForeColor().RGB(), 0);
}

TEST(ShapeFormats, FillSolidPatternedAndTransparent) {
  TestHost host;
  auto box = word::docx::MakeShapes(host)->AddShape(word::msoShapeRectangle, 0, 0, 10, 10);
  word::FillFormat& fill = box->Fill();
  EXPECT_TRUE(fill.Visible());
  EXPECT_EQ(fill.ForeColor().RGB(), word::RGB(255, 255, 255));
  fill.ForeColor().SetRGB(0);
  fill.SetTransparency(0.25f);
  fill.Patterned(22);
  EXPECT_EQ(
      Markup(SpPr(host).child("a:pattFill")),
      "<a:pattFill prst=\"ltUpDiag\"><a:fgClr><a:srgbClr val=\"000000\"><a:alpha val=\"75000\"/>"
      "</a:srgbClr></a:fgClr><a:bgClr><a:srgbClr val=\"FFFFFF\"><a:alpha val=\"75000\"/>"
      "</a:srgbClr></a:bgClr></a:pattFill>");
  // The fill stays where the schema wants it: before the line.
  EXPECT_STREQ(SpPr(host).child("a:pattFill").next_sibling().name(), "a:ln");
  fill.BackColor().SetRGB(word::RGB(0, 0, 255));
  EXPECT_EQ(fill.BackColor().RGB(), word::RGB(0, 0, 255));
  fill.Solid();
  EXPECT_EQ(
      Markup(SpPr(host).child("a:solidFill")),
      "<a:solidFill><a:srgbClr val=\"000000\"><a:alpha val=\"75000\"/></a:srgbClr></a:solidFill>");
  EXPECT_FLOAT_EQ(fill.Transparency(), 0.25f);
  fill.SetVisible(false);
  EXPECT_EQ(Markup(SpPr(host).child("a:noFill")), "<a:noFill/>");
  EXPECT_FALSE(fill.Visible());
  // A colour given to a hidden fill shows it again.
  fill.ForeColor().SetRGB(word::RGB(1, 2, 3));
  EXPECT_TRUE(fill.Visible());
}

TEST(ShapeFormats, PatternNumbersAreOfficeNumbers) {
  struct Row {
    const char* name;
    long pattern;
    const char* prst;
  };
  const Row rows[] = {{"5 percent", 1, "pct5"},
                      {"90 percent", 12, "pct90"},
                      {"dark horizontal", 13, "dkHorz"},
                      {"small grid", 23, "smGrid"},
                      {"narrow vertical", 29, "narVert"},
                      {"horizontal brick", 35, "horzBrick"},
                      {"outlined diamond", 41, "openDmnd"},
                      {"wave", 48, "wave"}};
  for (const Row& row : rows) {
    TestHost host;
    auto box = word::docx::MakeShapes(host)->AddShape(word::msoShapeOval, 0, 0, 10, 10);
    box->Fill().Patterned(row.pattern);
    EXPECT_STREQ(SpPr(host).child("a:pattFill").attribute("prst").value(), row.prst) << row.name;
  }
  TestHost host;
  auto box = word::docx::MakeShapes(host)->AddShape(word::msoShapeOval, 0, 0, 10, 10);
  EXPECT_THROW(box->Fill().Patterned(49), word::ComError);
  EXPECT_THROW(box->Fill().Patterned(0), word::ComError);
}

TEST(ShapeFormats, TextFrameMarginsAndStory) {
  TestHost host;
  auto shapes = word::docx::MakeShapes(host);
  auto box = shapes->AddTextbox(word::msoTextOrientationHorizontal, 0, 0, 30, 20);
  box->TextFrame().SetMarginLeft(0);
  box->TextFrame().SetMarginTop(1.5f);
  box->TextFrame().SetAutoSize(true);
  const pugi::xml_node wsp = SpPr(host).parent();
  EXPECT_STREQ(wsp.child("wps:bodyPr").attribute("lIns").value(), "0");
  EXPECT_STREQ(wsp.child("wps:bodyPr").attribute("tIns").value(), "19050");
  EXPECT_EQ(Markup(wsp.child("wps:bodyPr").first_child()), "<a:spAutoFit/>");
  box->TextFrame().TextRange();
  EXPECT_EQ(host.lastStory, wsp.child("wps:txbx").child("w:txbxContent"));
  // A rectangle gets a story of its own, before its body properties.
  auto rectangle = shapes->AddShape(word::msoShapeRectangle, 0, 0, 30, 20);
  rectangle->TextFrame().TextRange();
  EXPECT_STREQ(host.lastStory.parent().next_sibling().name(), "wps:bodyPr");
  auto line = shapes->AddLine(0, 0, 1, 1);
  EXPECT_THROW(line->TextFrame().TextRange(), word::ComError);
}

TEST(ShapeFormats, WrapTypes) {
  TestHost host;
  auto box = word::docx::MakeShapes(host)->AddShape(word::msoShapeRectangle, 0, 0, 10, 10);
  const pugi::xml_node anchor = word::docx::drawing::FindAnchors(host.document).front();
  EXPECT_EQ(box->WrapFormat().Type(), word::wdWrapNone);
  box->WrapFormat().SetType(word::wdWrapSquare);
  EXPECT_EQ(Markup(anchor.child("wp:wrapSquare")), "<wp:wrapSquare wrapText=\"bothSides\"/>");
  EXPECT_STREQ(anchor.child("wp:wrapSquare").next_sibling().name(), "wp:docPr");
  box->WrapFormat().SetType(word::wdWrapTight);
  EXPECT_TRUE(anchor.child("wp:wrapTight").child("wp:wrapPolygon"));
  EXPECT_FALSE(anchor.child("wp:wrapSquare"));
  box->WrapFormat().SetType(word::wdWrapBehind);
  EXPECT_EQ(box->WrapFormat().Type(), word::wdWrapBehind);
  EXPECT_STREQ(anchor.attribute("behindDoc").value(), "1");
  EXPECT_THROW(box->WrapFormat().SetType(word::wdWrapInline), word::ComError);
}

}  // namespace
}  // namespace shapes_test
