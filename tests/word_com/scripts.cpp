// The tools run through both back ends: one row per tool script.
#include "scripts.h"
#include "charts/histogram.h"
#include "charts/pie_chart.h"
#include "figures/draw_list.h"
#include "figures/flow_chart.h"
#include "figures/point_labels.h"
#include "figures/segment_diagram.h"
#include "formula/angle_radian.h"
#include "formula/commands.h"
#include "formula/insert.h"
#include "inserts/inserts.h"
#include "inserts/shape_tools.h"
#include "runtime/recording_prompt.h"
#include "session/document_init.h"
#include "session/figure.h"
#include "solvers/a_c.h"
#include "solvers/commands.h"
#include "solvers/equation.h"
#include "solvers/factoring.h"
#include "solvers/inequality.h"
#include "toolkit/solve.h"

namespace comtest {

namespace {

// Hands the session's Word to Document_Init as the running one.
class Running : public lp::WordConnector {
 public:
  explicit Running(word::Application& word) : word_(word) {}
  word::Application& GetObject() override { return word_; }
  word::Application& CreateObject() override {
    throw word::ComError(429, "ActiveX 部件不能创建对象");
  }

 private:
  word::Application& word_;
};

// The teacher's Word lacks the template: it is installed as an add-in and attached.
void DocumentInit(lp::Session& session) {
  Running connector(*session.WordApp);
  session.programFolder = u"C:\\lumenpad";
  if (!lp::Document_Init(session, connector, [] {})) throw word::ComError(0, "not connected");
}

// Names a shape of the figure being drawn, as the figure tools do.
void Name(lp::Session& session, word::Shape& shape, const std::u16string& base) {
  ++session.ShapeCounter;
  shape.SetName(lp::MakeShapeName(session, base));
}

// The figure path every drawing tool ends on: shapes made, named, grouped at the caret.
void Figure(lp::Session& session) {
  session.ShapeNames.assign(1, u"");
  word::Shapes& shapes = session.WordApp->ActiveDocument().Shapes();
  auto axis = shapes.AddLine(180, 200, 320, 200);
  axis->Line().SetEndArrowheadStyle(word::msoArrowheadTriangle);
  axis->Line().SetWeight(0.75f);
  Name(session, *axis, u"轴");
  auto curve = shapes.AddCurve({{180, 200}, {200, 150}, {240, 150}, {260, 200}});
  curve->Line().ForeColor().SetRGB(word::RGB(255, 0, 0));
  Name(session, *curve, u"曲线");
  auto label = shapes.AddTextbox(word::msoTextOrientationHorizontal, 300, 205, 24, 18);
  label->TextFrame().TextRange()->SetText(u"x");
  label->Line().SetVisible(false);
  label->Fill().SetVisible(false);
  Name(session, *label, u"标签");
  lp::CloseFigure(session, u"图形");
}

// The same "random" numbers on both back ends.
double Quarter() {
  return 0.25;
}

void SegmentDiagram(lp::Session& session) {
  lp::figures::DrawFigure(session, lp::figures::SegmentDiagram({}), u"区间");
}

void Histogram(lp::Session& session) {
  lp::charts::HistogramRequest request;
  request.fill = true;
  lp::figures::DrawFigure(session, lp::charts::Histogram(request, &Quarter).shapes, u"组合");
}

void PieChart(lp::Session& session) {
  lp::charts::PieRequest request;
  request.fill = true;
  lp::figures::DrawFigure(session, lp::charts::PieChart(request, &Quarter), u"组合");
}

void FlowChart(lp::Session& session) {
  lp::figures::FlowChartRequest request;
  request.steps = u"输入 x\nx≥0？\n否：y=-x\ny=x\n输出 y";
  lp::figures::DrawFigure(session, lp::figures::MakeFlowChart(request).shapes, u"流程图");
}

void PointLabels(lp::Session& session) {
  lp::figures::PointLabelRequest request;
  request.alongSegment = true;
  request.names = u"A1'";
  lp::figures::DrawFigure(session, lp::figures::MakePointLabels(request).shapes, u"标点");
}

// A tool that runs without a dialog asks nothing of the user interface.
class NoFrontend : public lp::Frontend {
 public:
  void ShowSplash() override {}
  void SetSplashProgress(const std::u16string&) override {}
  void UnloadSplash() override {}
  void ShowForm(std::u16string_view, bool) override {}
  void PumpEvents() override {}
};

void ShuShi(lp::Session& session) {
  NoFrontend frontend;
  lp::ShuShiCommand(session, frontend);
}

void Factoring(lp::Session& session) {
  lp::Factorisation f;
  lp::RecordingPrompt prompt;
  lp::Decompose(f, u"360", prompt);
  lp::InsertFactorisation(f, session.WordApp->Selection());
}

void FactoringPrime(lp::Session& session) {
  lp::Factorisation f;
  lp::Decompose(f, u"7", session.prompt);
  lp::InsertFactorisation(f, session.WordApp->Selection());
}

void LinearEquation(lp::Session& session) {
  lp::TypeLinearSolution(session.WordApp->Selection(), u"2x+1=7", lp::SolveLinear(u"2x+1=7"), true);
}

void QuadraticEquation(lp::Session& session) {
  auto q = lp::SolveQuadratic(u"x^2-3x+2=0", session.prompt);
  if (q) lp::TypeQuadraticSolution(session, u"x^2-3x+2=0", *q, true);
}

void Inequality(lp::Session& session) {
  auto s = lp::ParseInequality(u"3x+1>2x-1", session.prompt);
  if (s) lp::TypeInequalitySolution(session, *s, {true, true});
}

void InequalityOnNumberLine(lp::Session& session) {
  auto s = lp::ParseInequality(u"2x-4<=0", session.prompt);
  if (s) lp::DrawSolutionOnNumberLine(session, *s);
}

void Permutation(lp::Session& session) {
  lp::InsertAC(session, {u"2", u"5", false, true});
}

void Gs(lp::Session& session) {
  lp::RunGs(session, lp::DriverControl{});
}

void GsEmbellished(lp::Session& session) {
  session.config.EmbellishFormula = -1;
  lp::RunGs(session, lp::DriverControl{});
}

void GsMathType(lp::Session& session) {
  session.config.blMathType = -1;
  lp::RunGs(session, lp::DriverControl{});
}

// The angle dialog's insert: 135 degrees typed as a multiple of pi.
void AngleToRadians(lp::Session& session) {
  lp::InsertOwnFormulaAsField(session, lp::DegreesToRadians(u"135", u"", u"").notation);
}

void Mhgs(lp::Session& session) {
  lp::RunMhgs(session);
}

void Fraction(lp::Session& session) {
  lp::InsertFractionField(session);
}

void Radical(lp::Session& session) {
  lp::InsertRadicalField(session);
}

void Arc(lp::Session& session) {
  lp::InsertArcMark(session);
}

// The gallery's way in and out of a document: the selection written as a
// fragment, and a fragment inserted behind it.
void Fragment(lp::Session& session) {
  auto range = session.WordApp->Selection().Range();
  range->ExportFragment(u"C:\\lumenpad\\fragment.docx");
  range->Collapse(word::wdCollapseEnd);
  range->InsertFile(u"C:\\lumenpad\\fragment.docx");
}

void Vector(lp::Session& session) {
  lp::InsertVectorMark(session);
}

void EquationSystem(lp::Session& session) {
  lp::InsertEquationSystem(session);
}

void RecurringDecimal(lp::Session& session) {
  lp::InsertRecurringDecimal(session);
}

// Three boxes of widths 100, 50 and 200 at scattered places, selected
// together and laid edge to edge from the leftmost.
void JoinLeftToRight(lp::Session& session) {
  word::Shapes& shapes = session.WordApp->ActiveDocument().Shapes();
  shapes.AddShape(word::msoShapeRectangle, 100, 200, 100, 40)->SetName(u"甲");
  shapes.AddShape(word::msoShapeRectangle, 50, 100, 50, 40)->SetName(u"乙");
  shapes.AddShape(word::msoShapeRectangle, 200, 300, 200, 40)->SetName(u"丙");
  shapes.Range({u"甲", u"乙", u"丙"})->Select();
  lp::JoinLeftToRight(session);
}

}  // namespace

const std::vector<Script>& Scripts() {
  static const std::vector<Script> scripts = {
      {"Document_Init", {u"", u"", u""}, &DocumentInit, ""},
      {"a figure closed at the caret", {u"如图：", u"", u""}, &Figure, "如图："},
      {"factoring 360", {u"", u"", u""}, &Factoring, " 360=  2[sup: 3]· 3[sup: 2]· 5"},
      {"factoring a prime", {u"题：", u"", u""}, &FactoringPrime, "题： 7=  7[sup: 1]"},
      {"linear equation",
       {u"", u"", u""},
       &LinearEquation,
       "2x+1=7¶解：¶移项、合并同类项可得：¶2x= 6¶∴ x=3"},
      {"quadratic equation",
       {u"", u"", u""},
       &QuadraticEquation,
       "x[sup:2]-3x+2=0¶解：¶x[sup:2]-3x+2=0¶∵ [font=Symbol:D]=(-3)[sup:2]-4·1·2= 1¶即： "
       "(x-1)(x-2)=0¶ x[sub:1]= 1 x[sub:2]= 2"},
      {"inequality with its set",
       {u"", u"", u""},
       &Inequality,
       "3x+1>2x-1¶解：¶移项、合并同类项可得：¶x>-2¶ x>-2¶∴ 原不等式的解集为：¶ x∈ (-2，+∞)"},
      {"inequality on a number line",
       {u"", u"", u""},
       &InequalityOnNumberLine,
       "¶",
       Fake::kFollows,
       "ForeColor\\.RGB=[0-9]+"},
      {"permutation",
       {u"", u"", u""},
       &Permutation,
       "A{ eq \\o(\\s\\up 5(2),\\s\\do 3(5)) }=20",
       Fake::kCannotFollow},
      {"segment diagram", {u"", u"", u""}, &SegmentDiagram, ""},
      {"histogram", {u"", u"", u""}, &Histogram, ""},
      {"pie chart", {u"", u"", u""}, &PieChart, ""},
      {"flow chart", {u"", u"", u""}, &FlowChart, ""},
      {"point labels", {u"", u"", u""}, &PointLabels, ""},
      {"shushi", {u"", u"123+45", u""}, &ShuShi, "123+45"},
      {"gs", {u"解：", u"x^2+1", u"。"}, &Gs, "解：{ EQ x[size=7:\\S(2)]＋1 }。"},
      {"gs over a paragraph",
       {u"", u"y=2x\r", u"下一行"},
       &Gs,
       "{ EQ y＝2x }¶下一行",
       Fake::kCannotFollow},
      {"gs embellished",
       {u"", u"a/b", u""},
       &GsEmbellished,
       "{ [i:EQ] \\[i:F]([i:a],[i:b])}",
       Fake::kCannotFollow},
      {"gs as TeX", {u"", u"x^2", u""}, &GsMathType, "$x^2$"},
      {"angle to radians", {u"", u"", u""}, &AngleToRadians, "{ EQ \\F(3`,4) }"},
      {"mhgs", {u"", u"a+b>=3", u""}, &Mhgs, "[i:a]＋[i:b]≥3"},
      {"fraction", {u"", u"1/2", u""}, &Fraction, "{ EQ \\F(1,2)}", Fake::kCannotFollow},
      {"radical", {u"", u"3/27", u""}, &Radical, "{ EQ \\r([size=7.5:3],27)}", Fake::kCannotFollow},
      {"arc", {u"", u"AB", u""}, &Arc, "{ EQ \\o\\ac([size=7:\\S\\UP7(⌒)],AB) }"},
      {"vector", {u"", u"AB", u""}, &Vector, "{ EQ \\o\\ac([size=7:\\S\\UP7(→)],AB) }"},
      {"equation system",
       {u"", u"x+y=5，2x-y=1", u""},
       &EquationSystem,
       "{ EQ \\B\\lc\\{(\\a\\al(x＋y＝5,2x－y＝1)) }"},
      {"recurring decimal",
       {u"", u"0.1/23", u""},
       &RecurringDecimal,
       "{ eq 0.1\\o(\\s\\up 3(˙),2)\\o(\\s\\up 3(˙),3)}",
       Fake::kCannotFollow},
      {"join left to right", {u"", u"", u""}, &JoinLeftToRight, ""},
      {"fragment out and in", {u"", u"AB", u""}, &Fragment, "AB"},
  };
  return scripts;
}

}  // namespace comtest
