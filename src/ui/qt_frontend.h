#pragma once
// The launcher's user interface in Qt: the splash and the forms of the table.

#include <memory>

#include "launcher/frmMain.h"
#include "launcher/frontend.h"
#include "ui/form.h"
#include "ui/qt_app.h"

namespace lp::ui {

class QtFrontend : public Frontend {
 public:
  // driven: the headless driver works the form, so a modal form doesn't wait.
  QtFrontend(QtApp& app, Session& session, bool driven)
      : app_(app), session_(session), driven_(driven) {}
  void ShowSplash() override;
  void SetSplashProgress(const std::u16string& text) override;
  void UnloadSplash() override;
  void ShowForm(std::u16string_view form, bool modal) override;
  bool Headless() const override { return driven_; }
  void PumpEvents() override;

  // The dialog SubMain left open, if any.
  Form* OpenForm() const { return form_.get(); }

 private:
  QtApp& app_;
  Session& session_;
  bool driven_;
  std::unique_ptr<frmMain> splash_;
  std::unique_ptr<Form> form_;
};

}  // namespace lp::ui
