#pragma once
// The Word steps that the field inserts share: each runs with Word errors
// passed over, so that one failed call does not stop an insert and the later
// steps work on whatever stands.

#include <memory>
#include <optional>
#include <string>

#include "word/api.h"

namespace lp {

// Runs f; a failed Word call inside it is passed over.
template <typename F>
void Resume(F&& f) {
  try {
    f();
  } catch (const word::ComError&) {
  }
}

void SetScreenUpdating(word::Application& app, bool on);
std::unique_ptr<word::Range> SelectionRange(word::Selection& selection);
// Start and end of a range that may be missing; 0 when Word fails.
long StartOf(const std::unique_ptr<word::Range>& range);
long EndOf(const std::unique_ptr<word::Range>& range);
void DeleteRange(const std::unique_ptr<word::Range>& range);
// Shows or hides the codes of the fields at the selection.
void ToggleCodes(word::Selection& selection);

// The selection's length as Range.End minus Selection.Start; 0 when Word fails.
long SelectedLength(word::Selection& selection);

// Whether the selection holds at least one field.
bool HoldsFields(word::Selection& selection);

// Leaves a last paragraph mark out of the selection.
void DropLastReturn(word::Selection& selection);

// Start and end of the first match of text from the selection's start to its end; the
// selection becomes the match. Nothing when there is none.
struct Span {
  long start = 0;
  long end = 0;
};
std::optional<Span> FindInSelection(word::Selection& selection, const std::u16string& text);

// Stores the document's stretch [start, end) as the named entry.
void StoreEntry(word::Application& app, const std::u16string& name, long start, long end);
// Inserts the named entry at the selection with its formatting.
void InsertEntry(word::AutoTextEntries& entries, word::Selection& selection,
                 const std::u16string& name);
void DeleteEntry(word::AutoTextEntries& entries, const std::u16string& name);

// Adds an empty field of the given code at the selection, shows its code and
// puts the caret after the first `skip` characters of the code as Word shows
// it: one blank, then the code.
void AddFieldAndEnter(word::Selection& selection, const std::u16string& code, long skip);
// The caret count that puts it right after codePrefix, the start of a code.
long CaretCountAfter(const std::u16string& codePrefix);

// Deletes the one character behind the caret if it is the blank that
// inserting left before the field's end.
void DeleteTrailingBlank(word::Selection& selection);

}  // namespace lp
