#include <algorithm>
#include <memory>
#include <numeric>

#include "inserts/shape_tools.h"
#include "session/figure.h"

namespace lp {
namespace {

enum class Axis { kHorizontal, kVertical };

float PlaceOf(const word::Shape& shape, Axis axis) {
  return axis == Axis::kHorizontal ? shape.Left() : shape.Top();
}

float ExtentOf(const word::Shape& shape, Axis axis) {
  return axis == Axis::kHorizontal ? shape.Width() : shape.Height();
}

void MoveTo(word::Shape& shape, Axis axis, float place) {
  if (axis == Axis::kHorizontal)
    shape.SetLeft(place);
  else
    shape.SetTop(place);
}

void Join(Session& session, Axis axis) {
  auto selected = session.WordApp->Selection().ShapeRange();
  const long n = selected->Count();
  if (n < 2) {
    session.prompt.MsgBox(kTooFewToJoin);
    return;
  }
  std::vector<std::unique_ptr<word::Shape>> shapes;
  std::vector<float> places;
  for (long i = 1; i <= n; ++i) {
    shapes.push_back(selected->Item(i));
    places.push_back(PlaceOf(*shapes.back(), axis));
  }
  const std::vector<size_t> order = AscendingOrder(places);
  for (size_t k = 1; k < order.size(); ++k) {
    const word::Shape& before = *shapes[order[k - 1]];
    MoveTo(*shapes[order[k]], axis, PlaceOf(before, axis) + ExtentOf(before, axis));
  }
}

constexpr float kDot = 2;

}  // namespace

std::vector<size_t> AscendingOrder(const std::vector<float>& places) {
  std::vector<size_t> order(places.size());
  std::iota(order.begin(), order.end(), size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](size_t a, size_t b) { return places[a] < places[b]; });
  return order;
}

void JoinLeftToRight(Session& session) {
  Join(session, Axis::kHorizontal);
}

void JoinTopToBottom(Session& session) {
  Join(session, Axis::kVertical);
}

void GroupSelection(Session& session) {
  word::Application& app = *session.WordApp;
  const long count = app.Selection().ShapeRange()->Count();
  if (count >= 2) {
    app.Selection().ShapeRange()->Group();
    return;
  }
  if (count == 1) return;  // one shape is a group already
  if (session.prompt.MsgBox(kGroupWholePage, vbOKCancel) == vbCancel) return;
  auto page = app.ActiveDocument().Bookmarks().Item(u"\\Page")->ShapeRange();
  if (page->Count() < 1) return;
  page->Select();
  app.Selection().ShapeRange()->Group();
}

void DrawCenter(Session& session) {
  word::Application& app = *session.WordApp;
  if (app.Selection().Type() != word::wdSelectionShape) {
    session.prompt.MsgBox(kNotAShape);
    return;
  }
  auto shape = app.Selection().ShapeRange();
  ++session.ShapeCounter;
  shape->SetName(MakeShapeName(session, shape->Name()));
  const float left = shape->Left(), top = shape->Top();
  const float width = shape->Width(), height = shape->Height();
  ++session.ShapeCounter;
  const std::u16string name = MakeShapeName(session, u"中心点");
  const float dotLeft = left + width / 2 - kDot / 2, dotTop = top + height / 2 - kDot / 2;
  word::Shapes& shapes = app.ActiveDocument().Shapes();
  auto dot = shapes.AddShape(word::msoShapeOval, dotLeft, dotTop, kDot, kDot);
  dot->SetName(name);
  dot->Fill().ForeColor().SetRGB(word::RGB(0, 0, 0));
  dot->Fill().SetVisible(true);
  dot->Fill().Solid();
  // Word may measure a new shape from another corner than the selected one's.
  dot->SetLeft(dotLeft);
  dot->SetTop(dotTop);
  auto group = shapes.Range(session.ShapeNames)->Group();
  group->Select();
}

}  // namespace lp
