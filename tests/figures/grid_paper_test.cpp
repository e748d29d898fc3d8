#include "figures/grid_paper.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace lp::figures {
namespace {

int Count(const ShapeList& shapes, const std::u16string& name) {
  return static_cast<int>(std::count_if(shapes.begin(), shapes.end(),
                                        [&](const FigureShape& s) { return s.name == name; }));
}

TEST(GridPaper, LineCountsAndSpacingFillTheTextWidth) {
  struct Row {
    const char* name;
    GridKind kind;
    int grid, middle, diagonal;
  } rows[] = {
      // 3 rows of 1.5 cm cells across 415 pt: 9 columns.
      {"Square", GridKind::kSquare, 4 + 10, 0, 0},
      {"Tian", GridKind::kTian, 4 + 10, 3 + 9, 0},
      {"Mi", GridKind::kMi, 4 + 10, 3 + 9, 2 * 27},
      {"Coordinate", GridKind::kCoordinate, 4 + 10, 0, 0},
  };
  for (const Row& row : rows) {
    GridRequest r;
    r.kind = row.kind;
    r.rows = u"3";
    r.cellCm = u"1.5";
    const GridFigure f = MakeGridPaper(r);
    ASSERT_TRUE(f.error.empty()) << row.name;
    EXPECT_EQ(Count(f.shapes, u"格线"), row.grid) << row.name;
    EXPECT_EQ(Count(f.shapes, u"中线"), row.middle) << row.name;
    EXPECT_EQ(Count(f.shapes, u"斜线"), row.diagonal) << row.name;
    std::set<float> xs;
    for (const FigureShape& s : f.shapes)
      if (s.name == u"格线" && s.points[0].x == s.points[1].x) xs.insert(s.points[0].x);
    ASSERT_EQ(xs.size(), 10u) << row.name;
    const float cell = 1.5f * 28.4f;
    float expected = 180;
    for (float x : xs) {
      EXPECT_NEAR(x, expected, 0.01) << row.name;
      expected += cell;
    }
    EXPECT_LE(*xs.rbegin() - 180, 415);
    EXPECT_GT(*xs.rbegin() - 180 + cell, 415);
  }
}

TEST(GridPaper, CoordinatePaperDashesAllButEveryFifthLine) {
  GridRequest r;
  r.kind = GridKind::kCoordinate;
  r.rows = u"10";
  r.cellCm = u"0.5";
  const GridFigure f = MakeGridPaper(r);
  int solidRows = 0;
  for (const FigureShape& s : f.shapes)
    if (s.points[0].y == s.points[1].y && !s.dashed) ++solidRows;
  EXPECT_EQ(solidRows, 3);  // lines 0, 5 and 10
}

TEST(GridPaper, RefusedInputsSayWhy) {
  GridRequest r;
  r.rows = u"0";
  EXPECT_FALSE(MakeGridPaper(r).error.empty());
  r.rows = u"2.5";
  EXPECT_FALSE(MakeGridPaper(r).error.empty());
  r.rows = u"2";
  r.cellCm = u"x";
  EXPECT_FALSE(MakeGridPaper(r).error.empty());
}

}  // namespace
}  // namespace lp::figures
