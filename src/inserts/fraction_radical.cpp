#include "inserts/field_steps.h"
#include "inserts/inserts.h"

namespace lp {
namespace {

// Each code and its head, up to where the first part goes.
constexpr char16_t kFractionCode[] = u"EQ \\F(,)";
constexpr char16_t kFractionHead[] = u"EQ \\F(";
constexpr char16_t kRootCode[] = u"EQ \\r(,)";
constexpr char16_t kRootHead[] = u"EQ \\r(";

// One step right, then the character there (the blank that inserting left
// behind the bracket) is taken away.
void StepOverBracketAndDelete(word::Selection& selection) {
  Resume([&] { selection.MoveRight(word::wdCharacter, 1); });
  Resume([&] { selection.Delete(word::wdCharacter, 1); });
}

void ShrinkIndex(word::Application& app, long start, long end) {
  Resume([&] {
    auto index = app.ActiveDocument().Range(start, end);
    index->Font().SetSize(index->Font().Size() - 3);
  });
}

}  // namespace

InsertOutcome InsertFractionField(Session& session) {
  word::Application& app = *session.WordApp;
  word::Selection& selection = app.Selection();
  SetScreenUpdating(app, false);
  if (SelectedLength(selection) < 3) {
    SetScreenUpdating(app, true);
    return InsertOutcome::kShowDialog;
  }
  std::u16string text;
  Resume([&] { text = selection.Text(); });
  if (text.find(u';') != std::u16string::npos) return InsertOutcome::kToFormula;
  DropLastReturn(selection);
  auto r = SelectionRange(selection);
  const auto slash = FindInSelection(selection, u"/");
  if (!slash) {
    // The run ends here, with screen updating still off.
    session.prompt.MsgBox(kNoSlashForFraction);
    return InsertOutcome::kDone;
  }
  StoreEntry(app, u"fz", StartOf(r), slash->start);
  StoreEntry(app, u"fm", slash->end, EndOf(r));
  DeleteRange(r);
  AddFieldAndEnter(selection, kFractionCode, CaretCountAfter(kFractionHead));
  word::AutoTextEntries& entries = app.NormalTemplate().AutoTextEntries();
  InsertEntry(entries, selection, u"fz");
  Resume([&] { selection.MoveRight(word::wdCharacter, 1); });
  InsertEntry(entries, selection, u"fm");
  StepOverBracketAndDelete(selection);
  ToggleCodes(selection);
  DeleteEntry(entries, u"fz");
  DeleteEntry(entries, u"fm");
  SetScreenUpdating(app, true);
  return InsertOutcome::kDone;
}

InsertOutcome InsertRadicalField(Session& session) {
  word::Application& app = *session.WordApp;
  word::Selection& selection = app.Selection();
  SetScreenUpdating(app, false);
  if (SelectedLength(selection) < 1) {
    SetScreenUpdating(app, true);
    return InsertOutcome::kShowDialog;
  }
  DropLastReturn(selection);
  auto r = SelectionRange(selection);
  const auto slash = FindInSelection(selection, u"/");
  word::AutoTextEntries& entries = app.NormalTemplate().AutoTextEntries();
  if (!slash) {
    StoreEntry(app, u"kfs", StartOf(r), EndOf(r));
    DeleteRange(r);
    // Past the comma: the index stays empty.
    AddFieldAndEnter(selection, kRootCode, CaretCountAfter(kRootHead) + 1);
    InsertEntry(entries, selection, u"kfs");
  } else {
    ShrinkIndex(app, StartOf(r), slash->start);
    StoreEntry(app, u"gzs", StartOf(r), slash->start);
    StoreEntry(app, u"kfs", slash->end, EndOf(r));
    DeleteRange(r);
    AddFieldAndEnter(selection, kRootCode, CaretCountAfter(kRootHead));
    InsertEntry(entries, selection, u"gzs");
    Resume([&] { selection.MoveRight(word::wdCharacter, 1); });
    InsertEntry(entries, selection, u"kfs");
    DeleteEntry(entries, u"gzs");
  }
  StepOverBracketAndDelete(selection);
  DeleteEntry(entries, u"kfs");
  ToggleCodes(selection);
  SetScreenUpdating(app, true);
  return InsertOutcome::kDone;
}

}  // namespace lp
