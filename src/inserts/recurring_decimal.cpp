#include "inserts/field_steps.h"
#include "inserts/inserts.h"
#include "runtime/text.h"

namespace lp {
namespace {

constexpr char16_t kDotOpening[] = u"\\o(\\s\\up 3(˙),";

std::u16string Dotted(char16_t digit) {
  return kDotOpening + std::u16string(1, digit) + u")";
}

// Types the code into the field the caret stands in: dots over each digit
// of a short tail, over the first and the last of a longer one.
void TypeCode(word::Selection& selection, const std::u16string& head, const std::u16string& tail) {
  Resume([&] { selection.TypeText(u"eq " + head); });
  if (tail.size() <= 2) {
    for (char16_t digit : tail) Resume([&] { selection.TypeText(Dotted(digit)); });
    return;
  }
  Resume([&] { selection.TypeText(kDotOpening + tail.substr(0, 1)); });
  Resume([&] { selection.TypeText(u")" + tail.substr(1, tail.size() - 2)); });
  Resume([&] { selection.TypeText(Dotted(tail.back())); });
}

}  // namespace

void InsertRecurringDecimal(Session& session) {
  word::Selection& selection = session.WordApp->Selection();
  std::u16string text;
  Resume([&] { text = Trim(selection.Text()); });
  if (!text.empty() && text.back() == u'\r') text.pop_back();
  const size_t slash = text.find(u'/');
  if (slash == std::u16string::npos) {
    session.prompt.MsgBox(kNoSlashForDecimal);
    return;
  }
  if (text.find(u'.') == std::u16string::npos &&
      session.prompt.MsgBox(kDecimalWithoutPoint, vbOKCancel) == vbCancel)
    return;
  const std::u16string head = text.substr(0, slash), tail = text.substr(slash + 1);
  if (tail.empty()) {
    session.prompt.MsgBox(kNoRecurringPart);
    return;
  }
  // The paragraph mark is not part of the decimal: it stays.
  DropLastReturn(selection);
  Resume([&] { selection.Delete(); });
  Resume([&] { selection.Font().SetName(u"宋体"); });
  Resume([&] {
    auto where = selection.Range();
    selection.Fields().Add(*where, word::wdFieldEmpty, u"", false);
  });
  TypeCode(selection, head, tail);
  Resume([&] { selection.Delete(word::wdCharacter, 1); });
  ToggleCodes(selection);
  Resume([&] { selection.MoveRight(word::wdCharacter, 1); });
}

}  // namespace lp
