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

bool SelectShape(word::Application& app, const word::Text& prefix) {
  word::Shapes& shapes = app.ActiveDocument().Shapes();
  for (long i = 1; i <= shapes.Count(); ++i) {
    std::unique_ptr<word::Shape> shape = shapes.Item(i);
    if (shape->Name().rfind(prefix, 0) != 0) continue;
    shape->Select();
    return true;
  }
  return false;
}

}  // namespace lp
