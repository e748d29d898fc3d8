// A figure written out as a document of its own and brought into another
// through the .docx engine, and read back as the picture sees it.

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <regex>

#include <gtest/gtest.h>

#include "../shared_material.h"
#include "gallery/drawing_list.h"
#include "runtime/utf8.h"
#include "word/docx/docx_application.h"
#include "word/docx/package.h"

namespace lp::gallery {
namespace {

namespace fs = std::filesystem;

class Files {
 public:
  fs::path operator()(const std::string& name) {
    fs::path p =
        fs::temp_directory_path() / ("lp_gallery_" + std::to_string(getpid()) + "_" + name);
    made_.push_back(p);
    return p;
  }
  ~Files() {
    for (const fs::path& p : made_) fs::remove(p);
  }

 private:
  std::vector<fs::path> made_;
};

word::docx::Package PackageOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return word::docx::Package::FromBytes(
      std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()));
}

// A number line of one arrowed axis, a dot and a label holding a formula.
void DrawNumberLine(word::Application& app) {
  word::Shapes& shapes = app.ActiveDocument().Shapes();
  auto axis = shapes.AddLine(100, 500, 300, 500);
  axis->SetName(u"数轴：1_lumenpad");
  axis->Line().SetEndArrowheadStyle(word::msoArrowheadTriangle);
  auto dot = shapes.AddShape(word::msoShapeOval, 148, 498, 4, 4);
  dot->SetName(u"点：2_lumenpad");
  auto label = shapes.AddTextbox(word::msoTextOrientationHorizontal, 140, 505, 40, 24);
  label->SetName(u"刻度：3_lumenpad");
  label->TextFrame().TextRange()->SetText(u"a");
  auto end = label->TextFrame().TextRange();
  end->Collapse(word::wdCollapseEnd);
  end->Fields().Add(*end, word::wdFieldEmpty, u"EQ \\F(1,2)", false);
  auto group = shapes.Range({u"数轴：1_lumenpad", u"点：2_lumenpad", u"刻度：3_lumenpad"})->Group();
  group->SetName(u"数轴图：9_lumenpad");
}

const Item* FirstOf(const DrawingList& list, Item::Kind kind) {
  for (const Item& item : list.items)
    if (item.kind == kind) return &item;
  return nullptr;
}

TEST(Fragment, AFigureReadsBackWithItsGeometry) {
  Files files;
  const fs::path source = files("source.docx"), fragment = files("fragment.docx");
  auto app = word::docx::OpenDocx(source);
  app->Selection().TypeText(u"图：");
  DrawNumberLine(*app);
  app->ActiveDocument().Content()->ExportFragment(FromUtf8(fragment.string()));

  const std::optional<DrawingList> list =
      ReadDrawingList(fragment.string(), {u"数轴图：9_lumenpad"});
  ASSERT_TRUE(list);
  EXPECT_EQ(list->names, std::vector<std::u16string>{u"数轴图：9_lumenpad"});
  // The group spans x 100..300 and y 498..529; the figure starts at its corner.
  EXPECT_NEAR(list->width, 200, 0.01);
  EXPECT_NEAR(list->height, 31, 0.01);
  const Item* axis = FirstOf(*list, Item::kPath);
  ASSERT_TRUE(axis);
  EXPECT_TRUE(axis->stroke.endArrow);
  EXPECT_FALSE(axis->stroke.beginArrow);
  ASSERT_EQ(axis->path.size(), 2u);
  EXPECT_NEAR(axis->path[0].points[0].x, 0, 0.01);
  EXPECT_NEAR(axis->path[0].points[0].y, 2, 0.01);
  EXPECT_NEAR(axis->path[1].points[0].x, 200, 0.01);
  const Item* dot = FirstOf(*list, Item::kEllipse);
  ASSERT_TRUE(dot);
  EXPECT_NEAR(dot->topLeft.x, 48, 0.01);
  EXPECT_NEAR(dot->bottomRight.y, 4, 0.01);
  const Item* label = FirstOf(*list, Item::kText);
  ASSERT_TRUE(label);
  ASSERT_EQ(label->lines.size(), 1u);
  ASSERT_EQ(label->lines[0].runs.size(), 2u);
  EXPECT_EQ(label->lines[0].runs[0].text, u"a");
  EXPECT_TRUE(label->lines[0].runs[1].formula);
  EXPECT_EQ(label->lines[0].runs[1].text, u"\\frac{1}{2}");
}

// Shapes kept from the tops of two paragraphs come out where the page
// showed them, one 40 pt below the other.
TEST(Fragment, ShapesOfTwoParagraphsKeepTheirPagePlaces) {
  Files files;
  const fs::path source = files("two.docx"), fragment = files("two_f.docx");
  auto app = word::docx::OpenDocx(source);
  word::Shapes& shapes = app->ActiveDocument().Shapes();
  app->Selection().TypeText(u"第一段");
  auto upper = shapes.AddShape(word::msoShapeRectangle, 100, 180, 20, 10);
  upper->SetName(u"上");
  upper->SetTop(300);
  for (int i = 0; i < 6; ++i) app->Selection().TypeParagraph();
  app->Selection().TypeText(u"第七段");
  auto lower = shapes.AddShape(word::msoShapeRectangle, 100, 180, 20, 10);
  lower->SetName(u"下");
  lower->SetTop(340);
  app->ActiveDocument().Content()->ExportFragment(FromUtf8(fragment.string()));

  const std::optional<DrawingList> list = ReadDrawingList(fragment.string(), {u"上", u"下"});
  ASSERT_TRUE(list && list->items.size() == 2);
  EXPECT_NEAR(list->items[1].path[0].points[0].y - list->items[0].path[0].points[0].y, 40, 0.01);
}

