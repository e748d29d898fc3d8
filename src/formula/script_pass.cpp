#include "formula/script_pass.h"

namespace lp {

std::u16string ScriptPassText(const std::vector<ScriptChar>& chars) {
  std::u16string result, raisedRun, loweredRun;
  bool InSuper = false, InSub = false;
  const size_t n = chars.size();
  for (size_t i = 0; i + 1 < n; ++i) {
    const ScriptChar& c = chars[i];
    if (c.raised) {
      InSuper = true;
      raisedRun += c.text;
      if (!chars[i + 1].raised) result += u"^(" + raisedRun + u")";
    } else if (c.lowered) {
      InSub = true;
      loweredRun += c.text;
      if (!chars[i + 1].lowered) result += u"_(" + loweredRun + u")";
    } else {
      InSuper = InSub = false;
      raisedRun.clear();
      loweredRun.clear();
      result += c.text;
    }
  }
  if (n == 0) return result;
  const ScriptChar& last = chars[n - 1];
  if (InSuper) {
    if (last.raised) result += u"^(" + raisedRun + last.text + u")";
  } else if (InSub) {
    if (last.lowered) result += u"^(" + loweredRun + last.text + u")";
  } else if (last.raised || last.lowered) {
    // A last character raised or lowered by itself opens a run of its own.
    result += u"^(" + last.text + u")";
  } else {
    result += last.text;
  }
  return result;
}

std::vector<ScriptChar> ReadScriptChars(word::Range& range) {
  word::Characters& characters = range.Characters();
  std::vector<ScriptChar> chars;
  for (long i = 1, n = characters.Count(); i <= n; ++i) {
    auto c = characters.Item(i);
    chars.push_back({c->Text(), c->Font().Superscript() == word::wdTrue,
                     c->Font().Subscript() == word::wdTrue});
  }
  return chars;
}

}  // namespace lp
