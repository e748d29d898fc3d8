#pragma once
// What the teacher selected, written out as a Word document of its own: the
// selected floating shapes, or the selected text with its formulas. The
// picture export reads it as a drawing list; the gallery keeps it.

#include <memory>
#include <string>
#include <vector>

#include "gallery/drawing_list.h"
#include "session/session.h"

namespace lp::gallery {

struct SelectionExport {
  std::u16string error;                    // the message for the teacher; empty on success
  std::vector<std::u16string> shapeNames;  // the selected shapes; empty for text
};

// "请先选中要保存的图形或公式！" when nothing is selected.
SelectionExport ExportSelection(Session& session, const std::string& path);

// The selection as a drawing list; an error text when there is nothing to draw.
struct SelectionPicture {
  std::u16string error;
  DrawingList drawing;
};
SelectionPicture SelectionDrawing(Session& session);
// The drawing list of an exported selection; an error text when it shows no
// figure and no formula.
SelectionPicture ReadSelectionPicture(const std::string& path, const SelectionExport& exported);

// The smallest stretch of the body in which the named shapes are anchored;
// null when one of them is not anchored in the body.
std::unique_ptr<word::Range> AnchorSpan(word::Document& document,
                                        const std::vector<std::u16string>& names);

// A file in the temporary folder for one fragment (UTF-8), removed however
// its use ends.
struct TempFragment {
  explicit TempFragment(const char* stem);
  ~TempFragment();
  TempFragment(const TempFragment&) = delete;
  TempFragment& operator=(const TempFragment&) = delete;
  std::string path;
};

}  // namespace lp::gallery
