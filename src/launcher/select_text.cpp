#include "launcher/select_text.h"

namespace lp {

bool SelectFirst(word::Application& app, const word::Text& text) {
  auto range = app.ActiveDocument().Content();
  word::Find& find = range->Find();
  find.ClearFormatting();
  find.SetText(text);
  find.SetForward(true);
  find.SetWrap(word::wdFindStop);
  find.SetMatchWildcards(false);
  if (!find.Execute()) return false;
  range->Select();
  return true;
}

}  // namespace lp
