// Ranges and the selection a tool holds stay on their text while shapes are
// drawn, grouped and deleted: each anchor is a position of the body.

#include <unistd.h>

#include <filesystem>

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

}  // namespace
}  // namespace shapes_test
