#include "solvers/shushi.h"

#include "figures/draw_list.h"
#include "runtime/text.h"
#include "session/figure.h"
#include "solvers/vertical_arithmetic.h"

namespace lp {
namespace {

std::u16string SelectedText(word::Selection& selection) {
  if (selection.Type() == word::wdSelectionShape) {
    std::unique_ptr<word::ShapeRange> shapes = selection.ShapeRange();
    if (shapes->Type() == word::msoTextBox) return Trim(shapes->TextFrame().TextRange()->Text());
  }
  if (selection.Type() == word::wdSelectionNormal) return Trim(selection.Text());
  return {};
}

// An empty answer asks again; only cancelling stops.
std::optional<std::u16string> AskForSum(Session& s, std::u16string text) {
  while (!HasArithmeticOperator(OperatorsToStar(text))) {
    std::optional<std::u16string> answer = s.prompt.InputBox(kColumnSumPrompt, kColumnSumTitle);
    if (!answer) return std::nullopt;
    text = Trim(*answer);
  }
  return OperatorsToStar(text);
}

// The cells, rules and bracket become one group at the caret.
void DrawColumnSum(Session& s, const ColumnSum& sum) {
  s.ShapeCounter = 0;
  s.ShapeNames.clear();
  figures::DrawShapeList(s, ColumnSumShapes(LayOutColumnSum(sum)));
  std::unique_ptr<word::Shape> group =
      s.WordApp->ActiveDocument().Shapes().Range(s.ShapeNames)->Group();
  group->SetName(strGetShapeName(u"竖式"));
  group->SetRelativeHorizontalPosition(word::wdRelativeHorizontalPositionPage);
  group->SetRelativeVerticalPosition(word::wdRelativeVerticalPositionPage);
  group->SetLeft(s.AnchorX);
  group->SetTop(s.AnchorY);
  s.ShapeCounter = 0;
  s.ShapeNames.clear();
}

}  // namespace

void ShuShi(Session& s) {
  std::optional<std::u16string> text = AskForSum(s, SelectedText(s.WordApp->Selection()));
  if (!text) return;
  std::optional<ColumnSum> sum = ReadColumnSum(*text);
  if (!sum) {
    s.prompt.MsgBox(kColumnSumRefused);
    return;
  }
  s.WordApp->SetScreenUpdating(false);
  GetCaretAnchor(s);
  DrawColumnSum(s, *sum);
  s.WordApp->SetScreenUpdating(true);
}

}  // namespace lp
