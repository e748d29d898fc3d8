#include "gallery/gallery_figures.h"

#include <algorithm>

#include "gallery/selection_drawing.h"
#include "runtime/text.h"
#include "runtime/utf8.h"
#include "session/figure.h"

namespace lp::gallery {
namespace {

// "组合：123…_lumenpad" is of the kind "组合".
std::u16string KindOf(const std::u16string& name) {
  const size_t colon = name.find(u'：');
  return colon == std::u16string::npos || colon == 0 ? u"图库" : name.substr(0, colon);
}

// The inserted shapes, as they stood in the gallery's document, moved so
// that their corner meets the caret anchor.
void PlaceAtCaret(Session& session, word::ShapeRange& shapes) {
  float left = 0, top = 0;
  for (long i = 1; i <= shapes.Count(); ++i) {
    std::unique_ptr<word::Shape> shape = shapes.Item(i);
    left = i == 1 ? shape->Left() : std::min(left, shape->Left());
    top = i == 1 ? shape->Top() : std::min(top, shape->Top());
  }
  std::vector<std::u16string> names;
  for (long i = 1; i <= shapes.Count(); ++i) {
    std::unique_ptr<word::Shape> shape = shapes.Item(i);
    names.push_back(strGetShapeName(KindOf(shape->Name())));
    shape->SetName(names.back());
    shape->SetLeft(session.AnchorX + shape->Left() - left);
    shape->SetTop(session.AnchorY + shape->Top() - top);
  }
  session.WordApp->ActiveDocument().Shapes().Range(names)->Select();
}

}  // namespace

bool InsertEntry(Session& session, long id) {
  const TempFragment file("lumenpad_gallery");
  if (!LoadEntryFile(session.databasePath, id, file.path, session.prompt)) return false;
  word::Application& app = *session.WordApp;
  GetCaretAnchor(session);
  word::Document& document = app.ActiveDocument();
  std::unique_ptr<word::Range> at = app.Selection().Range();
  at->Collapse(word::wdCollapseEnd);
  const long start = at->Start(), before = document.Content()->End();
  at->InsertFile(FromUtf8(file.path));
  // What came in is told by the body's growth, whether or not the range
  // grew over it.
  const long length = document.Content()->End() - before;
  std::unique_ptr<word::ShapeRange> shapes = document.Range(start, start + length)->ShapeRange();
  if (shapes->Count() > 0) PlaceAtCaret(session, *shapes);
  return true;
}

std::u16string SelectionProblem(Session& session) {
  const word::WdSelectionType type = session.WordApp->Selection().Type();
  if (type == word::wdSelectionShape || type == word::wdSelectionNormal) return {};
  return u"请先选中要保存的图形或公式！";
}

std::optional<DrawingList> EntryDrawing(Session& session, const GalleryEntry& entry) {
  const TempFragment file("lumenpad_thumbnail");
  if (!LoadEntryFile(session.databasePath, entry.id, file.path, session.prompt))
    return std::nullopt;
  return ReadDrawingList(file.path, entry.shapeNames);
}

std::u16string AddSelectionAsEntry(Session& session, const std::u16string& name) {
  if (std::u16string refused = CheckEntryName(name); !refused.empty()) return refused;
  const TempFragment file("lumenpad_gallery");
  const SelectionExport exported = ExportSelection(session, file.path);
  if (!exported.error.empty()) return exported.error;
  const SelectionPicture picture = ReadSelectionPicture(file.path, exported);
  if (!picture.error.empty()) return picture.error;
  if (!AddEntry(session.databasePath, Trim(name), file.path, exported.shapeNames, session.prompt))
    return u"图形没有存入图库。";
  return {};
}

}  // namespace lp::gallery
