#include "gallery/selection_drawing.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <optional>
#include <system_error>

#include "runtime/utf8.h"
#include "session/files.h"

namespace lp::gallery {

TempFragment::TempFragment(const char* stem) {
  static int serial = 0;
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  path = ToUtf8(GetTempDir()) + stem + "_" + std::to_string(now) + "_" + std::to_string(++serial) +
         ".docx";
}

TempFragment::~TempFragment() {
  std::error_code error;
  std::filesystem::remove(path, error);
}

namespace {

// The field whose marks enclose the caret or touch it: a click on a formula
// leaves the caret there, and that is the formula meant.
bool SelectFieldAtCaret(word::Application& app) {
  const long caret = app.Selection().Start();
  word::Fields& fields = app.ActiveDocument().Fields();
  for (long i = 1; i <= fields.Count(); ++i) {
    std::unique_ptr<word::Field> field = fields.Item(i);
    std::unique_ptr<word::Range> code = field->Code();
    if (code->Start() - 1 <= caret && caret <= code->End() + 1) {
      field->Select();
      return true;
    }
  }
  return false;
}

bool AnchoredBefore(word::Document& document, long end, const std::u16string& name) {
  std::unique_ptr<word::ShapeRange> shapes = document.Range(0, end)->ShapeRange();
  for (long i = 1; i <= shapes->Count(); ++i)
    if (shapes->Item(i)->Name() == name) return true;
  return false;
}

// The position of the shape's anchor in the body, found by halving: the
// shapes anchored in [0, end) grow with end.
std::optional<long> AnchorPosition(word::Document& document, const std::u16string& name) {
  long low = 0, high = document.Content()->End();
  if (!AnchoredBefore(document, high, name)) return std::nullopt;
  while (low + 1 < high) {
    const long middle = low + (high - low) / 2;
    (AnchoredBefore(document, middle, name) ? high : low) = middle;
  }
  return low;
}

// Selected text is saved for its formulas and drawings; plain text alone is
// no picture.
bool HoldsFormulaOrDrawing(const DrawingList& drawing) {
  for (const Item& item : drawing.items) {
    if (item.kind != Item::kText) return true;
    for (const TextLine& line : item.lines)
      for (const TextRun& run : line.runs)
        if (run.formula) return true;
  }
  return false;
}

}  // namespace

std::unique_ptr<word::Range> AnchorSpan(word::Document& document,
                                        const std::vector<std::u16string>& names) {
  long start = -1, end = -1;
  for (const std::u16string& name : names) {
    const std::optional<long> at = AnchorPosition(document, name);
    if (!at) return nullptr;
    start = start < 0 ? *at : std::min(start, *at);
    end = std::max(end, *at + 1);
  }
  return start < 0 ? nullptr : document.Range(start, end);
}

SelectionExport ExportSelection(Session& session, const std::string& path) {
  word::Application& app = *session.WordApp;
  word::Selection& selection = app.Selection();
  SelectionExport result;
  word::WdSelectionType type = selection.Type();
  if (type == word::wdSelectionIP && SelectFieldAtCaret(app)) type = word::wdSelectionNormal;
  if (type == word::wdSelectionShape) {
    auto shapes = selection.ShapeRange();
    for (long i = 1; i <= shapes->Count(); ++i)
      result.shapeNames.push_back(shapes->Item(i)->Name());
    word::Document& document = app.ActiveDocument();
    std::unique_ptr<word::Range> span = AnchorSpan(document, result.shapeNames);
    if (!span) span = document.Content();
    // The shapes are found again by name in the exported body.
    span->ExportFragment(FromUtf8(path));
  } else if (type == word::wdSelectionNormal || type == word::wdSelectionInlineShape) {
    selection.Range()->ExportFragment(FromUtf8(path));
  } else {
    result.error = u"请先选中要保存的图形或公式！";
  }
  return result;
}

SelectionPicture ReadSelectionPicture(const std::string& path, const SelectionExport& exported) {
  SelectionPicture picture;
  std::optional<DrawingList> drawing = ReadDrawingList(path, exported.shapeNames);
  if (!drawing || drawing->Empty() ||
      (exported.shapeNames.empty() && !HoldsFormulaOrDrawing(*drawing))) {
    picture.error = u"选中的内容里没有可以保存的图形或公式！";
    return picture;
  }
  picture.drawing = std::move(*drawing);
  return picture;
}

SelectionPicture SelectionDrawing(Session& session) {
  const TempFragment file("lumenpad_picture");
  const SelectionExport exported = ExportSelection(session, file.path);
  if (!exported.error.empty()) return {exported.error, {}};
  return ReadSelectionPicture(file.path, exported);
}

}  // namespace lp::gallery
