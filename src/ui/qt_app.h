#pragma once
// The Qt application of a run, made on first need: a run that shows no box
// and no dialog never pays for it.

#include <QApplication>
#include <memory>

namespace lp::ui {

class QtApp {
 public:
  // offscreen: no display is needed (the headless driver, scripts, tests).
  explicit QtApp(bool offscreen) : offscreen_(offscreen) {}
  QApplication& Get();
  bool Made() const { return app_ != nullptr; }

 private:
  bool offscreen_;
  int argc_ = 1;
  char name_[9] = "lumenpad";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> app_;
};

}  // namespace lp::ui
