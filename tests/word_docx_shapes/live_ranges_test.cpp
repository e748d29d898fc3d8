// Ranges and the selection a tool holds stay on their text while shapes are
// drawn, grouped and deleted: each anchor is a position of the body.

#include <unistd.h>

#include <filesystem>
#include <functional>

#include <gtest/gtest.h>

#include "word/docx/docx_application.h"

namespace shapes_test {
namespace {

namespace fs = std::filesystem;

std::unique_ptr<word::docx::DocxApplication> NewDocument() {
  const fs::path file =
      fs::temp_directory_path() / ("lp_live_ranges_" + std::to_string(getpid()) + ".docx");
  fs::remove(file);
  return word::docx::OpenDocx(file);
}

// Word's "Object has been deleted." error.
void ExpectDeleted(const std::function<void()>& call, const char* what) {
  SCOPED_TRACE(what);
  try {
    call();
    ADD_FAILURE() << "no error";
  } catch (const word::ComError& e) {
    EXPECT_EQ(e.Number(), 5825);
  }
}

TEST(LiveRangesAcrossShapes, StayOnTheirTextWhileAnchorsComeAndGo) {
  auto app = NewDocument();
  word::Document& doc = app->ActiveDocument();
  app->Selection().TypeText(u"甲乙丙\r丁戊");
  auto second = doc.Range(4, 6);
  doc.Range(1, 2)->Select();  // the anchors go into the first paragraph

  auto expect = [&](long secondStart, const char* step) {
    SCOPED_TRACE(step);
    EXPECT_EQ(second->Text(), u"丁戊");
    EXPECT_EQ(second->Start(), secondStart);
    EXPECT_EQ(second->End(), secondStart + 2);
    EXPECT_EQ(app->Selection().Text(), u"乙");
    EXPECT_EQ(app->Selection().Start(), 1);
    EXPECT_EQ(app->Selection().End(), 2);
  };
  word::Shapes& shapes = doc.Shapes();
  shapes.AddLine(100, 100, 200, 100)->SetName(u"a");
  expect(5, "AddLine");
  auto box = shapes.AddTextbox(word::msoTextOrientationHorizontal, 100, 120, 80, 30);
  box->SetName(u"b");
  box->TextFrame().TextRange()->SetText(u"框");
  expect(6, "AddTextbox");
  auto group = shapes.Range({u"a", u"b"})->Group();
  expect(5, "Group");
  group->Delete();
  expect(4, "Delete");
  EXPECT_EQ(doc.Content()->Text(), u"甲乙丙\r丁戊\r");
}

// The caret at the end of the paragraph stays behind the text typed there;
// what is typed next lands in the paragraph, in the same format.
TEST(LiveRangesAcrossShapes, CaretAtTheParagraphEndStaysBehindItsText) {
  auto app = NewDocument();
  word::Document& doc = app->ActiveDocument();
  app->Selection().Font().SetBold(word::wdTrue);
  app->Selection().TypeText(u"已知");
  doc.Shapes().AddShape(word::msoShapeOval, 100, 100, 20, 20);
  EXPECT_EQ(app->Selection().Start(), 3);
  EXPECT_EQ(app->Selection().End(), 3);
  app->Selection().TypeText(u"如图");
  EXPECT_EQ(doc.Content()->Text(), u"已知\x01如图\r");
  EXPECT_EQ(doc.Range(3, 5)->Font().Bold(), word::wdTrue);
}

// A text box's story goes with its shape, however the shape leaves (deleted
// with its groups, or with the body text holding its anchor): what a tool
// still holds inside raises Word's "Object has been deleted." error, grouping
// leaves the stories where they were, and everything else works on.
TEST(LiveRangesAcrossShapes, RangesInADeletedTextBoxRaiseObjectDeleted) {
  auto app = NewDocument();
  word::Document& doc = app->ActiveDocument();
  app->Selection().TypeText(u"甲乙丙");
  auto mainText = doc.Range(1, 2);
  word::Shapes& shapes = doc.Shapes();
  auto box = [&](const char16_t* name, const char16_t* text) {
    auto shape = shapes.AddTextbox(word::msoTextOrientationHorizontal, 100, 100, 80, 30);
    shape->SetName(name);
    auto range = shape->TextFrame().TextRange();
    range->SetText(text);
    return range;
  };
  auto inA = box(u"a", u"一");
  auto inB = box(u"b", u"二");
  shapes.AddLine(100, 100, 200, 100)->SetName(u"c");
  auto inD = box(u"d", u"四");
  shapes.Range({u"a", u"c"})->Group()->SetName(u"inner");
  auto outer = shapes.Range({u"inner", u"b"})->Group();
  EXPECT_EQ(inA->Text(), u"一");
  EXPECT_EQ(inB->Text(), u"二");
  word::Font& fontA = inA->Font();
  word::Find& findA = inA->Find();
  findA.SetText(u"一");
  word::Characters& charactersA = inA->Characters();

  inB->Select();
  outer->Delete();
  ExpectDeleted([&] { inA->Text(); }, "Text");
  ExpectDeleted([&] { inA->Start(); }, "Start");
  ExpectDeleted([&] { inA->Font(); }, "Font");
  ExpectDeleted([&] { inA->Duplicate(); }, "Duplicate");
  ExpectDeleted([&] { inB->SetText(u"x"); }, "SetText of the nested group's box");
  ExpectDeleted([&] { fontA.Bold(); }, "a Font taken before");
  ExpectDeleted([&] { findA.Execute(); }, "a Find taken before");
  ExpectDeleted([&] { charactersA.Count(); }, "Characters taken before");

  // The selection stood in a deleted box: it moves to where the anchor was.
  EXPECT_EQ(app->Selection().Start(), 3);
  app->Selection().TypeText(u"丁");
  EXPECT_EQ(doc.Content()->Text(), u"甲乙丙丁\x01\r");
  EXPECT_EQ(mainText->Text(), u"乙");
  EXPECT_EQ(inD->Text(), u"四");

  doc.Range(4, 5)->Delete();  // the body text holding d's anchor
  ExpectDeleted([&] { inD->Text(); }, "the box of an anchor deleted as text");
  EXPECT_EQ(doc.Content()->Text(), u"甲乙丙丁\r");
}

// Shape objects a tool still holds go with their anchor: once the shape is
// deleted (as a shape or with the text holding it) or taken into a group,
// every member raises "Object has been deleted.". The selection lets go of a
// deleted shape and hands a grouped one on to its group.
TEST(LiveRangesAcrossShapes, ShapesHeldAfterTheirAnchorLeftRaiseObjectDeleted) {
  auto app = NewDocument();
  word::Document& doc = app->ActiveDocument();
  app->Selection().TypeText(u"甲乙");
  word::Shapes& shapes = doc.Shapes();
  auto add = [&](const char16_t* name) {
    auto shape = shapes.AddShape(word::msoShapeRectangle, 100, 100, 20, 20);
    shape->SetName(name);
    return shape;
  };
  auto a = add(u"a"), b = add(u"b"), c = add(u"c"), d = add(u"d"), e = add(u"e");
  auto ab = shapes.Range({u"a", u"b"});
  word::FillFormat& fillOfA = a->Fill();
  b->Select();
  auto group = ab->Group();
  ExpectDeleted([&] { a->Name(); }, "a grouped Shape");
  ExpectDeleted([&] { a->SetLeft(1); }, "SetLeft of a grouped Shape");
  ExpectDeleted([&] { fillOfA.Visible(); }, "a Fill taken before grouping");
  ExpectDeleted([&] { ab->Count(); }, "the grouped ShapeRange");
  ExpectDeleted([&] { b->Delete(); }, "Delete of a grouped Shape");
  EXPECT_EQ(app->Selection().ShapeRange()->Name(), group->Name());

  c->Select();
  d->Select(false);
  c->Delete();
  ExpectDeleted([&] { c->Top(); }, "a deleted Shape");
  ExpectDeleted([&] { c->TextFrame().TextRange(); }, "the text of a deleted Shape");
  EXPECT_EQ(app->Selection().ShapeRange()->Name(), u"d");

  doc.Range(3, 4)->Delete();  // the body text holding d's anchor
  ExpectDeleted([&] { d->Width(); }, "a Shape deleted as text");
  EXPECT_EQ(app->Selection().ShapeRange()->Count(), 0);
  EXPECT_NE(app->Selection().Type(), word::wdSelectionShape);

  e->SetLeft(50);
  EXPECT_EQ(e->Left(), 50);
  EXPECT_EQ(shapes.Count(), 2);
  EXPECT_EQ(doc.Content()->Text(), u"甲乙\x01\x01\r");
}

}  // namespace
}  // namespace shapes_test
