#include "launcher/headless_prompt.h"

#include <cstdio>

#include "runtime/utf8.h"

namespace lp {
namespace {

void Print(const std::u16string& title, const std::u16string& prompt) {
  std::string text = ToUtf8(title.empty() ? prompt : u"【" + title + u"】" + prompt);
  std::fprintf(stderr, "%s\n", text.c_str());
}

}  // namespace

MsgBoxResult HeadlessPrompt::MsgBox(const std::u16string& prompt, int style,
                                    const std::u16string& title) {
  Print(title, prompt);
  return RecordingPrompt::MsgBox(prompt, style, title);
}

std::optional<std::u16string> HeadlessPrompt::InputBox(const std::u16string& prompt,
                                                       const std::u16string& title,
                                                       const std::u16string& defaultText) {
  Print(title, prompt);
  return RecordingPrompt::InputBox(prompt, title, defaultText);
}

}  // namespace lp
