#include "graph/inputs.h"

#include <array>

#include "runtime/convert.h"
#include "runtime/text.h"
#include "toolkit/answer_text.h"
#include "toolkit/eval_error.h"
#include "toolkit/expression.h"
#include "toolkit/normalise.h"

namespace lp::graph {

std::u16string TabInput::Text(const std::u16string& name) const {
  auto found = state_.find(name);
  return found == state_.end() ? std::u16string{} : found->second;
}

int TabInput::Option(const std::u16string& array, int members) const {
  for (int i = 0; i < members; ++i)
    if (Checked(array + u"_" + Trim(Str(i)))) return i;
  return -1;
}

std::optional<double> TabInput::Value(const std::u16string& name) const {
  try {
    return EvalWithoutVariable(LCase(Text(name)));
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

std::nullopt_t TabInput::Refuse(const std::u16string& message) const {
  prompt_.MsgBox(message, vbOKOnly);
  return std::nullopt;
}

bool TabInput::AcceptExtents(double rxmin, double rxmax, double rymin, double rymax) const {
  Extents axes{view_.xmin, view_.xmax, view_.ymin, view_.ymax};
  return !CurveExceedsAxes(axes, {rxmin, rxmax, rymin, rymax}, prompt_);
}

Coordinate ReadCoordinate(const std::u16string& text) {
  std::u16string inner = Trim(Replace(Replace(text, u"(", u""), u")", u""));
  inner = Replace(inner, u"，", u",");
  Coordinate c;
  c.empty = Trim(Replace(inner, u",", u"")).empty();
  int32_t comma = InStr(inner, u",");
  if (c.empty || comma == 0) return c;
  try {
    double x = EvalWithoutVariable(LCase(Left(inner, comma - 1)));
    double y = EvalWithoutVariable(LCase(Mid(inner, comma + 1)));
    c.point = WorldPoint{x, y};
  } catch (const RuntimeError&) {
  }
  return c;
}

Reader ReaderOf(const std::u16string& tag) {
  struct Row {
    const char16_t* tag;
    Reader reader;
  };
  static constexpr std::array<Row, 12> kReaders = {{
      {u"any", &ReadAny},
      {u"mi", &ReadPower},
      {u"ax", &ReadExponent},
      {u"logx", &ReadLog},
      {u"fblhs", &ReadReciprocal},
      {u"sj", &ReadTrig},
      {u"zx", &ReadLine},
      {u"point", &ReadPoint},
      {u"yuan", &ReadCircle},
      {u"ty", &ReadEllipse},
      {u"sqx", &ReadHyperbola},
      {u"pwx", &ReadParabola},
  }};
  for (const Row& row : kReaders)
    if (tag == row.tag) return row.reader;
  return nullptr;
}

}  // namespace lp::graph
