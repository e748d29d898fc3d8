#pragma once
// What each tab's confirm button does before an object joins the list: read
// the typed texts, evaluate and validate them, ask about a curve leaving the
// view. A refused input has been answered with its message and gives nothing.

#include <optional>
#include <string>

#include "graph/canvas.h"
#include "graph/records.h"
#include "runtime/prompt.h"

namespace lp::graph {

// The texts and switches of one tab, by control name.
class TabInput {
 public:
  TabInput(const FormState& state, const View& view, Prompt& prompt)
      : state_(state), view_(view), prompt_(prompt) {}

  std::u16string Text(const std::u16string& name) const;
  bool Checked(const std::u16string& name) const { return Text(name) == u"1"; }
  // The index of the set member of an option array ("optFS_0"...), or -1.
  int Option(const std::u16string& array, int members) const;
  // The trimmed, normalised text evaluated without a variable; nothing when
  // it is no expression.
  std::optional<double> Value(const std::u16string& name) const;
  // Shows a message and gives nothing, for "return Refuse(...)".
  std::nullopt_t Refuse(const std::u16string& message) const;
  // The range question; true when the teacher goes on.
  bool AcceptExtents(double rxmin, double rxmax, double rymin, double rymax) const;

  const View& Range() const { return view_; }
  const FormState& State() const { return state_; }

 private:
  const FormState& state_;
  const View& view_;
  Prompt& prompt_;
};

std::optional<Params> ReadAny(const TabInput& in);
std::optional<Params> ReadPower(const TabInput& in);
std::optional<Params> ReadExponent(const TabInput& in);
std::optional<Params> ReadLog(const TabInput& in);
std::optional<Params> ReadReciprocal(const TabInput& in);
std::optional<Params> ReadTrig(const TabInput& in);
std::optional<Params> ReadLine(const TabInput& in);
std::optional<Params> ReadPoint(const TabInput& in);
std::optional<Params> ReadCircle(const TabInput& in);
std::optional<Params> ReadEllipse(const TabInput& in);
std::optional<Params> ReadHyperbola(const TabInput& in);
std::optional<Params> ReadParabola(const TabInput& in);

// The reader of a type tag ("any", "sj", ...); null for an unknown tag.
using Reader = std::optional<Params> (*)(const TabInput&);
Reader ReaderOf(const std::u16string& tag);

// A coordinate box "(x,y)": the two halves evaluated; nothing when either
// fails, and empty when the box holds no number at all.
struct Coordinate {
  bool empty = true;
  std::optional<WorldPoint> point;
};
Coordinate ReadCoordinate(const std::u16string& text);

// The messages the tabs share.
inline constexpr char16_t kBadRange[] = u"您输入的自变量x的取值范围有误，请检查！";
inline constexpr char16_t kNoForm[] = u"您还没有选择任何方程类型！请选择方程类型后再作图。";
inline constexpr char16_t kBadExpression[] = u"您输入的函数表达式有误，请检查！";

}  // namespace lp::graph
