#include "settings/config_row.h"

#include <exception>
#include <string>

#include "errorlog/error_log.h"
#include "runtime/convert.h"
#include "runtime/utf8.h"

namespace lp {
namespace {

// The keys that set a Word option; Null in them is a conversion error.
void ApplyWordOption(const std::u16string& name, bool on, word::Application& app) {
  if (name == u"EmbedTrueTypeFonts") {
    if (!on) return;
    word::Document& doc = app.ActiveDocument();
    doc.SetEmbedTrueTypeFonts(true);
    doc.SetSaveSubsetFonts(true);
    doc.SetDoNotEmbedSystemFonts(true);
  } else if (name == u"AutoCreateNewDrawings") {
    app.Options().SetAutoCreateNewDrawings(on);
  } else if (name == u"CorrectSentenceCaps") {
    app.AutoCorrect().SetCorrectSentenceCaps(on);
  } else if (name == u"AutoFormatMatchParentheses") {
    app.Options().SetAutoFormatMatchParentheses(on);
  }
}

// Flags that take a Null as a default instead of failing.
int16_t FlagOrDefault(const DbValue& v, int16_t nullMeans) {
  return std::holds_alternative<std::monostate>(v) ? nullMeans : CBoolValue(v);
}

}  // namespace

void ApplyConfigRow(const Recordset& rs, ConfigGlobals& g, word::Application* app) {
  const std::u16string name = CStrValue(rs.Value("cName"));
  const DbValue& bl = rs.Value("blvalue");
  if (name == u"EmbedTrueTypeFonts" || name == u"AutoCreateNewDrawings" ||
      name == u"CorrectSentenceCaps" || name == u"AutoFormatMatchParentheses") {
    int16_t on = CBoolValue(bl);
    if (app) ApplyWordOption(name, on != 0, *app);
  } else if (name == u"EmbellishFormula") {
    g.EmbellishFormula = CBoolValue(bl);
  } else if (name == u"blMathType") {
    g.blMathType = CBoolValue(bl);
  } else if (name == u"blFS") {
    g.blFS = CBoolValue(bl);
  } else if (name == u"blPLZH") {
    g.blPLZH = CBoolValue(bl);
  } else if (name == u"intK") {
    g.intK = CIntValue(rs.Value("intvalue"));
    if (g.intK == 0) g.intK = 5;
  } else if (name == u"intKD") {
    g.intKD = CIntValue(rs.Value("intvalue"));
    if (g.intKD == 0) g.intKD = 8;
  } else if (name == u"blYkdLeft") {
    g.blYkdLeft = FlagOrDefault(bl, vbFalse);
  } else if (name == u"blYtxtLeft") {
    g.blYtxtLeft = FlagOrDefault(bl, vbFalse);
  } else if (name == u"blXkdUp") {
    g.blXkdUp = FlagOrDefault(bl, vbFalse);
  } else if (name == u"blXtxtUp") {
    g.blXtxtUp = FlagOrDefault(bl, vbFalse);
  } else if (name == u"blAutoKD") {
    g.blAutoKD = FlagOrDefault(bl, vbTrue);
  } else if (name == u"blInlineShape") {
    g.blInlineShape = FlagOrDefault(bl, vbFalse);
  }
}

}  // namespace lp
