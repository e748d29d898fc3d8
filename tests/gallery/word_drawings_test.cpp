// Drawings as Word writes them, read back as the page shows them: theme
// colours against the palette Word shows for its default theme, turned and
// mirrored groups, arcs, and drawings in line with the text.

#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "../shared_material.h"
#include "gallery/drawing_list.h"
#include "gallery/preset_outline.h"
#include "gallery/theme_colors.h"
#include "word/docx/package.h"

namespace lp::gallery {
namespace {

struct ColorRow {
  const char* name;
  const char* color;  // the children of a:solidFill
  long rgb;
};

TEST(ThemeColors, WordsPaletteOfTheDefaultTheme) {
  // The values Word's colour picker names for these entries.
  const ColorRow rows[] = {
      {"plain", R"(<a:srgbClr val="1F2E3D"/>)", 0x1F2E3D},
      {"accent", R"(<a:schemeClr val="accent1"/>)", 0x4472C4},
      {"text is dark 1", R"(<a:schemeClr val="tx1"/>)", 0x000000},
      {"background darker 15%", R"(<a:schemeClr val="bg1"><a:lumMod val="85000"/></a:schemeClr>)",
       0xD9D9D9},
      {"text lighter 35%",
       R"(<a:schemeClr val="tx1"><a:lumMod val="65000"/><a:lumOff val="35000"/></a:schemeClr>)",
       0x595959},
      {"accent lighter 40%",
       R"(<a:schemeClr val="accent1"><a:lumMod val="60000"/><a:lumOff val="40000"/></a:schemeClr>)",
       0x8FAADC},
      {"accent darker 25%", R"(<a:schemeClr val="accent2"><a:lumMod val="75000"/></a:schemeClr>)",
       0xC55A11},
      {"outline of a default shape",
       R"(<a:schemeClr val="accent1"><a:shade val="50000"/></a:schemeClr>)", 0x2F528F},
      {"system colour", R"(<a:sysClr val="windowText" lastClr="000000"/>)", 0x000000},
      {"preset colour", R"(<a:prstClr val="white"/>)", 0xFFFFFF},
  };
  const ThemeColors theme{pugi::xml_node()};
  for (const ColorRow& row : rows) {
    pugi::xml_document xml;
    ASSERT_TRUE(xml.load_string(
        (std::string("<a:solidFill xmlns:a=\"a\">") + row.color + "</a:solidFill>").c_str()))
        << row.name;
    EXPECT_EQ(theme.ColorIn(xml.first_child()), row.rgb) << row.name;
  }
}

TEST(ThemeColors, ShapesStyledByTheirThemeReadBackInTheirColours) {
  const std::string file = LP_SHARED_DIR "/corpus/docx/shapes/aspose-Various shapes.docx";
  LP_SKIP_WITHOUT_SHARED(file);
  const auto rectangle = ReadDrawingList(file, {u"Rectangle 1"});
  ASSERT_TRUE(rectangle && rectangle->items.size() == 1);
  const Item& box = rectangle->items[0];
  EXPECT_TRUE(box.fill.visible);
  EXPECT_EQ(box.fill.rgb, 0x4472C4);
  EXPECT_TRUE(box.stroke.visible);
  EXPECT_EQ(box.stroke.rgb, 0x2F528F);
  EXPECT_DOUBLE_EQ(box.stroke.width, 1.0);  // the theme's second line style

  const auto group = ReadDrawingList(file, {u"Group 5"});
  ASSERT_TRUE(group && group->items.size() == 2);
  EXPECT_EQ(group->items[0].fill.rgb, 0x70AD47);
  EXPECT_EQ(group->items[1].fill.rgb, 0xED7D31);

  const auto textBox = ReadDrawingList(file, {u"Text Box 2"});
  ASSERT_TRUE(textBox && textBox->items.size() == 2);
  EXPECT_EQ(textBox->items[0].fill.rgb, 0xFFFFFF);
  EXPECT_EQ(textBox->items[0].stroke.rgb, 0x000000);
  EXPECT_EQ(textBox->items[1].lines.at(0).runs.at(0).rgb, 0x000000);
}

struct PresetRow {
  const char* name;
  const char* preset;
  const char* adjustments;  // the a:gd elements of a:avLst
  std::vector<Point> corners;
  bool closed;
};

// Outlines in a 20 by 10 pt box, worked out from Word's preset definitions.
TEST(PresetOutline, ConnectorsArrowsAndBoxes) {
  const PresetRow rows[] = {
      {"elbow connector", "bentConnector2", "", {{0, 0}, {20, 0}, {20, 10}}, false},
      {"elbow with its bend moved",
       "bentConnector3",
       R"(<a:gd name="adj1" fmla="val 25000"/>)",
       {{0, 0}, {5, 0}, {5, 10}, {20, 10}},
       false},
      {"straight connector", "straightConnector1", "", {{0, 0}, {20, 10}}, false},
      {"right arrow",
       "rightArrow",
       "",
       {{0, 2.5}, {15, 2.5}, {15, 0}, {20, 5}, {15, 10}, {15, 7.5}, {0, 7.5}},
       true},
      {"left arrow", "leftArrow", "", {{20, 2.5}, {5, 2.5}, {5, 0}, {0, 5}}, true},
      {"parallelogram", "parallelogram", "", {{2.5, 0}, {20, 0}, {17.5, 10}, {0, 10}}, true},
      {"unknown preset as its box", "cloud", "", {{0, 0}, {20, 0}, {20, 10}, {0, 10}}, true},
  };
  for (const PresetRow& row : rows) {
    pugi::xml_document av;
    av.load_string((std::string("<a:avLst>") + row.adjustments + "</a:avLst>").c_str());
    const std::vector<PathStep> steps =
        PresetOutline(row.preset, 20, 10, av.first_child()).at(0).steps;
    std::vector<Point> corners;
    for (const PathStep& step : steps)
      if (step.kind == PathStep::kMove || step.kind == PathStep::kLine)
        corners.push_back(step.points.at(0));
    ASSERT_GE(corners.size(), row.corners.size()) << row.name;
    for (size_t i = 0; i < row.corners.size(); ++i) {
      EXPECT_NEAR(corners[i].x, row.corners[i].x, 1e-9) << row.name << " corner " << i;
      EXPECT_NEAR(corners[i].y, row.corners[i].y, 1e-9) << row.name << " corner " << i;
    }
    EXPECT_EQ(!steps.empty() && steps.back().kind == PathStep::kClose, row.closed) << row.name;
  }
}

// Word's arc: a quarter of the ellipse from the top clockwise to the right
// by default, drawn as its curve with the slice under it filled.
TEST(PresetOutline, ArcsAreCurvesOverTheirSlices) {
  const std::vector<OutlinePath> arc = PresetOutline("arc", 20, 10, pugi::xml_node());
  ASSERT_EQ(arc.size(), 2u);
  EXPECT_TRUE(arc[0].filled && !arc[0].stroked);
  EXPECT_TRUE(arc[1].stroked && !arc[1].filled);
  const std::vector<PathStep>& curve = arc[1].steps;
  EXPECT_NEAR(curve.front().points[0].x, 10, 1e-9);
  EXPECT_NEAR(curve.front().points[0].y, 0, 1e-9);
  EXPECT_NEAR(curve.back().points[0].x, 20, 1e-9);
  EXPECT_NEAR(curve.back().points[0].y, 5, 1e-9);
  EXPECT_EQ(arc[0].steps.back().kind, PathStep::kClose);

  pugi::xml_document av;
  av.load_string(R"(<a:avLst><a:gd name="adj1" fmla="val 5400000"/>)"
                 R"(<a:gd name="adj2" fmla="val 10800000"/></a:avLst>)");
  const std::vector<OutlinePath> pie = PresetOutline("pie", 20, 10, av.first_child());
  ASSERT_EQ(pie.size(), 1u);
  // From the bottom to the left, then to the centre.
  const std::vector<PathStep>& steps = pie[0].steps;
  EXPECT_NEAR(steps.front().points[0].x, 10, 1e-9);
  EXPECT_NEAR(steps.front().points[0].y, 10, 1e-9);
  EXPECT_NEAR(steps[steps.size() - 3].points[0].x, 0, 1e-9);
  EXPECT_NEAR(steps[steps.size() - 2].points[0].y, 5, 1e-9);
}

// A document whose body is `body`, with a picture part for rIdP.
class WordFile {
 public:
  explicit WordFile(const std::string& body)
      : path_(std::filesystem::temp_directory_path() /
              ("lp_drawings_" + std::to_string(getpid()) + "_" + std::to_string(++serial_) +
               ".docx")) {
    word::docx::Package package = word::docx::Package::Empty();
    package.Write("word/document.xml", "<w:document><w:body>" + body + "</w:body></w:document>");
    package.Write("word/_rels/document.xml.rels",
                  R"(<Relationships><Relationship Id="rIdP" Type="image" )"
                  R"(Target="media/p.png"/></Relationships>)");
    package.Write("word/media/p.png", "\x89PNG bytes");
    package.SaveTo(path_);
  }
  ~WordFile() { std::filesystem::remove(path_); }
  std::string Path() const { return path_.string(); }

