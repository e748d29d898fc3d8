#pragma once
// The one way the core talks to the teacher: message boxes and input boxes.
// Implementations: Qt dialogs, headless (stderr and --answer), recording (tests).

#include <optional>
#include <string>

namespace lp {

// Buttons and icons add up to one style value, as the message box takes it.
enum MsgBoxStyle {
  vbOKOnly = 0,
  vbOKCancel = 1,
  vbYesNo = 4,
  vbCritical = 16,
  vbQuestion = 32,
  vbExclamation = 48,
  vbInformation = 64,
};

enum MsgBoxResult { vbOK = 1, vbCancel = 2, vbYes = 6, vbNo = 7 };

class Prompt {
 public:
  virtual ~Prompt() = default;
  // An empty title shows the program's default title.
  virtual MsgBoxResult MsgBox(const std::u16string& prompt, int style = vbOKOnly,
                              const std::u16string& title = {}) = 0;
  // The typed text, or nothing when the teacher cancels.
  virtual std::optional<std::u16string> InputBox(const std::u16string& prompt,
                                                 const std::u16string& title = {},
                                                 const std::u16string& defaultText = {}) = 0;
};

}  // namespace lp
