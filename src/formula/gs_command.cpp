#include <optional>

#include "formula/commands.h"
#include "formula/insert.h"
#include "formula/scanner.h"
#include "formula/script_pass.h"
#include "runtime/text.h"

namespace lp {
namespace {

// What each piece becomes: an EQ code, or nothing when its brackets don't
// match.
using EqCodes = std::vector<std::optional<std::u16string>>;

EqCodes ConvertPieces(const std::vector<std::u16string>& pieces, const FormulaSettings& settings,
                      const DriverControl& control) {
  EqCodes codes;
  for (const std::u16string& piece : pieces) {
    if (BracketsBalanced(piece))
      codes.push_back(u"EQ " + FormulaToEq(piece, settings, control));
    else
      codes.push_back(std::nullopt);
  }
  return codes;
}

void InsertCodes(Session& session, const EqCodes& codes, bool blankAfterEach) {
  word::Selection& selection = session.WordApp->Selection();
  for (const auto& code : codes) {
    if (code)
      InsertEqField(session, *code);
    else
      session.prompt.MsgBox(kUnbalancedBrackets);
    if (!blankAfterEach) continue;
    selection.MoveRight(word::wdCharacter, 1);
    selection.TypeText(u" ");
  }
}

}  // namespace

GsOutcome RunGs(Session& session, const DriverControl& runControl) {
  DriverControl control = runControl;
  if (!control.prompt) control.prompt = &session.prompt;
  word::Selection& selection = session.WordApp->Selection();
  std::u16string selected = selection.Range()->Text();
  if (Len(selected) < 2) return GsOutcome::kShowDialog;
  if (selected.back() == u'\r') selection.MoveLeft(word::wdCharacter, 1, word::wdExtend);
  std::unique_ptr<word::Range> range = selection.Range();
  std::u16string text = ScriptPassText(ReadScriptChars(*range));
  const FormulaSettings settings = SessionFormulaSettings(session);
  const bool several = text.find(u';') != std::u16string::npos;
  std::u16string latex;
  EqCodes codes;
  try {
    if (session.config.blMathType)
      latex = FormulaToFinishedLatex(text, settings, control);
    else
      codes = ConvertPieces(several ? SplitText(text, u';') : std::vector{text}, settings, control);
  } catch (const FormulaAborted&) {
    session.prompt.MsgBox(kFormulaTimedOut);
    return GsOutcome::kTimedOut;
  }
  range->SetText(text);
  range->Select();
  if (session.config.blMathType)
    TypeLatexAndToggle(session, latex);
  else
    InsertCodes(session, codes, several);
  return GsOutcome::kDone;
}

}  // namespace lp
