#include "runtime/recording_prompt.h"

namespace lp {

MsgBoxResult RecordingPrompt::MsgBox(const std::u16string& prompt, int style,
                                     const std::u16string& title) {
  shown_.push_back({ShownBox::kMessage, prompt, style, title});
  if (answers_.empty()) return (style & 7) == vbYesNo ? vbYes : vbOK;
  std::u16string answer = answers_.front();
  answers_.pop_front();
  if (answer == u"cancel") return vbCancel;
  if (answer == u"no") return vbNo;
  if (answer == u"yes") return vbYes;
  return vbOK;
}

std::optional<std::u16string> RecordingPrompt::InputBox(const std::u16string& prompt,
                                                        const std::u16string& title,
                                                        const std::u16string& defaultText) {
  shown_.push_back({ShownBox::kInput, prompt, 0, title});
  if (answers_.empty()) return std::nullopt;
  std::u16string answer = answers_.front();
  answers_.pop_front();
  if (answer == u"cancel") return std::nullopt;
  return answer;
}

}  // namespace lp
