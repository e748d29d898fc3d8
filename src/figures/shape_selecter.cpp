#include "figures/shape_selecter.h"

namespace lp::figures {
namespace {

std::unique_ptr<word::ShapeRange> PageShapes(word::Application& app) {
  return app.ActiveDocument().Bookmarks().Item(u"\\Page")->ShapeRange();
}

int Index(ShapeFamily family) {
  return static_cast<int>(family);
}

}  // namespace

ShapeFamily FamilyOf(word::MsoShapeType type) {
  switch (type) {
    case word::msoLine:
      return ShapeFamily::kLine;
    case word::msoFreeform:
      return ShapeFamily::kCurve;
    case word::msoTextBox:
      return ShapeFamily::kTextBox;
    case word::msoGroup:
    case word::msoCanvas:
      return ShapeFamily::kGroup;
    case word::msoPicture:
      return ShapeFamily::kPicture;
    default:
      return ShapeFamily::kAutoShape;
  }
}

FamilyCounts CountPageShapes(word::Application& app) {
  FamilyCounts counts{};
  auto page = PageShapes(app);
  for (long i = 1; i <= page->Count(); ++i) ++counts[Index(FamilyOf(page->Item(i)->Type()))];
  return counts;
}

long SelectPageShapes(word::Application& app, const FamilyChoice& chosen) {
  auto page = PageShapes(app);
  long selected = 0;
  for (long i = 1; i <= page->Count(); ++i) {
    std::unique_ptr<word::Shape> shape = page->Item(i);
    if (!chosen[Index(FamilyOf(shape->Type()))]) continue;
    shape->Select(selected == 0);
    ++selected;
  }
  return selected;
}

}  // namespace lp::figures
