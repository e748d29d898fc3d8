// Shapes through the whole .docx engine: drawn into a new file, saved,
// checked by the corpus validator and the shape schemas, opened again.

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>

#include "../shared_material.h"
#include "schema_check.h"
#include "word/docx/docx_application.h"
#include "word/docx/docx_document.h"

namespace shapes_test {
namespace {

namespace fs = std::filesystem;

// A number line closed as every figure is: grouped, selected, named, stacked, moved.
void DrawFigure(word::Application& app) {
  word::Shapes& shapes = app.ActiveDocument().Shapes();
  auto axis = shapes.AddLine(100, 500, 300, 500);
  axis->SetName(u"数轴：1_lumenpad");
  axis->Line().SetEndArrowheadStyle(word::msoArrowheadStealth);
  auto dot = shapes.AddShape(word::msoShapeOval, 148, 498, 4, 4);
  dot->SetName(u"点a：2_lumenpad");
  dot->Fill().ForeColor().SetRGB(0);
  auto label = shapes.AddTextbox(word::msoTextOrientationHorizontal, 140, 505, 30, 20);
  label->SetName(u"刻度：3_lumenpad");
  label->Fill().SetVisible(false);
  label->Line().SetVisible(false);
  label->TextFrame().TextRange()->SetText(u"a");
  shapes.Range({u"数轴：1_lumenpad", u"点a：2_lumenpad", u"刻度：3_lumenpad"})->Group()->Select();
  auto figure = app.Selection().ShapeRange();
  figure->SetName(u"区间：123_lumenpad");
  figure->ZOrder(word::msoSendToBack);
  figure->ZOrder(word::msoBringInFrontOfText);
  figure->SetLeft(300);
  figure->SetTop(450);
}

void DrawOneOfEach(word::Application& app) {
  word::Shapes& shapes = app.ActiveDocument().Shapes();
  shapes.AddShape(word::msoShapeRectangle, 100, 150, 120, 60)->Fill().Patterned(40);
  shapes.AddLine(100, 250, 300, 300)->Line().SetDashStyle(word::msoLineDash);
  auto box = shapes.AddTextbox(word::msoTextOrientationHorizontal, 350, 150, 150, 60);
  box->TextFrame().TextRange()->SetText(u"文本框");
  auto end = box->TextFrame().TextRange();
  end->Collapse(word::wdCollapseEnd);
  end->Fields().Add(*end, word::wdFieldEmpty, u"EQ \\F(1,2)", false);
  shapes.AddCurve({{100, 350}, {150, 300}, {200, 400}, {250, 350}})->Fill().SetVisible(false);
  auto freeform = shapes.BuildFreeform(word::msoEditingAuto, 300, 350);
  freeform->AddNodes(word::msoSegmentLine, word::msoEditingAuto, 350, 400);
  freeform->AddNodes(word::msoSegmentLine, word::msoEditingAuto, 300, 350);
  freeform->ConvertToShape();
}

TEST(ShapesInAFile, EveryKindSurvivesSavingAndOpening) {
  LP_SKIP_WITHOUT_SHARED(LP_SHARED_DIR);
  const fs::path file =
      fs::temp_directory_path() / ("lp_shapes_" + std::to_string(getpid()) + ".docx");
  fs::remove(file);
  {
    auto app = word::docx::OpenDocx(file);
    app->Selection().TypeText(u"形状");
    DrawOneOfEach(*app);
    DrawFigure(*app);
    EXPECT_EQ(app->Selection().Type(), word::wdSelectionShape);
    EXPECT_TRUE(ValidatesWithShapeSchemas(app->Document().DocumentXml()));
    app->SaveIfChanged();
  }
  const std::string validator = std::string(LP_SHARED_DIR) + "/corpus/tools/validate_docx.sh";
  EXPECT_EQ(std::system((validator + " '" + file.string() + "'").c_str()), 0);

  auto app = word::docx::OpenDocx(file);
  word::Shapes& shapes = app->ActiveDocument().Shapes();
  EXPECT_EQ(shapes.Count(), 6);
  auto figure = shapes.Item(u"区间：123_lumenpad");
  EXPECT_EQ(figure->Type(), word::msoGroup);
  EXPECT_FLOAT_EQ(figure->Left(), 300);
  EXPECT_EQ(shapes.Item(3)->TextFrame().TextRange()->Text().substr(0, 3), u"文本框");
  fs::remove(file);
}

}  // namespace
}  // namespace shapes_test
