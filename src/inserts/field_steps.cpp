#include "inserts/field_steps.h"

namespace lp {

void SetScreenUpdating(word::Application& app, bool on) {
  Resume([&] { app.SetScreenUpdating(on); });
}

std::unique_ptr<word::Range> SelectionRange(word::Selection& selection) {
  std::unique_ptr<word::Range> range;
  Resume([&] { range = selection.Range(); });
  return range;
}

long StartOf(const std::unique_ptr<word::Range>& range) {
  long at = 0;
  Resume([&] { at = range ? range->Start() : 0; });
  return at;
}

long EndOf(const std::unique_ptr<word::Range>& range) {
  long at = 0;
  Resume([&] { at = range ? range->End() : 0; });
  return at;
}

void DeleteRange(const std::unique_ptr<word::Range>& range) {
  Resume([&] {
    if (range) range->Delete();
  });
}

void ToggleCodes(word::Selection& selection) {
  Resume([&] { selection.Fields().ToggleShowCodes(); });
}

long SelectedLength(word::Selection& selection) {
  long length = 0;
  Resume([&] { length = selection.Range()->End() - selection.Start(); });
  return length;
}

bool HoldsFields(word::Selection& selection) {
  long count = 0;
  Resume([&] { count = selection.Range()->Fields().Count(); });
  return count >= 1;
}

void DropLastReturn(word::Selection& selection) {
  Resume([&] {
    const std::u16string text = selection.Text();
    if (!text.empty() && text.back() == u'\r')
      selection.MoveLeft(word::wdCharacter, 1, word::wdExtend);
  });
}

std::optional<Span> FindInSelection(word::Selection& selection, const std::u16string& text) {
  std::optional<Span> found;
  Resume([&] {
    word::Find& find = selection.Find();
    find.ClearFormatting();
    find.SetWrap(word::wdFindStop);
    find.SetText(text);
    find.SetForward(true);
    find.Execute();
    if (!find.Found()) return;
    auto at = selection.Range();
    found = Span{at->Start(), at->End()};
  });
  return found;
}

void StoreEntry(word::Application& app, const std::u16string& name, long start, long end) {
  Resume([&] {
    auto part = app.ActiveDocument().Range(start, end);
    app.NormalTemplate().AutoTextEntries().Add(name, *part);
  });
}

void InsertEntry(word::AutoTextEntries& entries, word::Selection& selection,
                 const std::u16string& name) {
  Resume([&] {
    auto where = selection.Range();
    entries.Item(name)->Insert(*where, true);
  });
}

void DeleteEntry(word::AutoTextEntries& entries, const std::u16string& name) {
  Resume([&] { entries.Item(name)->Delete(); });
}

void AddFieldAndEnter(word::Selection& selection, const std::u16string& code, long skip) {
  Resume([&] {
    auto where = selection.Range();
    selection.Fields().Add(*where, word::wdFieldEmpty, code, false);
  });
  Resume([&] { selection.MoveLeft(word::wdCharacter, 1, word::wdExtend); });
  Resume([&] { selection.Fields().ToggleShowCodes(); });
  Resume([&] { selection.MoveLeft(word::wdCharacter, 1); });
  Resume([&] { selection.MoveRight(word::wdCharacter, skip); });
}

long CaretCountAfter(const std::u16string& codePrefix) {
  // The field's begin mark and the blank Word shows before the code.
  return 2 + static_cast<long>(codePrefix.size());
}

void DeleteTrailingBlank(word::Selection& selection) {
  Resume([&] {
    selection.MoveRight(word::wdCharacter, 1);
    selection.MoveRight(word::wdCharacter, 1, word::wdExtend);
    if (selection.Text() != u" ") return;
    selection.MoveLeft(word::wdCharacter, 1);
    selection.Delete(word::wdCharacter, 1);
  });
}

}  // namespace lp
