#pragma once
// A figure or formula as plain things to paint: paths, ellipses and text
// lines in points, measured from the figure's top-left corner. It is read
// from the DrawingML and the runs of a Word document, so a picture shows the
// geometry the document holds; a painter (Qt in the dialogs) draws it.

#include <optional>
#include <string>
#include <vector>

namespace lp::gallery {

struct Point {
  double x = 0;
  double y = 0;
};

struct Stroke {
  bool visible = true;
  long rgb = 0;  // 0xRRGGBB
  double width = 0.75;
  bool dashed = false;
  bool beginArrow = false;
  bool endArrow = false;
};

struct Fill {
  bool visible = false;
  long rgb = 0xFFFFFF;
};

// Moves, lines and cubic Beziers: a move starts a subpath; a cubic takes
// the two controls and its end as three points.
struct PathStep {
  enum Kind { kMove, kLine, kCubic, kClose } kind = kMove;
  std::vector<Point> points;
};

// One run of a text line: plain text, or a formula as LaTeX.
struct TextRun {
  std::u16string text;
  bool formula = false;
  double size = 10.5;  // points
  bool italic = false;
  bool bold = false;
  int script = 0;  // 1 raised, -1 lowered
  long rgb = 0;
};

struct TextLine {
  std::vector<TextRun> runs;
  int alignment = 0;  // 0 left, 1 centre, 2 right
};

struct Item {
  enum Kind { kPath, kEllipse, kText, kPicture } kind = kPath;
  Stroke stroke;
  Fill fill;
  std::vector<PathStep> path;             // kPath
  Point topLeft, bottomRight;             // the box of kEllipse, kText and kPicture
  std::vector<TextLine> lines;            // kText: text inside the box's margins
  std::string picture;                    // kPicture: the bytes of the image file
  bool mirrorH = false, mirrorV = false;  // kPicture: shown mirrored
  double insetLeft = 7.2, insetTop = 3.6, insetBottom = 3.6;
  int anchor = 0;  // kText: its lines stand at the top (0), middle (1) or bottom (2)
  // Ellipses, text and pictures turn by this many degrees, clockwise, about the
  // centre of their box; paths come with their points turned.
  double rotation = 0;
};

struct DrawingList {
  double width = 0;
  double height = 0;
  std::vector<Item> items;
  // The names of the figure's top-level shapes, in document order.
  std::vector<std::u16string> names;
  bool Empty() const { return items.empty(); }
};

// The floating shapes of a .docx file (only those named in `names` when
// any are given); when it holds none, its drawings in line with the text,
// or else the text and formulas of its body as lines. Nothing when the file
// is not a readable Word document.
std::optional<DrawingList> ReadDrawingList(const std::string& path,
                                           const std::vector<std::u16string>& names = {});

// The code of an EQ field ("EQ" first) as LaTeX for the formula typesetter;
// a code the formula engine can't read comes back as its text.
std::u16string EqCodeToLatex(const std::u16string& code);

}  // namespace lp::gallery
