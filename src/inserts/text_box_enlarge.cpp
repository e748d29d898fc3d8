#include "inserts/shape_tools.h"
#include "session/figure.h"

namespace lp {
namespace {

constexpr float kBoxWidth = 60;
constexpr float kBoxHeight = 20;
constexpr float kEnlargement = 1.1f;

std::unique_ptr<word::Shape> AddBox(Session& session) {
  word::Application& app = *session.WordApp;
  word::Selection& selection = app.Selection();
  if (selection.Type() == word::wdSelectionShape) {
    auto selected = selection.ShapeRange();
    if (selected->Type() == word::msoCanvas) {
      auto canvas = app.ActiveDocument().Shapes().Item(selected->Name());
      return canvas->CanvasItems()->AddTextbox(word::msoTextOrientationHorizontal, session.AnchorX,
                                               session.AnchorY, kBoxWidth, kBoxHeight);
    }
  }
  auto box = app.ActiveDocument().Shapes().AddTextbox(
      word::msoTextOrientationHorizontal, session.AnchorX, session.AnchorY, kBoxWidth, kBoxHeight);
  box->Select();
  return box;
}

template <class S>
void Enlarge(S& shape) {
  const float width = shape.Width(), height = shape.Height();
  shape.SetWidth(width * kEnlargement);
  shape.SetHeight(height * kEnlargement);
}

}  // namespace

void InsertPlainTextBox(Session& session, const std::u16string& text) {
  GetCaretAnchor(session);
  auto box = AddBox(session);
  word::TextFrame& frame = box->TextFrame();
  frame.SetMarginLeft(0);
  frame.SetMarginRight(0);
  frame.SetMarginTop(0);
  frame.SetMarginBottom(0);
  frame.SetAutoSize(false);
  box->Fill().SetVisible(false);
  box->Line().SetVisible(false);
  auto range = frame.TextRange();
  range->SetText(text);
  range->Select();
}

void EnlargeSelection(Session& session) {
  word::Selection& selection = session.WordApp->Selection();
  switch (selection.Type()) {
    case word::wdSelectionShape:
      Enlarge(*selection.ShapeRange());
      break;
    case word::wdSelectionInlineShape:
      Enlarge(*selection.InlineShapes().Item(1));
      break;
    default:
      break;
  }
}

}  // namespace lp
