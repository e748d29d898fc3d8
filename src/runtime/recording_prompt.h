#pragma once
// A prompt that writes down every box it is asked to show and answers from a
// script: the tests' view of what the teacher would have seen.

#include <deque>
#include <string>
#include <vector>

#include "runtime/prompt.h"

namespace lp {

struct ShownBox {
  enum Kind { kMessage, kInput } kind = kMessage;
  std::u16string prompt;
  int style = 0;
  std::u16string title;
};

class RecordingPrompt : public Prompt {
 public:
  // Answers in order: "ok", "cancel", "yes", "no", or the text of an input box.
  // Without a scripted answer a message box is OK and an input box is cancelled.
  void Answer(const std::u16string& answer) { answers_.push_back(answer); }
  const std::vector<ShownBox>& Shown() const { return shown_; }
  void Clear() { shown_.clear(); }

  MsgBoxResult MsgBox(const std::u16string& prompt, int style,
                      const std::u16string& title) override;
  std::optional<std::u16string> InputBox(const std::u16string& prompt, const std::u16string& title,
                                         const std::u16string& defaultText) override;

 private:
  std::deque<std::u16string> answers_;
  std::vector<ShownBox> shown_;
};

}  // namespace lp
