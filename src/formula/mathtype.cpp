#include "formula/insert.h"
#include "runtime/convert.h"
#include "runtime/text.h"

namespace lp {

void InsertFormulaAsMathType(Session& session, const std::u16string& text,
                             const DriverControl& control) {
  TypeLatexAndToggle(session,
                     FormulaToFinishedLatex(text, SessionFormulaSettings(session), control));
}

// A missing macro is Word's own failure of Run: the typed TeX stays.
void TypeLatexAndToggle(Session& session, const std::u16string& latex) {
  word::Application& app = *session.WordApp;
  app.SetScreenUpdating(false);
  word::Selection& selection = app.Selection();
  int16_t start = CInt(static_cast<double>(selection.Range()->Start()));
  std::u16string typed = u"$" + latex + u"$";
  selection.TypeText(typed);
  app.ActiveDocument().Range(start, start + Len(typed))->Select();
  app.Run(u"MTCommand_TeXToggle");
  app.SetScreenUpdating(true);
}

}  // namespace lp
