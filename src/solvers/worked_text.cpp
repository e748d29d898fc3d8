#include "solvers/worked_text.h"

#include <filesystem>

#include "runtime/convert.h"
#include "runtime/text.h"
#include "toolkit/solve.h"

namespace lp {

std::u16string SignToDisplay(const std::u16string& op) {
  return InequalityOpSymbol(op);
}

std::u16string XTerm(double coefficient) {
  if (coefficient == 1) return u"x";
  if (coefficient == -1) return u"-x";
  return Trim(Str(coefficient)) + u"x";
}

FractionParts SplitFraction(const std::u16string& text) {
  int32_t slash = InStr(text, u"/");
  return {Trim(Left(text, slash - 1)), Trim(Mid(text, slash + 1))};
}

void AddField(word::Selection& selection, const std::u16string& code) {
  auto where = selection.Range();
  auto field = selection.Fields().Add(*where, word::wdFieldEmpty, code, false);
  field->Select();
  selection.Collapse(word::wdCollapseEnd);
}

void AddFractionField(word::Selection& selection, const std::u16string& text) {
  FractionParts f = SplitFraction(text);
  AddField(selection, u"EQ \\F(" + f.numerator + u"," + f.denominator + u")");
}

void Insert_Quadratic_Equation_To_Word(word::Selection& selection, const std::u16string& text) {
  std::u16string plain;
  auto flush = [&] {
    if (!plain.empty()) selection.TypeText(plain);
    plain.clear();
  };
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == u'*') continue;
    if (text[i] != u'^') {
      plain += text[i];
      continue;
    }
    flush();
    selection.Font().SetSuperscript(word::wdToggle);
    selection.TypeText(u"2");
    selection.Font().SetSuperscript(word::wdToggle);
    ++i;
  }
  flush();
}

void TypeEmptySet(word::Selection& selection) {
  selection.InsertSymbol(-3898, u"Symbol", true);
}

void TypeDelta(Session& session) {
  word::Selection& selection = session.WordApp->Selection();
  std::filesystem::path font = std::filesystem::path(session.programFolder) / "lumenpad.ttf";
  if (!std::filesystem::exists(font)) {
    selection.InsertSymbol(68, u"Symbol", false);
    return;
  }
  selection.InsertSymbol(68, u"lumenpad", false);
  session.WordApp->ActiveDocument().SetEmbedTrueTypeFonts(true);
}

}  // namespace lp
