#pragma once
// Message and input boxes as Qt dialogs.

#include "runtime/prompt.h"
#include "ui/qt_app.h"

namespace lp::ui {

class QtPrompt : public Prompt {
 public:
  explicit QtPrompt(QtApp& app) : app_(app) {}
  MsgBoxResult MsgBox(const std::u16string& prompt, int style,
                      const std::u16string& title) override;
  std::optional<std::u16string> InputBox(const std::u16string& prompt, const std::u16string& title,
                                         const std::u16string& defaultText) override;

 private:
  QtApp& app_;
};

}  // namespace lp::ui
