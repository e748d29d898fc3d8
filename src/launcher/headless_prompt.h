#pragma once
// The prompt of a run without a screen: every box is written to stderr and
// answered from the --answer values in order ("ok", "cancel", "yes", "no",
// or the text of an input box). Without an answer a message box is OK (Yes)
// and an input box is cancelled.

#include "runtime/recording_prompt.h"

namespace lp {

class HeadlessPrompt : public RecordingPrompt {
 public:
  MsgBoxResult MsgBox(const std::u16string& prompt, int style,
                      const std::u16string& title) override;
  std::optional<std::u16string> InputBox(const std::u16string& prompt, const std::u16string& title,
                                         const std::u16string& defaultText) override;
};

}  // namespace lp
