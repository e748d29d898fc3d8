#include "formula/font_pass.h"
#include "formula/insert.h"
#include "runtime/convert.h"
#include "runtime/text.h"

namespace lp {
namespace {

// The part of range from offset first to offset last (0-based, exclusive),
// in the range's own story.
std::unique_ptr<word::Range> Part(const word::Range& range, long first, long last) {
  auto part = range.Duplicate();
  part->SetStart(range.Start() + first);
  part->SetEnd(range.Start() + last);
  return part;
}

// Each "@x" greek key becomes the text of a SYMBOL field in braces.
std::u16string GreekToSymbolFieldText(const std::u16string& text) {
  std::u16string s = text;
  for (size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != u'@') continue;
    std::u16string key = u"@" + Trim(text.substr(i + 1, 1));
    std::u16string field = u"{ SYMBOL " + Str(text[i + 1]) + u" \\f \"symbol\"}";
    size_t at = s.find(key);
    if (at != std::u16string::npos) s.replace(at, key.size(), field);
    ++i;
  }
  return s;
}

// The innermost pair of braces becomes a field whose code is the text
// between them; the outer pair then holds that field in its code.
std::vector<std::unique_ptr<word::Field>> BracesToFields(word::Range& range) {
  std::vector<std::unique_ptr<word::Field>> fields;
  for (;;) {
    std::u16string text = range.Text();
    size_t close = text.find(u'}');
    if (close == std::u16string::npos) break;
    size_t open = text.rfind(u'{', close);
    if (open == std::u16string::npos) break;
    auto inner = Part(range, static_cast<long>(open) + 1, static_cast<long>(close));
    fields.push_back(range.Fields().Add(*inner, word::wdFieldEmpty, u"", false));
    fields.back()->Code()->Fields().ToggleShowCodes();
    Part(range, static_cast<long>(close) + 2, static_cast<long>(close) + 3)->Delete();
    Part(range, static_cast<long>(open), static_cast<long>(open) + 1)->Delete();
  }
  return fields;
}

}  // namespace

void ExpandSymbolFields(Session& session, word::Range& range) {
  word::Application& app = *session.WordApp;
  IgnoringWordErrors([&] {
    app.SetScreenUpdating(false);
    range.SetText(SignsToWide(GreekToSymbolFieldText(range.Text())));
    range.Select();
    for (const auto& field : BracesToFields(range)) {
      auto code = field->Code();
      code->Font().SetItalic(InStr(code->Text(), u"symbol") > 0 ? word::wdTrue : word::wdFalse);
    }
    word::Find& find = range.Find();
    find.ClearFormatting();
    find.SetText(u" {2,}");
    find.Replacement().SetText(u" ");
    find.SetMatchWildcards(true);
    find.Execute(word::wdReplaceAll);
    range.Fields().ToggleShowCodes();
  });
  IgnoringWordErrors([&] { app.SetScreenUpdating(true); });
}

}  // namespace lp
