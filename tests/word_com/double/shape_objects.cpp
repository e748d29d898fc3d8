// Floating shapes: made, named, moved, formatted, grouped and selected.
#include <algorithm>
#include <cmath>

#include "double/objects.h"
#include "word/fake/record.h"

namespace comdouble {

using word::fake::Arg;

namespace {

WordFault NoSuchShape() {
  return WordFault{-2147024809, "未找到具有指定名称的项目。"};
}

Kept ReadKept(const ShapeList& targets, const std::string& key, const Kept& fallback) {
  if (targets.empty()) throw NoSuchShape();
  auto it = targets.front()->kept.find(key);
  return it == targets.front()->kept.end() ? fallback : it->second;
}

Value Format(Object& owner, const ShapeList& targets, const std::string& name,
             const std::vector<Member>& members, const std::string& prefix) {
  return Make<ShapeFormatObj>(owner.state(), owner.Path() + "." + name, members, targets, prefix);
}

const std::vector<Member>& ColorMembers() {
  static const std::vector<Member> members = Table<Object>().Keep(L"RGB", "l", 0L).Done();
  return members;
}

Value Color(ShapeFormatObj& f, const char* name) {
  return Format(f, f.targets, name, ColorMembers(), f.prefix + "." + name);
}

const std::vector<Member>& LineMembers() {
  static const std::vector<Member> members =
      Table<ShapeFormatObj>()
          .Keep(L"Visible", "b", true)
          .Read(L"ForeColor", "", [](ShapeFormatObj& f, Args&) { return Color(f, "ForeColor"); })
          .Keep(L"Weight", "f", 0.75f)
          .Keep(L"DashStyle", "l", long{word::msoLineSolid})
          .Keep(L"BeginArrowheadStyle", "l", long{word::msoArrowheadNone})
          .Keep(L"EndArrowheadStyle", "l", long{word::msoArrowheadNone})
          .Keep(L"BeginArrowheadLength", "l", long{word::msoArrowheadLengthMedium})
          .Keep(L"BeginArrowheadWidth", "l", long{word::msoArrowheadWidthMedium})
          .Keep(L"EndArrowheadLength", "l", long{word::msoArrowheadLengthMedium})
          .Keep(L"EndArrowheadWidth", "l", long{word::msoArrowheadWidthMedium})
          .Done();
  return members;
}

const std::vector<Member>& FillMembers() {
  static const std::vector<Member> members =
      Table<ShapeFormatObj>()
          .Keep(L"Visible", "b", true)
          .Read(L"ForeColor", "", [](ShapeFormatObj& f, Args&) { return Color(f, "ForeColor"); })
          .Read(L"BackColor", "", [](ShapeFormatObj& f, Args&) { return Color(f, "BackColor"); })
          .Method(L"Solid", "", [](ShapeFormatObj&, Args&) -> Value { return {}; })
          .Method(L"Patterned", "l",
                  [](ShapeFormatObj& f, Args& a) -> Value {
                    f.KeepValue("Pattern", AsLong(a[0]));
                    return {};
                  })
          .Keep(L"Transparency", "f", 0.0f)
          .Done();
  return members;
}

const std::vector<Member>& TextFrameMembers() {
  static const std::vector<Member> members =
      Table<ShapeFormatObj>()
          .Read(L"TextRange", "",
                [](ShapeFormatObj& f, Args&) -> Value {
                  if (f.targets.empty()) throw NoSuchShape();
                  Story& story = f.targets.front()->text;
                  return Make<RangeObj>(
                      f.state(), f.Path() + ".TextRange",
                      f.state().Hold(&story, 0, static_cast<long>(story.chars.size())));
                })
          .Keep(L"MarginLeft", "f", 7.2f)
          .Keep(L"MarginRight", "f", 7.2f)
          .Keep(L"MarginTop", "f", 3.6f)
          .Keep(L"MarginBottom", "f", 3.6f)
          .Keep(L"AutoSize", "b", false)
          .Done();
  return members;
}

const std::vector<Member>& WrapMembers() {
  static const std::vector<Member> members =
      Table<ShapeFormatObj>().Keep(L"Type", "l", long{word::wdWrapNone}).Done();
  return members;
}

// The ends of a connector: the double keeps which shape and site each end is
// attached to, as "name@site".
Value Connect(ShapeFormatObj& f, const char* end, Args& a) {
  auto* shape = dynamic_cast<ShapeObj*>(std::get<Object*>(a[0]));
  if (!shape) throw NoSuchShape();
  const std::string site = std::to_string(AsLong(a[1]));
  f.KeepValue(end, shape->First().name + u"@" + Text(site.begin(), site.end()));
  return {};
}

const std::vector<Member>& ConnectorMembers() {
  static const std::vector<Member> members =
      Table<ShapeFormatObj>()
          .Method(L"BeginConnect", "ol",
                  [](ShapeFormatObj& f, Args& a) { return Connect(f, "Begin", a); })
          .Method(L"EndConnect", "ol",
                  [](ShapeFormatObj& f, Args& a) { return Connect(f, "End", a); })
          .Done();
  return members;
}

template <float ShapeState::*F>
Value GetPlace(ShapeObj& s, Args&) {
  return s.First().*F;
}

template <float ShapeState::*F>
void PutPlace(ShapeObj& s, Args& a) {
  for (auto& shape : s.targets) (*shape).*F = AsFloat(a[0]);
}

std::vector<Member> ShapeMembers() {
  return Table<ShapeObj>()
      .Prop(
          L"Name", "s", [](ShapeObj& s, Args&) -> Value { return s.First().name; },
          [](ShapeObj& s, Args& a) {
            for (auto& shape : s.targets) shape->name = AsText(a[0]);
          })
      .Read(L"Type", "", [](ShapeObj& s, Args&) -> Value { return s.First().type; })
      .Prop(L"Left", "f", &GetPlace<&ShapeState::left>, &PutPlace<&ShapeState::left>)
      .Prop(L"Top", "f", &GetPlace<&ShapeState::top>, &PutPlace<&ShapeState::top>)
      .Prop(L"Width", "f", &GetPlace<&ShapeState::width>, &PutPlace<&ShapeState::width>)
      .Prop(L"Height", "f", &GetPlace<&ShapeState::height>, &PutPlace<&ShapeState::height>)
      .Read(L"Line", "",
            [](ShapeObj& s, Args&) { return Format(s, s.targets, "Line", LineMembers(), "Line"); })
      .Read(L"Fill", "",
            [](ShapeObj& s, Args&) { return Format(s, s.targets, "Fill", FillMembers(), "Fill"); })
      .Read(L"TextFrame", "",
            [](ShapeObj& s, Args&) {
              return Format(s, s.targets, "TextFrame", TextFrameMembers(), "TextFrame");
            })
      .Read(L"WrapFormat", "",
            [](ShapeObj& s, Args&) {
              return Format(s, s.targets, "WrapFormat", WrapMembers(), "WrapFormat");
            })
      .Read(L"ConnectorFormat", "",
            [](ShapeObj& s, Args&) {
              return Format(s, s.targets, "ConnectorFormat", ConnectorMembers(), "ConnectorFormat");
            })
      .Method(L"ZOrder", "l",
              [](ShapeObj& s, Args& a) -> Value {
                s.KeepValue("ZOrder", AsLong(a[0]));
                return {};
              })
      .Method(L"Select", "|b",
              [](ShapeObj& s, Args& a) -> Value {
                State& st = s.state();
                if (!Given(a[0]) || AsBool(a[0])) st.selectedShapes.clear();
                for (auto& shape : s.targets) st.selectedShapes.push_back(shape);
                st.selection->end = st.selection->start;
                return {};
              })
      .Keep(L"RelativeHorizontalPosition", "l", long{word::wdRelativeHorizontalPositionColumn})
      .Keep(L"RelativeVerticalPosition", "l", long{word::wdRelativeVerticalPositionParagraph})
      .Method(L"Delete", "",
              [](ShapeObj& s, Args&) -> Value {
                for (auto& shape : s.targets) s.state().RemoveShape(*shape);
                return {};
              })
      .Done();
}

// The smallest box around a list of points.
struct Box {
  float left = 0, top = 0, right = 0, bottom = 0;
  void Add(float x, float y, bool first) {
    left = first ? x : std::min(left, x), right = first ? x : std::max(right, x);
    top = first ? y : std::min(top, y), bottom = first ? y : std::max(bottom, y);
  }
};

std::vector<Member> ShapeRangeMembers() {
  std::vector<Member> rows = ShapeMembers();
  auto more =
      Table<ShapeObj>()
          .Read(L"Count", "",
                [](ShapeObj& s, Args&) -> Value { return static_cast<long>(s.targets.size()); })
          .Read(L"Item", "l",
                [](ShapeObj& s, Args& a) -> Value {
                  long i = AsLong(a[0]);
                  if (i < 1 || i > static_cast<long>(s.targets.size())) throw NoSuchShape();
                  return Make<ShapeObj>(s.state(), s.targets[i - 1]);
                })
          .Method(L"Group", "",
                  [](ShapeObj& s, Args&) -> Value {
                    State& st = s.state();
                    Box box;
                    for (size_t i = 0; i < s.targets.size(); ++i) {
                      const ShapeState& t = *s.targets[i];
                      box.Add(t.left, t.top, i == 0);
                      box.Add(t.left + t.width, t.top + t.height, false);
                    }
                    for (auto& shape : s.targets) st.RemoveShape(*shape);
                    auto group = st.NewShape(st.ActiveDocument(), word::msoGroup, box.left, box.top,
                                             box.right - box.left, box.bottom - box.top);
                    group->members = s.targets;
                    return Make<ShapeObj>(st, group);
                  })
          .Done();
  rows.insert(rows.end(), more.begin(), more.end());
  return rows;
}

class FreeformObj : public Object {
 public:
  FreeformObj(State& state, DocumentState& document, float x, float y)
      : Object(state, "FreeformBuilder"), document(document) {
    box.Add(x, y, true);
  }
  const std::vector<Member>& Members() const override {
    static const std::vector<Member> members =
        Table<FreeformObj>()
            // SegmentType, EditingType, X1, Y1, X2, Y2, X3, Y3: a line takes X1, Y1.
            .Method(L"AddNodes", "llff|ffff",
                    [](FreeformObj& f, Args& a) -> Value {
                      int used = AsLong(a[0]) == word::msoSegmentCurve ? 3 : 1;
                      for (int i = 0; i < used; ++i) {
                        if (!Given(a[2 + 2 * i])) throw WordFault{5, "无效的过程调用或参数"};
                        f.box.Add(AsFloat(a[2 + 2 * i]), AsFloat(a[3 + 2 * i]), false);
                      }
                      return {};
                    })
            .Records([](const Args& a) {
              std::string out = Arg(AsLong(a[0])) + "," + Arg(AsLong(a[1]));
              for (size_t i = 2; i < 8; ++i) out += "," + Arg(Given(a[i]) ? AsFloat(a[i]) : 0.0f);
              return out;
            })
            .Method(L"ConvertToShape", "",
                    [](FreeformObj& f, Args&) -> Value {
                      const Box& b = f.box;
                      return Make<ShapeObj>(
                          f.state(), f.state().NewShape(f.document, word::msoFreeform, b.left,
                                                        b.top, b.right - b.left, b.bottom - b.top));
                    })
            .Done();
    return members;
  }
  DocumentState& document;
  Box box;
};

std::shared_ptr<ShapeState> Named(const DocumentState& document, const Text& name) {
  for (const auto& shape : document.shapes) {
    if (shape->name == name) return shape;
  }
  throw NoSuchShape();
}

Value Added(ShapesObj& s, long type, float left, float top, float width, float height) {
  return Make<ShapeObj>(s.state(), s.state().NewShape(s.document, type, left, top, width, height));
}

}  // namespace

ShapeState& ShapeObj::First() const {
  if (targets.empty()) throw NoSuchShape();
  return *targets.front();
}

Kept ShapeObj::KeptValue(const std::string& name, const Kept& fallback) const {
  return ReadKept(targets, name, fallback);
}

void ShapeObj::KeepValue(const std::string& name, const Kept& value) {
  for (auto& shape : targets) shape->kept[name] = value;
}

Kept ShapeFormatObj::KeptValue(const std::string& name, const Kept& fallback) const {
  return ReadKept(targets, prefix + "." + name, fallback);
}

void ShapeFormatObj::KeepValue(const std::string& name, const Kept& value) {
  for (auto& shape : targets) shape->kept[prefix + "." + name] = value;
}

const std::vector<Member>& ShapeObj::Members() const {
  static const std::vector<Member> shape = ShapeMembers();
  static const std::vector<Member> shapeRange = ShapeRangeMembers();
  return range ? shapeRange : shape;
}

const std::vector<Member>& ShapesObj::Members() const {
  static const std::vector<Member> members =
      Table<ShapesObj>()
          .Read(L"Count", "",
                [](ShapesObj& s, Args&) -> Value {
                  return static_cast<long>(s.document.shapes.size());
                })
          .Read(L"Item", "v",
                [](ShapesObj& s, Args& a) -> Value {
                  if (auto* name = std::get_if<Text>(&a[0]))
                    return Make<ShapeObj>(s.state(), Named(s.document, *name));
                  long i = AsLong(a[0]);
                  if (i < 1 || i > static_cast<long>(s.document.shapes.size())) throw NoSuchShape();
                  return Make<ShapeObj>(s.state(), s.document.shapes[i - 1]);
                })
          .Read(L"Range", "S",
                [](ShapesObj& s, Args& a) -> Value {
                  ShapeList shapes;
                  for (const Text& name : std::get<std::vector<Text>>(a[0]))
                    shapes.push_back(Named(s.document, name));
                  return Make<ShapeObj>(s.state(), s.Path() + ".Range(" + Written(a[0]) + ")",
                                        shapes, true);
                })
          .Method(L"AddLine", "ffff",
                  [](ShapesObj& s, Args& a) {
                    float x1 = AsFloat(a[0]), y1 = AsFloat(a[1]), x2 = AsFloat(a[2]),
                          y2 = AsFloat(a[3]);
                    return Added(s, word::msoLine, std::min(x1, x2), std::min(y1, y2),
                                 std::abs(x2 - x1), std::abs(y2 - y1));
                  })
          .Method(L"AddShape", "lffff|o",
                  [](ShapesObj& s, Args& a) {
                    return Added(s, word::msoAutoShape, AsFloat(a[1]), AsFloat(a[2]), AsFloat(a[3]),
                                 AsFloat(a[4]));
                  })
          .Method(L"AddConnector", "lffff",
                  [](ShapesObj& s, Args& a) {
                    float x1 = AsFloat(a[1]), y1 = AsFloat(a[2]), x2 = AsFloat(a[3]),
                          y2 = AsFloat(a[4]);
                    return Added(s, word::msoAutoShape, std::min(x1, x2), std::min(y1, y2),
                                 std::abs(x2 - x1), std::abs(y2 - y1));
                  })
          .Method(L"AddTextbox", "lffff|o",
                  [](ShapesObj& s, Args& a) {
                    return Added(s, word::msoTextBox, AsFloat(a[1]), AsFloat(a[2]), AsFloat(a[3]),
                                 AsFloat(a[4]));
                  })
          .Method(L"AddCurve", "P|o",
                  [](ShapesObj& s, Args& a) {
                    const auto& points = std::get<std::vector<word::PointF>>(a[0]);
                    Box box;
                    for (size_t i = 0; i < points.size(); ++i)
                      box.Add(points[i].x, points[i].y, i == 0);
                    return Added(s, word::msoFreeform, box.left, box.top, box.right - box.left,
                                 box.bottom - box.top);
                  })
          .Method(L"BuildFreeform", "lff",
                  [](ShapesObj& s, Args& a) -> Value {
                    return Make<FreeformObj>(s.state(), s.document, AsFloat(a[1]), AsFloat(a[2]));
                  })
          .Done();
  return members;
}

}  // namespace comdouble
