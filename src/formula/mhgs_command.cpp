#include "formula/commands.h"
#include "formula/generators.h"

namespace lp {
namespace {

void ReplaceAll(word::Selection& selection, const std::u16string& from, const std::u16string& to) {
  word::Find& find = selection.Find();
  find.ClearFormatting();
  find.SetText(from);
  find.Replacement().SetText(to);
  find.Replacement().ClearFormatting();
  find.SetForward(true);
  find.Execute(word::wdReplaceAll);
}

// "^$" any letter, "^#" any digit: the found text stays, in the new font.
void RestyleAll(word::Selection& selection, const std::u16string& pattern, long italic) {
  word::Find& find = selection.Find();
  find.ClearFormatting();
  find.SetText(pattern);
  find.Replacement().SetText(u"");
  find.Replacement().ClearFormatting();
  find.Replacement().Font().SetName(u"Times New Roman");
  find.Replacement().Font().SetItalic(italic);
  find.SetForward(true);
  find.Execute(word::wdReplaceAll);
}

}  // namespace

void RunMhgs(Session& session) {
  word::Application& app = *session.WordApp;
  app.SetScreenUpdating(false);
  word::Selection& selection = app.Selection();
  if (selection.End() - selection.Start() < 2)
    app.ActiveDocument().Bookmarks().Item(u"\\Page")->Select();
  const bool hasFields = selection.Fields().Count() > 0;
  if (hasFields) selection.Fields().ToggleShowCodes();
  for (const auto& [from, to] : WideSigns()) ReplaceAll(selection, from, to);
  RestyleAll(selection, u"^$", word::wdTrue);
  RestyleAll(selection, u"^#", word::wdFalse);
  if (hasFields) selection.Fields().ToggleShowCodes();
  app.SetScreenUpdating(true);
}

}  // namespace lp
