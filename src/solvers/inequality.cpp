#include "solvers/inequality.h"

#include "figures/interval_form.h"
#include "runtime/convert.h"
#include "runtime/text.h"
#include "solvers/worked_text.h"

namespace lp {
namespace {

bool IsMarker(const std::u16string& text) {
  return text == u"R" || text == u"K";
}

void TypeSteps(word::Selection& selection, const InequalitySolution& s) {
  std::u16string op = SignToDisplay(s.InequalityOp);
  selection.TypeText(s.InequalityLeft + op + s.InequalityRight);
  selection.TypeParagraph();
  selection.TypeText(u"解：");
  selection.TypeParagraph();
  bool brackets = InStr(s.InequalityLeft, u"(") > 0 || InStr(s.InequalityRight, u"(") > 0;
  selection.TypeText(brackets ? u"去括号、移项、合并同类项可得：" : u"移项、合并同类项可得：");
  selection.TypeParagraph();
  // The constant moves to the right; the sign stays as typed.
  std::u16string right = s.CoefConst == 0  ? u"0"
                         : s.CoefConst < 0 ? Trim(Str(std::abs(s.CoefConst)))
                                           : u"-" + Trim(Str(s.CoefConst));
  selection.TypeText(XTerm(s.CoefX) + op + right);
  selection.TypeParagraph();
}

void TypeAnswer(word::Selection& selection, const InequalitySolution& s) {
  if (s.InequalityText == u"K") {
    selection.TypeText(u"∴ 原不等式无解");
  } else if (s.InequalityText == u"R") {
    selection.TypeText(u"∴ 原不等式的解为任意实数");
  } else if (InStr(s.InequalityText, u"/") > 0) {
    selection.TypeText(u" x" + SignToDisplay(s.InequalityResultOp));
    AddFractionField(selection, s.InequalityText);
  } else {
    selection.TypeText(u" x" + SignToDisplay(s.InequalityResultOp) + s.InequalityText);
  }
}

// The bound inside an interval: its text, or a fraction field.
void TypeBound(word::Selection& selection, const std::u16string& bound) {
  if (InStr(bound, u"/") > 0)
    AddFractionField(selection, bound);
  else
    selection.TypeText(bound);
}

void TypeSet(word::Selection& selection, const InequalitySolution& s) {
  selection.TypeParagraph();
  selection.TypeText(u"∴ 原不等式的解集为：");
  selection.TypeParagraph();
  selection.TypeText(u" x∈ ");
  const std::u16string& v = s.InequalityText;
  const std::u16string& op = s.InequalityResultOp;
  if (v == u"K") {
    TypeEmptySet(selection);
    return;
  }
  if (v == u"R") {
    selection.TypeText(u"R");
    return;
  }
  bool upward = op == u">" || op == u">=";
  if (upward || op == u"<>") {
    selection.TypeText(op == u">=" ? u"[" : op == u"<>" ? u"(-∞，" : u"(");
    TypeBound(selection, v);
    selection.TypeText(op == u"<>" ? u")∪(" : u"，+∞)");
    if (op == u"<>") {
      TypeBound(selection, v);
      selection.TypeText(u"，+∞)");
    }
    return;
  }
  if (op == u"<" || op == u"<=") {
    selection.TypeText(u"(-∞，");
    TypeBound(selection, v);
    selection.TypeText(op == u"<=" ? u"]" : u")");
  }
}

IntervalKind KindForSign(const std::u16string& op) {
  if (op == u">") return kBigThanA;
  if (op == u"<") return kLessThanA;
  if (op == u">=") return kNoLessThanA;
  if (op == u"<=") return kNoBigThanA;
  return kNoKind;
}

}  // namespace

std::u16string InequalityLabel(const InequalitySolution& s) {
  if (!IsMarker(s.InequalityText))
    return u"不等式的解为：x" + s.InequalityResultOp + s.InequalityText;
  return u"不等式的解为： x ∈" + s.InequalityText;
}

void TypeInequalitySolution(Session& session, const InequalitySolution& s,
                            const InequalityChoices& choices) {
  word::Selection& selection = session.WordApp->Selection();
  if (choices.optAll) TypeSteps(selection, s);
  TypeAnswer(selection, s);
  if (choices.chkSet) TypeSet(selection, s);
}

void DrawSolutionOnNumberLine(Session& session, const InequalitySolution& s) {
  // The figure goes to the caret: on a line of its own, below the answer.
  session.WordApp->Selection().TypeParagraph();
  IntervalForm form = LoadIntervalForm(session);
  IntervalControls& c = form.controls;
  double bound = Val(Format(s.ResultNumber, u"#.##"));
  c.txtXmin = s.ResultNumber > 0 ? u"-1" : Str(bound - 1);
  c.txtXmax = s.ResultNumber > 0 ? Str(bound + 1) : u"1";
  c.txtA = Str(bound);
  c.kind = KindForSign(s.InequalityResultOp);
  IntervalOK(form, session);
  CloseIntervalForm(form, session);
}

}  // namespace lp
