// The tools run through both back ends: one row per tool script.
#include "scripts.h"
#include "formula/commands.h"
#include "runtime/recording_prompt.h"
#include "session/document_init.h"
#include "session/figure.h"
#include "solvers/factoring.h"

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

void Mhgs(lp::Session& session) {
  lp::RunMhgs(session);
}

}  // namespace

const std::vector<Script>& Scripts() {
  static const std::vector<Script> scripts = {
      {"Document_Init", {u"", u"", u""}, &DocumentInit, ""},
      {"a figure closed at the caret", {u"如图：", u"", u""}, &Figure, "如图："},
      {"factoring 360", {u"", u"", u""}, &Factoring, " 360=  2[sup: 3]· 3[sup: 2]· 5"},
      {"factoring a prime", {u"题：", u"", u""}, &FactoringPrime, "题： 7=  7[sup: 1]"},
      {"gs", {u"解：", u"x^2+1", u"。"}, &Gs, "解：{ EQ x[size=7:\\S(2)]＋1 }。"},
      {"gs over a paragraph",
       {u"", u"y=2x\r", u"下一行"},
       &Gs,
       "{ EQ y＝2x }\r下一行",
       Fake::kCannotFollow},
      {"gs embellished",
       {u"", u"a/b", u""},
       &GsEmbellished,
       "{ [i:EQ] \\[i:F]([i:a],[i:b])}",
       Fake::kCannotFollow},
      {"gs as TeX", {u"", u"x^2", u""}, &GsMathType, "$x^2$"},
      {"mhgs", {u"", u"a+b>=3", u""}, &Mhgs, "[i:a]＋[i:b]≥3"},
  };
  return scripts;
}

}  // namespace comtest
