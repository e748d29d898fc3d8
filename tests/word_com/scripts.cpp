// The tools run through both back ends: one row per tool script.
#include "scripts.h"
#include "formula/commands.h"
#include "runtime/recording_prompt.h"
#include "session/document_init.h"
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
