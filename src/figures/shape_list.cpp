#include "figures/shape_list.h"

#include <utility>

namespace lp::figures {

FigureShape Line(std::u16string name, float x1, float y1, float x2, float y2) {
  FigureShape s;
  s.kind = ShapeKind::kLine;
  s.name = std::move(name);
  s.points = {{x1, y1}, {x2, y2}};
  return s;
}

FigureShape Rectangle(std::u16string name, float left, float top, float width, float height) {
  FigureShape s;
  s.kind = ShapeKind::kRectangle;
  s.name = std::move(name);
  s.left = left;
  s.top = top;
  s.width = width;
  s.height = height;
  s.fill = FillKind::kDefault;
  return s;
}

FigureShape Label(std::u16string name, std::u16string text, float left, float top, float width,
                  float height) {
  FigureShape s = Rectangle(std::move(name), left, top, width, height);
  s.kind = ShapeKind::kTextBox;
  s.text = std::move(text);
  s.fill = FillKind::kNone;
  s.lineVisible = false;
  return s;
}

}  // namespace lp::figures
