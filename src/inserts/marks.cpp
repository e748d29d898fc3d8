#include "formula/insert.h"
#include "inserts/field_steps.h"
#include "inserts/inserts.h"
#include "runtime/text.h"

namespace lp {
namespace {

struct MarkRow {
  std::u16string_view prompt;
  std::u16string_view textHead;   // the code before the letters of the text route
  std::u16string_view fieldCode;  // the field of a selection that holds fields
  std::u16string_view fieldHead;  // that field's code up to where the mark goes
  std::u16string_view markEntry;  // the template's entry of the mark
};

constexpr MarkRow kArc{u"请输入需要添加弧符号的字母：", u"EQ \\o\\ac(\\S\\UP7(⌒),",
                       u"EQ \\o\\ac (,)", u"EQ \\o\\ac (", u"hu_top"};
constexpr MarkRow kVector{u"请输入需要添加向量符号的字母：", u"EQ \\o\\ac(\\S\\UP7(→),",
                          u"EQ \\o \\ac (,)", u"EQ \\o \\ac (", u"xiangliang"};

void InsertByText(Session& session, const MarkRow& row, const std::u16string& text) {
  InsertEqField(session, std::u16string(row.textHead) + Trim(StrConvNarrow(text)) + u")");
}

// The selection holds fields, whose text can't be used: the selection goes
// into the field as it is, behind the template's mark.
void InsertByEntries(word::Application& app, const MarkRow& row) {
  word::Selection& selection = app.Selection();
  auto selected = SelectionRange(selection);
  StoreEntry(app, u"fm", StartOf(selected), EndOf(selected));
  DeleteRange(selected);
  AddFieldAndEnter(selection, std::u16string(row.fieldCode),
                   CaretCountAfter(std::u16string(row.fieldHead)));
  Resume([&] {
    auto attached = app.ActiveDocument().AttachedTemplate();
    InsertEntry(attached->AutoTextEntries(), selection, std::u16string(row.markEntry));
  });
  word::AutoTextEntries& entries = app.NormalTemplate().AutoTextEntries();
  Resume([&] { selection.MoveRight(word::wdCharacter, 1); });
  InsertEntry(entries, selection, u"fm");
  DeleteTrailingBlank(selection);
  ToggleCodes(selection);
  DeleteEntry(entries, u"fm");
}

void InsertMark(Session& session, const MarkRow& row) {
  word::Application& app = *session.WordApp;
  word::Selection& selection = app.Selection();
  auto r = SelectionRange(selection);
  if (EndOf(r) - StartOf(r) < 1) {
    auto answer = session.prompt.InputBox(std::u16string(row.prompt));
    if (!answer || answer->empty()) return;
    SetScreenUpdating(app, false);
    InsertByText(session, row, *answer);
    SetScreenUpdating(app, true);
    return;
  }
  DropLastReturn(selection);
  SetScreenUpdating(app, false);
  if (HoldsFields(selection)) {
    InsertByEntries(app, row);
  } else {
    std::u16string text;
    Resume([&] { text = selection.Text(); });
    InsertByText(session, row, text);
  }
  SetScreenUpdating(app, true);
}

}  // namespace

void InsertArcMark(Session& session) {
  InsertMark(session, kArc);
}

void InsertVectorMark(Session& session) {
  InsertMark(session, kVector);
}

}  // namespace lp
