// Finding shapes by name, grouping them, stacking them, and leaving the
// shapes of existing documents as they were.

#include <algorithm>
#include <cstdio>

#include <gtest/gtest.h>

#include "../shared_material.h"
#include "test_host.h"
#include "word/docx/drawing/anchor.h"

namespace shapes_test {
namespace {

using word::docx::drawing::FindAnchors;

unsigned HeightOf(TestHost& host, const word::Text& name) {
  return word::docx::drawing::FindAnchorByName(host.document, name)
      .attribute("relativeHeight")
      .as_uint();
}

TEST(ShapeGroups, NamedShapesBecomeOneGroupAtTheFirstOnesPlace) {
  TestHost host;
  auto shapes = word::docx::MakeShapes(host);
  shapes->AddShape(word::msoShapeRectangle, 100, 200, 50, 40)->SetName(u"区间：1_lumenpad");
  shapes->AddShape(word::msoShapeOval, 0, 0, 1, 1)->SetName(u"other");
  shapes->AddLine(180, 260, 120, 210)->SetName(u"区间：2_lumenpad");
  const pugi::xml_node firstRun = word::docx::drawing::RunOf(FindAnchors(host.document)[0]);

  shapes->Item(u"区间：2_lumenpad")->Select();
  auto group = shapes->Range({u"区间：1_lumenpad", u"区间：2_lumenpad"})->Group();
  // A selected member hands the selection on to its group.
  EXPECT_EQ(host.SelectedShapes(), std::vector{FindAnchors(host.document)[0]});
  EXPECT_EQ(group->Type(), word::msoGroup);
  EXPECT_EQ(group->Name(), u"Group 4");
  EXPECT_EQ(shapes->Count(), 2);
  EXPECT_EQ(word::docx::drawing::RunOf(FindAnchors(host.document)[0]), firstRun);
  EXPECT_STREQ(
      firstRun.first_element_by_path("mc:AlternateContent/mc:Choice").attribute("Requires").value(),
      "wpg");
  EXPECT_FLOAT_EQ(group->Left(), 100);
  EXPECT_FLOAT_EQ(group->Top(), 200);
  EXPECT_FLOAT_EQ(group->Width(), 80);
  EXPECT_FLOAT_EQ(group->Height(), 60);

  const pugi::xml_node wgp = word::docx::drawing::GraphicOf(FindAnchors(host.document)[0]);
  EXPECT_EQ(
      Markup(wgp.child("wpg:grpSpPr")),
      "<wpg:grpSpPr><a:xfrm><a:off x=\"0\" y=\"0\"/><a:ext cx=\"1016000\" cy=\"762000\"/>"
      "<a:chOff x=\"0\" y=\"0\"/><a:chExt cx=\"1016000\" cy=\"762000\"/></a:xfrm></wpg:grpSpPr>");
  const pugi::xml_node line = wgp.last_child();
  EXPECT_EQ(Markup(line.child("wps:cNvPr")), "<wps:cNvPr id=\"3\" name=\"区间：2_lumenpad\"/>");
  EXPECT_EQ(Markup(line.child("wps:spPr").child("a:xfrm")),
            "<a:xfrm flipH=\"1\" flipV=\"1\"><a:off x=\"254000\" y=\"127000\"/>"
            "<a:ext cx=\"762000\" cy=\"635000\"/></a:xfrm>");

  // The closing sequence of every figure: name, stack, move.
  group->SetName(u"区间：9_lumenpad");
  group->ZOrder(word::msoSendToBack);
  group->ZOrder(word::msoBringInFrontOfText);
  group->SetLeft(20);
  EXPECT_EQ(shapes->Item(u"区间：9_lumenpad")->Left(), 20);
  EXPECT_THROW(shapes->Item(u"区间：1_lumenpad"), word::ComError);
  EXPECT_LT(HeightOf(host, u"区间：9_lumenpad"), HeightOf(host, u"other"));

  // A group groups again, nested.
  auto outer = shapes->Range({u"other", u"区间：9_lumenpad"})->Group();
  EXPECT_EQ(shapes->Count(), 1);
  EXPECT_TRUE(word::docx::drawing::GraphicOf(FindAnchors(host.document)[0]).child("wpg:grpSp"));
  EXPECT_FLOAT_EQ(outer->Width(), 100);
}

TEST(ShapeGroups, ZOrderCommands) {
  TestHost host;
  auto shapes = word::docx::MakeShapes(host);
  for (const char16_t* name : {u"a", u"b", u"c"}) {
    shapes->AddShape(word::msoShapeRectangle, 0, 0, 1, 1)->SetName(name);
  }
  auto order = [&] {
    std::u16string names = u"abc";
    std::sort(names.begin(), names.end(),
              [&](char16_t x, char16_t y) { return HeightOf(host, {x}) < HeightOf(host, {y}); });
    return names;
  };
  EXPECT_EQ(order(), u"abc");
  shapes->Item(u"c")->ZOrder(word::msoSendToBack);
  EXPECT_EQ(order(), u"cab");
  shapes->Item(u"c")->ZOrder(word::msoBringForward);
  EXPECT_EQ(order(), u"acb");
  shapes->Item(u"a")->ZOrder(word::msoBringToFront);
  EXPECT_EQ(order(), u"cba");
  shapes->Item(u"b")->ZOrder(word::msoSendBackward);
  EXPECT_EQ(order(), u"bca");
  shapes->Item(u"b")->ZOrder(word::msoSendBehindText);
  EXPECT_EQ(shapes->Item(u"b")->WrapFormat().Type(), word::wdWrapBehind);
  shapes->Item(u"b")->ZOrder(word::msoBringInFrontOfText);
  EXPECT_EQ(shapes->Item(u"b")->WrapFormat().Type(), word::wdWrapNone);
}

TEST(ShapeGroups, SelectAndDelete) {
  TestHost host;
  auto shapes = word::docx::MakeShapes(host);
  shapes->AddShape(word::msoShapeOval, 0, 0, 1, 1);
  shapes->AddShape(word::msoShapeOval, 0, 0, 1, 1);
  shapes->Item(1)->Select();
  shapes->Item(2)->Select(false);
  EXPECT_EQ(host.SelectedShapes().size(), 2u);
  auto range = word::docx::MakeShapeRange(host, host.SelectedShapes());
  EXPECT_EQ(range->Count(), 2);
  range->Item(1)->Delete();
  EXPECT_EQ(shapes->Count(), 1);
  EXPECT_EQ(host.SelectedShapes().size(), 1u);
  EXPECT_EQ(host.CaretParagraph().select_nodes("w:r").size(), 2u);
  EXPECT_THROW(range->Item(3), word::ComError);
}

std::string DocumentXmlOf(const std::string& docx) {
  const std::string command = "unzip -p '" + docx + "' word/document.xml";
  std::string xml;
  FILE* pipe = popen(command.c_str(), "r");
  char buffer[65536];
  for (size_t n; pipe && (n = fread(buffer, 1, sizeof buffer, pipe)) > 0;) xml.append(buffer, n);
  if (pipe) pclose(pipe);
  return xml;
}

TEST(ShapeGroups, ShapesOfAWordFileAreFoundAndKept) {
  LP_SKIP_WITHOUT_SHARED(LP_SHARED_DIR);
  const std::string xml =
      DocumentXmlOf(std::string(LP_SHARED_DIR) + "/corpus/docx/shapes/aspose-Various shapes.docx");
  ASSERT_FALSE(xml.empty());
  TestHost host(xml);
  auto shapes = word::docx::MakeShapes(host);
  ASSERT_EQ(shapes->Count(), 3);
  EXPECT_EQ(shapes->Item(1)->Name(), u"Rectangle 1");
  EXPECT_EQ(shapes->Item(u"Group 5")->Type(), word::msoGroup);
  EXPECT_EQ(shapes->Item(u"Text Box 2")->Type(), word::msoTextBox);
  EXPECT_TRUE(shapes->Item(u"Rectangle 1")->Fill().Visible());  // filled by its theme style
  EXPECT_FLOAT_EQ(shapes->Item(u"Group 5")->Width(), 542925 / 12700.0f);

  const auto anchors = FindAnchors(host.document);
  const std::string untouched = Markup(anchors[1].parent().parent().parent());
  shapes->Item(u"Rectangle 1")->SetLeft(72);
  EXPECT_EQ(Markup(anchors[1].parent().parent().parent()), untouched);
  // The changed shape's VML fallback would show the old shape: it goes.
  EXPECT_FALSE(anchors[0].parent().parent().parent().child("mc:Fallback"));
  EXPECT_TRUE(anchors[1].parent().parent().parent().child("mc:Fallback"));
}

// A figure moved to a page position stays beside its paragraph: it is
// kept from the paragraph's top and its column's left edge, and reads back,
// groups and connects in page positions.
TEST(ShapeGroups, PagePositionsAreKeptFromTheParagraph) {
  TestHost host;
  host.origin = TestHost::Origin{90, 700};
  auto shapes = word::docx::MakeShapes(host);
  auto box = shapes->AddShape(word::msoShapeRectangle, 100, 180, 50, 40);
  box->SetName(u"a");
  box->SetLeft(110);
  box->SetTop(720);
  const pugi::xml_node anchor = FindAnchors(host.document)[0];
  EXPECT_EQ(Markup(anchor.child("wp:positionH")),
            "<wp:positionH relativeFrom=\"column\"><wp:posOffset>254000</wp:posOffset>"
            "</wp:positionH>");
  EXPECT_EQ(Markup(anchor.child("wp:positionV")),
            "<wp:positionV relativeFrom=\"paragraph\"><wp:posOffset>254000</wp:posOffset>"
            "</wp:positionV>");
  EXPECT_FLOAT_EQ(box->Left(), 110);
  EXPECT_FLOAT_EQ(box->Top(), 720);
  shapes->AddShape(word::msoShapeOval, 100, 800, 10, 10)->SetName(u"b");
  auto group = shapes->Range({u"a", u"b"})->Group();
  EXPECT_FLOAT_EQ(group->Left(), 100);
  EXPECT_FLOAT_EQ(group->Top(), 720);
  EXPECT_FLOAT_EQ(group->Width(), 60);
  EXPECT_FLOAT_EQ(group->Height(), 90);
  const pugi::xml_node grouped = FindAnchors(host.document)[0];
  EXPECT_EQ(word::docx::drawing::RelativeFromOf(grouped, word::docx::drawing::Axis::kHorizontal),
            "column");
  EXPECT_EQ(word::docx::drawing::RelativeFromOf(grouped, word::docx::drawing::Axis::kVertical),
            "paragraph");
}

}  // namespace
}  // namespace shapes_test
