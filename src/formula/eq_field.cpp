#include <cmath>

#include "formula/font_pass.h"
#include "formula/insert.h"
#include "formula/scanner.h"
#include "runtime/text.h"

namespace lp {
namespace {

// Searches each script from the selection on, wrapping, and shrinks what it
// finds; an equal second script is found again from the first.
void ShrinkScripts(word::Selection& selection, const std::vector<std::u16string>& scripts) {
  for (const std::u16string& script : scripts) {
    IgnoringWordErrors([&] {
      word::Find& find = selection.Find();
      find.ClearFormatting();
      find.SetWrap(word::wdFindContinue);
      find.SetText(script);
      find.SetForward(true);
      find.SetMatchByte(false);
      if (find.Execute()) selection.Font().SetSize(std::floor(0.7 * selection.Font().Size()));
    });
  }
}

}  // namespace

FormulaSettings SessionFormulaSettings(const Session& session) {
  return FormulaSettings{session.config.blFS != 0, session.config.blPLZH != 0};
}

std::vector<std::u16string> CollectScripts(const std::u16string& code) {
  std::vector<std::u16string> scripts;
  for (int32_t p = InStr(code, u"\\S"); p > 0; p = InStr(p, code, u"\\S")) {
    std::u16string head = Mid(code, p, 5);
    std::u16string entry;
    if (head == u"\\S\\DO" || head == u"\\S\\UP") {
      std::u16string digits = NumberRun(code, p + 5, false);
      int32_t at = p + 5 + static_cast<int32_t>(digits.size());
      entry = head + digits + MatchBracket(code, at);
    } else {
      entry = u"\\S" + MatchBracket(code, p + 2);
    }
    scripts.push_back(entry);
    p += std::max<int32_t>(static_cast<int32_t>(entry.size()), 2);
    if (p > static_cast<int32_t>(code.size())) break;
  }
  return scripts;
}

void InsertFormulaAsField(Session& session, const std::u16string& text,
                          const DriverControl& control) {
  if (!BracketsBalanced(text)) {
    session.prompt.MsgBox(kUnbalancedBrackets);
    return;
  }
  std::u16string code = FormulaToEq(text, SessionFormulaSettings(session), control);
  InsertEqField(session, u"EQ " + code, control);
}

void InsertOwnFormulaAsField(Session& session, const std::u16string& text) {
  const DriverControl control = DriverControl::WithTimeout(session.formulaTimeLimit);
  InsertEqField(session, u"EQ " + FormulaToEq(text, FormulaSettings{}, control), control);
}

void InsertEqField(Session& session, const std::u16string& code, const DriverControl& control) {
  word::Application& app = *session.WordApp;
  MaskedGreek greek = MaskGreek(code);
  std::u16string wide = SignsToWide(greek.text);
  std::vector<std::u16string> scripts = CollectScripts(wide);
  IgnoringWordErrors([&] { app.SetScreenUpdating(false); });
  word::Selection& selection = app.Selection();
  std::unique_ptr<word::Range> fieldRange;
  IgnoringWordErrors([&] {
    auto where = selection.Range();
    auto field = selection.Fields().Add(*where, word::wdFieldEmpty, wide, false);
    field->Select();
    fieldRange = selection.Range();
    selection.Fields().ToggleShowCodes();
  });
  ShrinkScripts(selection, scripts);
  if (session.config.EmbellishFormula && fieldRange) RunFontPass(app, *fieldRange, greek, control);
  IgnoringWordErrors([&] {
    if (fieldRange) fieldRange->Select();
    selection.Fields().ToggleShowCodes();
  });
  IgnoringWordErrors([&] { app.SetScreenUpdating(true); });
}

}  // namespace lp
