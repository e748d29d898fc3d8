// The shape tools on a real .docx, read back through the engine's shapes.
#include <gtest/gtest.h>

#include <array>

#include "inserts/shape_tools.h"
#include "inserts_fixture.h"

namespace lp {
namespace {

using testing::DocxSession;

class ShapeTools : public ::testing::Test {
 protected:
  // Rectangles named r1, r2, ... at these lefts and tops, of these widths and heights.
  void AddBoxes(const std::vector<std::array<float, 4>>& boxes) {
    word::Shapes& shapes = doc.App().ActiveDocument().Shapes();
    for (const auto& [left, top, width, height] : boxes) {
      names.push_back(u"r" + std::u16string(1, static_cast<char16_t>(u'1' + names.size())));
      shapes.AddShape(word::msoShapeRectangle, left, top, width, height)->SetName(names.back());
    }
  }
  void SelectAll() { doc.App().ActiveDocument().Shapes().Range(names)->Select(); }
  std::unique_ptr<word::Shape> Box(const std::u16string& name) {
    return doc.App().ActiveDocument().Shapes().Item(name);
  }
  std::vector<std::u16string> Told() {
    std::vector<std::u16string> told;
    for (const ShownBox& box : doc.prompt.Shown()) told.push_back(box.prompt);
    return told;
  }

  DocxSession doc;
  std::vector<std::u16string> names;
};

TEST_F(ShapeTools, JoinFollowsTheLeftmostByTheWidths) {
  AddBoxes({{100, 300, 30, 10}, {50, 320, 40, 10}, {200, 340, 50, 10}});
  SelectAll();
  JoinLeftToRight(doc.Run());
  EXPECT_FLOAT_EQ(Box(u"r2")->Left(), 50);
  EXPECT_FLOAT_EQ(Box(u"r1")->Left(), 90);
  EXPECT_FLOAT_EQ(Box(u"r3")->Left(), 120);
  EXPECT_FLOAT_EQ(Box(u"r3")->Top(), 340);  // the other axis stays
}

TEST_F(ShapeTools, JoinTopToBottomByTheHeights) {
  AddBoxes({{100, 300, 30, 10}, {50, 300, 40, 20}, {200, 100, 50, 30}});
  SelectAll();
  JoinTopToBottom(doc.Run());
  EXPECT_FLOAT_EQ(Box(u"r3")->Top(), 100);
  EXPECT_FLOAT_EQ(Box(u"r1")->Top(), 130);  // equal tops keep their order
  EXPECT_FLOAT_EQ(Box(u"r2")->Top(), 140);
}

TEST_F(ShapeTools, EqualPlacesKeepTheirOrder) {
  EXPECT_EQ(AscendingOrder({100, 50, 100, 50}), (std::vector<size_t>{1, 3, 0, 2}));
}

TEST_F(ShapeTools, OneShapeIsTooFewToJoinAndStaysUngrouped) {
  AddBoxes({{100, 300, 30, 10}});
  SelectAll();
  JoinLeftToRight(doc.Run());
  EXPECT_EQ(Told(), std::vector<std::u16string>{kTooFewToJoin});
  EXPECT_FLOAT_EQ(Box(u"r1")->Left(), 100);
  doc.prompt.Clear();
  GroupSelection(doc.Run());
  EXPECT_TRUE(Told().empty());
  EXPECT_EQ(doc.App().ActiveDocument().Shapes().Count(), 1);
  EXPECT_EQ(Box(u"r1")->Type(), word::msoAutoShape);
}

TEST_F(ShapeTools, GroupTheSelectionOrThePage) {
  AddBoxes({{100, 300, 30, 10}, {50, 320, 40, 10}});
  doc.Selection().Collapse(word::wdCollapseStart);
  doc.prompt.Answer(u"cancel");
  GroupSelection(doc.Run());
  EXPECT_EQ(Told(), std::vector<std::u16string>{kGroupWholePage});
  EXPECT_EQ(doc.App().ActiveDocument().Shapes().Count(), 2);
  doc.prompt.Answer(u"ok");
  GroupSelection(doc.Run());
  ASSERT_EQ(doc.App().ActiveDocument().Shapes().Count(), 1);
  EXPECT_EQ(doc.App().ActiveDocument().Shapes().Item(1)->Type(), word::msoGroup);
}

TEST_F(ShapeTools, CenterDotIsGroupedWithItsShape) {
  doc.Selection().TypeText(u"text");
  DrawCenter(doc.Run());
  EXPECT_EQ(Told(), std::vector<std::u16string>{kNotAShape});
  AddBoxes({{100, 300, 40, 20}});
  SelectAll();
  DrawCenter(doc.Run());
  word::Shapes& shapes = doc.App().ActiveDocument().Shapes();
  ASSERT_EQ(shapes.Count(), 1);
  auto group = shapes.Item(1);
  EXPECT_EQ(group->Type(), word::msoGroup);
  EXPECT_FLOAT_EQ(group->Left(), 100);
  EXPECT_FLOAT_EQ(group->Width(), 40);
  EXPECT_EQ(doc.Run().ShapeNames.size(), 2u);
  EXPECT_EQ(doc.Run().ShapeNames[1].substr(0, 4), u"中心点：");
  EXPECT_NE(doc.DocumentXml().find("<a:srgbClr val=\"000000\"/>"), std::string::npos);
}

TEST_F(ShapeTools, PlainTextBoxHasNoBorderNorFill) {
  InsertPlainTextBox(doc.Run(), u" ");
  word::Shapes& shapes = doc.App().ActiveDocument().Shapes();
  ASSERT_EQ(shapes.Count(), 1);
  auto box = shapes.Item(1);
  EXPECT_FLOAT_EQ(box->Width(), 60);
  EXPECT_FLOAT_EQ(box->Height(), 20);
  EXPECT_FALSE(box->Line().Visible());
  EXPECT_FALSE(box->Fill().Visible());
  EXPECT_EQ(box->TextFrame().TextRange()->Text(), u" ");
  // The teacher types on in the box.
  doc.Selection().TypeText(u"Y");
  EXPECT_EQ(box->TextFrame().TextRange()->Text(), u"Y");
}

TEST_F(ShapeTools, EnlargeGrowsTheSelectedShapeByATenth) {
  AddBoxes({{100, 300, 40, 20}});
  SelectAll();
  EnlargeSelection(doc.Run());
  EXPECT_FLOAT_EQ(Box(u"r1")->Width(), 44);
  EXPECT_FLOAT_EQ(Box(u"r1")->Height(), 22);
  doc.App().ActiveDocument().Content()->Select();  // a text selection: nothing changes
  EnlargeSelection(doc.Run());
  EXPECT_FLOAT_EQ(Box(u"r1")->Width(), 44);
}

}  // namespace
}  // namespace lp
