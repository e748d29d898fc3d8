#include <vector>

#include "formula/insert.h"
#include "inserts/field_steps.h"
#include "inserts/inserts.h"
#include "runtime/text.h"
#include "runtime/utf8.h"

namespace lp {
namespace {

constexpr char16_t kAskEquations[] = u"请输入方程组的各方程，方程之间用“，”隔开：";
constexpr char16_t kSystemHead[] = u"EQ \\B\\lc\\{(\\a\\al(";

// A system in the formula language: the typed one, or the text wrapped.
void InsertSystemText(Session& session, const std::u16string& text, const DriverControl& control) {
  const std::u16string narrow = StrConvNarrow(text);
  const std::u16string system =
      LCase(Left(narrow, 4)) == u"fcz(" ? narrow : u"fcz(" + Trim(narrow) + u")";
  SetScreenUpdating(*session.WordApp, false);
  InsertFormulaAsField(session, system, control);
  SetScreenUpdating(*session.WordApp, true);
}

// The stretches between the shown commas (narrowed) of the selection.
std::vector<Span> EquationsOf(word::Selection& selection) {
  std::vector<Span> equations;
  Resume([&] {
    auto selected = selection.Range();
    long from = selected->Start();
    word::Characters& chars = selected->Characters();
    for (long i = 1, n = chars.Count(); i <= n; ++i) {
      auto c = chars.Item(i);
      if (StrConvNarrow(c->Text()) != u",") continue;
      equations.push_back({from, c->Start()});
      from = c->End();
    }
    equations.push_back({from, selected->End()});
  });
  return equations;
}

// Each equation is kept as an entry and comes back with its formatting into
// one argument place of the brace's field.
void InsertSystemOfFields(Session& session) {
  word::Application& app = *session.WordApp;
  word::Selection& selection = app.Selection();
  const std::vector<Span> equations = EquationsOf(selection);
  if (equations.size() < 2) {
    session.prompt.MsgBox(kNoCommaForSystem);
    SetScreenUpdating(app, true);
    return;
  }
  std::vector<std::u16string> names;
  for (const Span& equation : equations) {
    names.push_back(u"tfc" + FromUtf8(std::to_string(names.size() + 1)));
    StoreEntry(app, names.back(), equation.start, equation.end);
  }
  DeleteRange(SelectionRange(selection));
  const std::u16string code = kSystemHead + std::u16string(equations.size() - 1, u',') + u"))";
  AddFieldAndEnter(selection, code, CaretCountAfter(kSystemHead));
  word::AutoTextEntries& entries = app.NormalTemplate().AutoTextEntries();
  for (const std::u16string& name : names) {
    InsertEntry(entries, selection, name);
    Resume([&] { selection.MoveRight(word::wdCharacter, 1); });
  }
  ToggleCodes(selection);
  for (const std::u16string& name : names) DeleteEntry(entries, name);
  SetScreenUpdating(app, true);
}

}  // namespace

void InsertEquationSystem(Session& session, const DriverControl& control) {
  word::Selection& selection = session.WordApp->Selection();
  if (SelectedLength(selection) < 1) {
    auto answer = session.prompt.InputBox(kAskEquations);
    if (answer && !answer->empty()) InsertSystemText(session, *answer, control);
    return;
  }
  DropLastReturn(selection);
  if (!HoldsFields(selection)) {
    std::u16string text;
    Resume([&] { text = selection.Text(); });
    InsertSystemText(session, text, control);
    return;
  }
  SetScreenUpdating(*session.WordApp, false);
  InsertSystemOfFields(session);
}

}  // namespace lp
