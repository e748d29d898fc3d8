#include "launcher/select_text.h"

#include "runtime/text.h"

namespace lp {

bool SelectFirst(word::Application& app, const word::Text& text) {
  auto range = app.ActiveDocument().Content();
  word::Find& find = range->Find();
  find.ClearFormatting();
  // The text is literal: a caret would start one of Find's special codes.
  find.SetText(Replace(text, u"^", u"^^"));
  find.SetForward(true);
  find.SetWrap(word::wdFindStop);
  find.SetMatchWildcards(false);
  if (!find.Execute()) return false;
  range->Select();
  return true;
}

}  // namespace lp
