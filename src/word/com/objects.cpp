#include "word/com/shapes.h"

namespace word::com {

std::unique_ptr<word::Range> ComField::Code() {
  return std::make_unique<ComRange>(Fixed(L"Code"));
}

std::unique_ptr<word::Range> ComField::Result() {
  return std::make_unique<ComRange>(Fixed(L"Result"));
}

std::unique_ptr<word::Range> ComCharacters::Item(long index) {
  return std::make_unique<ComRange>(Fixed(L"Item", {index}));
}

template <class Base>
std::unique_ptr<word::ShapeRange> RangeImpl<Base>::ShapeRange() {
  return std::make_unique<ComShapeRange>(Fixed(L"ShapeRange"));
}
template class RangeImpl<word::Range>;
template class RangeImpl<word::Selection>;

template <class Base>
std::unique_ptr<Shapes> ShapeImpl<Base>::CanvasItems() {
  return std::make_unique<ComShapes>(Fixed(L"CanvasItems"));
}
template class ShapeImpl<Shape>;
template class ShapeImpl<ShapeRange>;

std::unique_ptr<word::ShapeRange> ComSelection::ShapeRange() {
  return std::make_unique<ComShapeRange>(Fixed(L"ShapeRange"));
}

void ComFreeformBuilder::AddNodes(MsoSegmentType segment, MsoEditingType editing, float x1,
                                  float y1, float x2, float y2, float x3, float y3) {
  // A curve drawn with corner nodes takes two control points and its end;
  // otherwise Word wants the end point alone.
  long type = static_cast<long>(segment), edit = static_cast<long>(editing);
  if (segment == msoSegmentCurve && editing == msoEditingCorner) {
    Call(L"AddNodes", {type, edit, x1, y1, x2, y2, x3, y3});
  } else {
    Call(L"AddNodes", {type, edit, x1, y1});
  }
}

namespace {

// A one-dimensional array of names, as Shapes.Range takes them.
Variant NameArray(const std::vector<Text>& names) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(names.size()));
  if (!array) Check(E_OUTOFMEMORY, "SafeArrayCreateVector");
  Variant result = Variant::Array(array, VT_VARIANT);
  for (LONG i = 0; i < static_cast<LONG>(names.size()); ++i) {
    Variant name(names[i]);
    Check(SafeArrayPutElement(array, &i, name.get()), "SafeArrayPutElement");
  }
  return result;
}

// An n by 2 array of singles: the points of a curve.
Variant PointArray(const std::vector<PointF>& points) {
  SAFEARRAYBOUND bounds[2] = {{static_cast<ULONG>(points.size()), 1}, {2, 1}};
  SAFEARRAY* array = SafeArrayCreate(VT_R4, 2, bounds);
  if (!array) Check(E_OUTOFMEMORY, "SafeArrayCreate");
  Variant result = Variant::Array(array, VT_R4);
  for (LONG i = 0; i < static_cast<LONG>(points.size()); ++i) {
    float xy[2] = {points[i].x, points[i].y};
    for (LONG j = 0; j < 2; ++j) {
      LONG index[2] = {i + 1, j + 1};
      Check(SafeArrayPutElement(array, index, &xy[j]), "SafeArrayPutElement");
    }
  }
  return result;
}

}  // namespace

std::unique_ptr<ShapeRange> ComShapes::Range(const std::vector<word::Text>& names) {
  return std::make_unique<ComShapeRange>(Fixed(L"Range", {NameArray(names)}));
}

std::unique_ptr<Shape> ComShapes::AddCurve(const std::vector<PointF>& points) {
  return std::make_unique<ComShape>(Fixed(L"AddCurve", {PointArray(points)}));
}

}  // namespace word::com
