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

namespace {

// Selects the first shape whose name begins with prefix, alone or added to
// what is selected.
bool SelectFirstShape(word::Shapes& shapes, const word::Text& prefix, bool replace) {
  for (long i = 1; i <= shapes.Count(); ++i) {
    std::unique_ptr<word::Shape> shape = shapes.Item(i);
    if (shape->Name().rfind(prefix, 0) != 0) continue;
    shape->Select(replace);
    return true;
  }
  return false;
}

}  // namespace

// A name may hold a comma itself (the cells of the column arithmetic), so the
// whole text is tried as one name before it is read as a list.
bool SelectShape(word::Application& app, const word::Text& names) {
  word::Shapes& shapes = app.ActiveDocument().Shapes();
  if (SelectFirstShape(shapes, names, true)) return true;
  if (names.find(u',') == word::Text::npos) return false;
  bool first = true;
  for (const word::Text& prefix : Split(names, u",")) {
    if (!SelectFirstShape(shapes, prefix, first)) return false;
    first = false;
  }
  return true;
}

}  // namespace lp
