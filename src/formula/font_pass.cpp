#include "formula/font_pass.h"

#include "formula/scanner.h"
#include "runtime/text.h"
#include "toolkit/chars.h"

namespace lp {
namespace {

struct CharFormat {
  const char16_t* name;
  long italic;
};

void Format(word::Range& c, CharFormat format) {
  c.Font().SetName(format.name);
  c.Font().SetItalic(format.italic);
}

// Replaces character i with one character of a special font and removes the
// next one, which was the second half of its pair.
void Merge(word::Characters& chars, long i, const std::u16string& with, CharFormat format) {
  auto c = chars.Item(i);
  c->SetText(with);
  Format(*c, format);
  chars.Item(i + 1)->Delete();
}

// Arrows and arcs widen with the letters they stand over: the text from the
// third character behind the sign up to the next ")".
long ScalingFor(const std::u16string& shown, long i, bool arc) {
  int32_t from = static_cast<int32_t>(i) + 3;
  int32_t close = InStr(from, shown, u")");
  int32_t length = close > 0 ? close - from : Len(shown) - from + 1;
  if (arc) return length > 2 ? 200 : 150;
  return length == 2 ? 150 : length > 2 ? 200 : 0;
}

class FontPass {
 public:
  FontPass(word::Selection& selection, const MaskedGreek& greek)
      : selection_(selection), greek_(greek) {}

  void At(long i) {
    word::Characters& chars = selection_.Characters();
    auto c = chars.Item(i);
    std::u16string ch = c->Text();
    std::u16string next = i < chars.Count() ? chars.Item(i + 1)->Text() : std::u16string();
    char16_t u = ch.empty() ? 0 : ch[0];
    if (u == u'`') {
      if (greek_.GreekUsed && counter_ <= greek_.GreekChars.size())
        c->SetText(greek_.GreekChars[counter_ - 1]);
      Format(*c, {u"Symbol", word::wdTrue});
      ++counter_;
    } else if (u == u'→' || u == u'⌒') {
      c->Font().SetSize(10);
      long scaling = ScalingFor(selection_.Text(), i, u == u'⌒');
      if (scaling) c->Font().SetScaling(scaling);
    } else if (u == u'＜' && next == u"＞") {
      Merge(chars, i, u"≠", {u"宋体", word::wdFalse});
    } else if (u == u'＋' && next == u"－") {
      Merge(chars, i, u"±", {u"宋体", word::wdFalse});
    } else if (u == u'－' && next == u"＋") {
      Merge(chars, i, std::u16string(1, char16_t(0xF06D)), {u"Euclid Extra", word::wdFalse});
    } else if (IsDigitChar(u)) {
      Format(*c, {u"Times New Roman", word::wdFalse});
    } else if (IsLetterChar(u)) {
      Format(*c, {u"Times New Roman", word::wdTrue});
      if (LCase(ch + next) == u"pi") Merge(chars, i, u"p", {u"Symbol", word::wdTrue});
    }
  }

 private:
  word::Selection& selection_;
  const MaskedGreek& greek_;
  size_t counter_ = 1;
};

// Word keeps a blank before the closing brace of a shown code; the pass
// takes it out.
void RemoveLastBlank(word::Selection& selection) {
  word::Characters& chars = selection.Characters();
  long count = chars.Count();
  if (count < 2 || chars.Item(count - 1)->Text() != u" ") return;
  chars.Item(count - 1)->Select();
  selection.MoveRight(word::wdCharacter, 1);
  selection.TypeBackspace();
}

}  // namespace

void RunFontPass(word::Application& app, word::Range& fieldRange, const MaskedGreek& greek,
                 const DriverControl& control) {
  word::Selection& selection = app.Selection();
  long limit = 0;
  IgnoringWordErrors([&] {
    fieldRange.Select();
    limit = selection.Characters().Count();
  });
  // The limit is not lowered by merged pairs: indexes past the end fail and
  // are passed over.
  FontPass pass(selection, greek);
  for (long i = 1; i <= limit; ++i) {
    IgnoringWordErrors([&] { pass.At(i); });
    if (control.pump) control.pump();
  }
  IgnoringWordErrors([&] { RemoveLastBlank(selection); });
  IgnoringWordErrors([&] { fieldRange.Select(); });
}

}  // namespace lp