TEST(Fragment, InsertFileBringsTheFigureToTheCaretOfAnotherDocument) {
  Files files;
  const fs::path source = files("a.docx"), fragment = files("f.docx"), target = files("b.docx");
  {
    auto app = word::docx::OpenDocx(source);
    DrawNumberLine(*app);
    app->ActiveDocument().Content()->ExportFragment(FromUtf8(fragment.string()));
  }
  {
    auto app = word::docx::OpenDocx(target);
    app->Selection().TypeText(u"前后");
    app->Selection().MoveLeft(word::wdCharacter, 1);
    auto at = app->Selection().Range();
    at->InsertFile(FromUtf8(fragment.string()));
    EXPECT_EQ(at->End() - at->Start(), 1);  // the anchor's one position
    EXPECT_EQ(at->ShapeRange()->Count(), 1);
    EXPECT_EQ(app->ActiveDocument().Content()->Text().substr(0, 1), u"前");
    app->SaveIfChanged();
  }
  // The shapes' namespaces are declared where they now stand.
  const std::string body = *PackageOf(target).Read("word/document.xml");
  for (const char* prefix : {"xmlns:wps=", "xmlns:wpg=", "xmlns:wp=", "xmlns:a="})
    EXPECT_NE(body.substr(0, body.find("<w:body")).find(prefix), std::string::npos) << prefix;
  auto reopened = word::docx::OpenDocx(target);
  word::Shapes& shapes = reopened->ActiveDocument().Shapes();
  ASSERT_EQ(shapes.Count(), 1);
  EXPECT_EQ(shapes.Item(1)->Name(), u"数轴图：9_lumenpad");
  EXPECT_EQ(shapes.Item(1)->Type(), word::msoGroup);
  const std::optional<DrawingList> list = ReadDrawingList(target.string());
  ASSERT_TRUE(list);
  EXPECT_NEAR(list->width, 200, 0.01);
}

// A picture inside a text box comes along: its part is copied and the
// relationship that names it points at the copy.
TEST(Fragment, InsertFileCopiesThePicturesItsShapesUse) {
  const fs::path corpus =
      fs::path(LP_SHARED_DIR) / "corpus/docx/powertools/WC067-Textbox-Image.docx";
  LP_SKIP_WITHOUT_SHARED(corpus);
  Files files;
  const fs::path copy = files("image.docx"), fragment = files("image_f.docx"),
                 target = files("t.docx");
  fs::copy_file(corpus, copy);
  word::docx::OpenDocx(copy)->ActiveDocument().Content()->ExportFragment(
      FromUtf8(fragment.string()));
  {
    auto app = word::docx::OpenDocx(target);
    app->Selection().Range()->InsertFile(FromUtf8(fragment.string()));
    app->SaveIfChanged();
  }
  const word::docx::Package package = PackageOf(target);
  const std::string body = *package.Read("word/document.xml");
  const std::string rels = *package.Read("word/_rels/document.xml.rels");
  std::smatch embed;
  ASSERT_TRUE(std::regex_search(body, embed, std::regex("r:embed=\"([^\"]+)\"")));
  std::smatch target_;
  ASSERT_TRUE(
      std::regex_search(rels, target_,
                        std::regex("Id=\"" + embed[1].str() +
                                   "\"[^>]*Target=\"([^\"]+)\"|Target=\"([^\"]+)\"[^>]*Id=\"" +
                                   embed[1].str() + "\"")));
  const std::string part = "word/" + (target_[1].matched ? target_[1].str() : target_[2].str());
  EXPECT_TRUE(package.Has(part)) << part;
  EXPECT_EQ(package.Read(part)->size(), 2350u);
}

// A fragment without the picture leaves the picture's part behind, and
// still opens.
TEST(Fragment, APictureTheFragmentDoesNotShowStaysBehind) {
  const fs::path corpus =
      fs::path(LP_SHARED_DIR) / "corpus/docx/powertools/WC067-Textbox-Image.docx";
  LP_SKIP_WITHOUT_SHARED(corpus);
  Files files;
  const fs::path copy = files("image2.docx"), fragment = files("image2_f.docx");
  fs::copy_file(corpus, copy);
  auto app = word::docx::OpenDocx(copy);
  word::Document& document = app->ActiveDocument();
  const long end = document.Content()->End();
  ASSERT_EQ(document.Range(end - 1, end)->ShapeRange()->Count(), 0);
  document.Range(end - 1, end)->ExportFragment(FromUtf8(fragment.string()));
  const word::docx::Package package = PackageOf(fragment);
  EXPECT_FALSE(package.Has("word/media/image1.tmp"));
  EXPECT_EQ(package.Read("word/_rels/document.xml.rels")->find("media/image1"), std::string::npos);
  EXPECT_NO_THROW(word::docx::OpenDocx(fragment));
}

}  // namespace
}  // namespace lp::gallery
