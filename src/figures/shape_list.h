#pragma once
// The shapes of a figure as plain values: what a figure routine computes and
// one drawer writes into Word. Lengths are points from the page corner.

#include <string>
#include <vector>

#include "word/types.h"

namespace lp::figures {

struct Point {
  float x = 0;
  float y = 0;
};

enum class ShapeKind {
  kLine,       // points[0] to points[1]
  kRectangle,  // left, top, width, height
  kOval,       // left, top, width, height
  kTextBox,    // left, top, width, height, text or field
  kCurve,      // Bezier through points (3k + 1 of them)
  kFreeform,   // from points[0], open: straight segments, or curved ones
               // taking three points each (two controls and the end)
  kFlowShape,  // left, top, width, height: the autoshape `flowShape`, with text
  kConnector,  // points[0] to points[1], attached at both ends (see below),
               // with an arrow
};

// How the shape's name is made from `name`.
enum class Naming {
  kFigure,      // MakeShapeName of the base, after raising ShapeCounter
  kUniqueName,  // the column arithmetic's own unique name of the base
  kExact,       // the text as it stands (cells addressed by name)
};

enum class FillKind {
  kNone,     // no fill at all
  kDefault,  // Word's default fill, left as it comes
  kColor,    // solid colour `rgb`
  kPattern,  // black on white, pattern `pattern` (1-48)
};

// Text boxes of a figure: margins 0, no fill, no line, wrap "in front".
struct TextStyle {
  float size = 10;
  bool bold = false;
  std::u16string latinFont;  // empty: the document's font
  std::u16string eastAsianFont;
  bool centred = false;
  bool invisibleFrame = true;  // no fill and no line around the text
  bool italic = false;
  std::vector<long> subscripts;  // 1-based positions of the characters lowered
};

struct FigureShape {
  ShapeKind kind = ShapeKind::kLine;
  std::u16string name;
  Naming naming = Naming::kFigure;
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
  std::vector<Point> points;
  bool curvedSegments = false;  // kFreeform only
  std::u16string text;
  bool textIsEqField = false;  // text is the code of an EQ field
  TextStyle textStyle;
  bool dashed = false;  // dash style 4
  bool axisArrows = false;
  bool lineVisible = true;
  FillKind fill = FillKind::kNone;
  long rgb = 0;
  long pattern = 0;
  float textMarginTop = 0;  // lowers the text within its shape
  word::MsoAutoShapeType flowShape = word::msoShapeFlowchartProcess;
  // A connector runs from connection site fromSite of the shape at index
  // `from` of the list to site toSite of the shape at `to`.
  size_t from = 0;
  size_t to = 0;
  long fromSite = 0;
  long toSite = 0;
  bool elbow = false;        // leaves `from` horizontally, meets `to` vertically
  bool arrowAtFrom = false;  // the arrow points into `from`, not `to`
};

using ShapeList = std::vector<FigureShape>;

// Builders for the common cases.
FigureShape Line(std::u16string name, float x1, float y1, float x2, float y2);
FigureShape Rectangle(std::u16string name, float left, float top, float width, float height);
FigureShape Label(std::u16string name, std::u16string text, float left, float top, float width,
                  float height);

}  // namespace lp::figures