 private:
  static inline int serial_ = 0;
  std::filesystem::path path_;
};

std::string Drawing(const char* kind, const std::string& graphic) {
  return std::string("<w:p><w:r><w:drawing><") + kind + R"(><wp:extent cx="254000" cy="127000"/>)" +
         R"(<wp:docPr name="F"/><a:graphic><a:graphicData>)" + graphic +
         "</a:graphicData></a:graphic></" + kind + "></w:drawing></w:r></w:p>";
}

// A 20 by 10 pt group, mirrored left to right and turned a quarter turn
// clockwise, holding a line along the left half of its top edge and an arc
// whose outline and filled slice are separate paths.
constexpr const char* kTurnedGroup =
    R"(<wpg:wgp><wpg:grpSpPr><a:xfrm rot="5400000" flipH="1"><a:off x="0" y="0"/>)"
    R"(<a:ext cx="254000" cy="127000"/><a:chOff x="0" y="0"/><a:chExt cx="254000" cy="127000"/>)"
    R"(</a:xfrm></wpg:grpSpPr><wps:wsp><wps:spPr><a:xfrm><a:off x="0" y="0"/>)"
    R"(<a:ext cx="127000" cy="0"/></a:xfrm><a:prstGeom prst="line"/><a:ln w="12700"/></wps:spPr>)"
    R"(</wps:wsp><wps:wsp><wps:spPr><a:xfrm><a:off x="0" y="0"/><a:ext cx="127000" cy="127000"/>)"
    R"(</a:xfrm><a:custGeom><a:pathLst><a:path w="10" h="10" fill="none"><a:moveTo>)"
    R"(<a:pt x="0" y="0"/></a:moveTo><a:lnTo><a:pt x="10" y="10"/></a:lnTo></a:path>)"
    R"(<a:path w="10" h="10" stroke="0"><a:moveTo><a:pt x="0" y="0"/></a:moveTo><a:lnTo>)"
    R"(<a:pt x="10" y="10"/></a:lnTo><a:lnTo><a:pt x="0" y="10"/></a:lnTo><a:close/></a:path></a:pathLst>)"
    R"(</a:custGeom><a:solidFill><a:srgbClr val="FF0000"/></a:solidFill><a:ln/></wps:spPr>)"
    R"(</wps:wsp></wpg:wgp>)";

TEST(WordDrawings, TurnedGroupsArcsAndDrawingsInLine) {
  const WordFile turned(Drawing("wp:anchor", kTurnedGroup));
  const std::optional<DrawingList> group = ReadDrawingList(turned.Path());
  ASSERT_TRUE(group);
  ASSERT_EQ(group->items.size(), 3u);
  // The top edge of the group ends up on its right side, drawn downwards.
  const Item& line = group->items[0];
  ASSERT_EQ(line.path.size(), 2u);
  EXPECT_NEAR(line.path[0].points[0].x, line.path[1].points[0].x, 1e-9);
  EXPECT_NEAR(line.path[0].points[0].y - line.path[1].points[0].y, 10, 1e-9);
  EXPECT_NEAR(group->width, 10, 1e-9);
  EXPECT_NEAR(group->height, 10, 1e-9);
  const Item &outline = group->items[1], &slice = group->items[2];
  EXPECT_TRUE(outline.stroke.visible);
  EXPECT_FALSE(outline.fill.visible);
  EXPECT_FALSE(slice.stroke.visible);
  EXPECT_TRUE(slice.fill.visible);
  EXPECT_EQ(slice.fill.rgb, 0xFF0000);

  const WordFile inLine(Drawing("wp:inline",
                                R"(<pic:pic><pic:blipFill><a:blip r:embed="rIdP"/>)"
                                R"(</pic:blipFill><pic:spPr><a:xfrm flipH="1"><a:off x="0" y="0"/>)"
                                R"(<a:ext cx="254000" cy="127000"/></a:xfrm>)"
                                R"(</pic:spPr></pic:pic>)"));
  const std::optional<DrawingList> picture = ReadDrawingList(inLine.Path());
  ASSERT_TRUE(picture && picture->items.size() == 1);
  EXPECT_EQ(picture->items[0].kind, Item::kPicture);
  EXPECT_EQ(picture->items[0].picture, "\x89PNG bytes");
  EXPECT_TRUE(picture->items[0].mirrorH);
  EXPECT_NEAR(picture->width, 20, 1e-9);
  EXPECT_NEAR(picture->height, 10, 1e-9);
}

}  // namespace
}  // namespace lp::gallery
