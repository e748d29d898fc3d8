#include "solvers/equation.h"

#include <cmath>

#include "runtime/convert.h"
#include "runtime/text.h"
#include "solvers/worked_text.h"
#include "toolkit/equation_sides.h"
#include "toolkit/exact.h"

namespace lp {
namespace {

std::u16string ListValue(double root) {
  return NumberText(Val(Format(root, u"#.####")));
}

// A number in the discriminant's sum, bracketed when negative.
std::u16string Term(double value) {
  return value < 0 ? u"(" + NumberText(value) + u")" : NumberText(value);
}

int32_t CountOfSigns(const std::u16string& text) {
  int32_t n = 0;
  for (char16_t c : text) n += c == u'-' || c == u'+';
  return n;
}

std::u16string StepLine(const std::u16string& equation) {
  bool brackets = InStr(equation, u"(") > 0;
  if (Right(equation, 2) != u"=0")
    return brackets ? u"去括号、移项、合并同类项可得：" : u"移项、合并同类项可得：";
  if (brackets) return u"去括号、合并同类项可得：";
  return CountOfSigns(equation) > 2 ? u"合并同类项可得：" : u"";
}

std::u16string StandardForm(const QuadraticSolution& q) {
  std::u16string text = q.QuadA == 1 ? u"x^2" : q.QuadA == -1 ? u"-x^2" : NumberText(q.QuadA) + u"x^2";
  if (q.QuadB == 1)
    text += u"+x";
  else if (q.QuadB == -1)
    text += u"-x";
  else if (q.QuadB != 0)
    text += (q.QuadB > 0 ? u"+" : u"") + NumberText(q.QuadB) + u"x";
  if (q.QuadC != 0) text += (q.QuadC > 0 ? u"+" : u"") + NumberText(q.QuadC);
  return text + u"=0";
}

// "(x-2)", "(x+3)", or for a fraction "(2x-1)": the factor that is 0 at the
// root whose text is given.
std::u16string Factor(const std::u16string& root) {
  bool negative = Left(root, 1) == u"-";
  std::u16string magnitude = negative ? Mid(root, 2) : root;
  std::u16string sign = negative ? u"+" : u"-";
  if (InStr(magnitude, u"/") == 0) return u"(x" + sign + magnitude + u")";
  FractionParts f = SplitFraction(magnitude);
  return u"(" + f.denominator + u"x" + sign + f.numerator + u")";
}

void TypeRootText(word::Selection& selection, const std::u16string& text) {
  bool fraction = InStr(text, u"/") > 0, root = InStr(text, u"sqr") > 0;
  if (!fraction && !root) {
    selection.TypeText(text);
    return;
  }
  std::u16string code = Replace(text, u"sqr(", u"\\r(,");
  if (!fraction) {
    AddField(selection, u"EQ " + code);
    return;
  }
  AddField(selection, u"EQ \\F(" + Replace(code, u"/", u",") + u")");
}

void TypeSubscript(word::Selection& selection, const std::u16string& text) {
  selection.Font().SetSubscript(word::wdToggle);
  selection.TypeText(text);
  selection.Font().SetSubscript(word::wdToggle);
}

void TypeRoots(word::Selection& selection, const QuadraticSolution& q) {
  selection.TypeParagraph();
  selection.TypeText(u" x");
  TypeSubscript(selection, u"1");
  selection.TypeText(u"= ");
  TypeRootText(selection, q.Root1Text);
  selection.TypeText(u" x");
  TypeSubscript(selection, u"2");
  selection.TypeText(u"= ");
  TypeRootText(selection, q.Root2Text);
}

// The discriminant line: "∵ Δ=b^2-4·a·c= value".
void TypeDiscriminant(Session& session, const QuadraticSolution& q) {
  word::Selection& selection = session.WordApp->Selection();
  selection.TypeParagraph();
  selection.TypeText(u"∵ ");
  TypeDelta(session);
  selection.TypeText(u"=");
  Insert_Quadratic_Equation_To_Word(selection, Term(q.QuadB) + u"^2-4·" + Term(q.QuadA) + u"·" +
                                                   Term(q.QuadC) + u"= " + NumberText(q.QuadDelta));
}

void TypeDoubleRoot(word::Selection& selection, const QuadraticSolution& q) {
  double r = q.Root1;
  if (IsWhole(r)) {
    std::u16string factor = r < 0 ? u"即 (x+" + NumberText(-r) : u"即 (x-" + NumberText(r);
    Insert_Quadratic_Equation_To_Word(selection, factor + u")^2=0");
    selection.TypeParagraph();
    selection.TypeText(u"∴ x=" + NumberText(r));
    return;
  }
  Insert_Quadratic_Equation_To_Word(selection, u"即 " + Factor(q.Root1Text) + u"^2=0");
  selection.TypeParagraph();
  selection.TypeText(u"∴ x= ");
  AddFractionField(selection, q.Root1Text);
}

}  // namespace

std::u16string LinearLabel(const LinearSolution& s) {
  return u"方程的解为：x=" + s.LinearText;
}

std::vector<std::u16string> QuadraticList(const QuadraticSolution& q) {
  if (q.QuadDelta < 0) return {u"方程无实根"};
  return {u"x1=" + q.Root1Text + u"=" + ListValue(q.Root1),
          u"x2=" + q.Root2Text + u"=" + ListValue(q.Root2)};
}

void TypeLinearSolution(word::Selection& selection, const std::u16string& equation,
                        const LinearSolution& s, bool withSteps) {
  if (withSteps) {
    selection.TypeText(equation);
    selection.TypeParagraph();
    selection.TypeText(u"解：");
    selection.TypeParagraph();
    selection.TypeText(InStr(equation, u"(") > 0 ? u"去括号、移项、合并同类项可得："
                                                 : u"移项、合并同类项可得：");
    selection.TypeParagraph();
  }
  double b = s.LinearB;
  std::u16string right = b == 0 ? u"=0" : b > 0 ? u"=-" + NumberText(b) : u"= " + NumberText(-b);
  selection.TypeText(XTerm(s.a) + right);
  selection.TypeParagraph();
  if (InStr(s.LinearText, u"/") > 0) {
    selection.TypeText(u"∴ x= ");
    AddFractionField(selection, s.LinearText);
  } else {
    selection.TypeText(u"∴ x=" + s.LinearText);
  }
}

void TypeQuadraticSolution(Session& session, const std::u16string& equation,
                           const QuadraticSolution& q, bool withSteps) {
  word::Selection& selection = session.WordApp->Selection();
  if (!withSteps) {
    if (q.QuadDelta < 0) {
      selection.TypeText(u"方程无实根");
      return;
    }
    TypeRoots(selection, q);
    return;
  }
  Insert_Quadratic_Equation_To_Word(selection, equation);
  selection.TypeParagraph();
  selection.TypeText(u"解：");
  selection.TypeParagraph();
  if (std::u16string step = StepLine(equation); !step.empty()) {
    selection.TypeText(step);
    selection.TypeParagraph();
  }
  Insert_Quadratic_Equation_To_Word(selection, StandardForm(q));
  TypeDiscriminant(session, q);
  if (q.QuadDelta < 0) {
    selection.TypeText(u"<0");
    selection.TypeParagraph();
    selection.TypeText(u"∴ 方程无实根");
    selection.TypeParagraph();
    selection.TypeText(u"即 x∈");
    TypeEmptySet(selection);
    return;
  }
  if (q.QuadDelta == 0) {
    selection.TypeParagraph();
    TypeDoubleRoot(selection, q);
    return;
  }
  selection.TypeParagraph();
  if (InStr(q.Root1Text, u"sqr") > 0 || InStr(q.Root2Text, u"sqr") > 0)
    selection.TypeText(u"由求根公式可得：");
  else
    Insert_Quadratic_Equation_To_Word(selection,
                                      u"即： " + Factor(q.Root1Text) + Factor(q.Root2Text) + u"=0");
  TypeRoots(selection, q);
}

}  // namespace lp
