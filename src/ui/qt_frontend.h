#pragma once
// The launcher's user interface in Qt: the splash and the forms of the table.

#include <memory>

#include "launcher/frmMain.h"
#include "session/frontend.h"
#include "ui/form.h"
#include "ui/qt_app.h"

namespace lp::ui {

class QtFrontend : public Frontend {
 public:
  // findForm gives the dialog of a form name. In a headless session the
  // driver works the form, so a modal form doesn't wait.
  QtFrontend(QtApp& app, Session& session, FormMaker (*findForm)(std::u16string_view))
      : app_(app), session_(session), findForm_(findForm) {}
  void ShowSplash() override;
  void SetSplashProgress(const std::u16string& text) override;
  void UnloadSplash() override;
  void ShowForm(std::u16string_view form, bool modal) override;
  void PumpEvents() override;

  // The dialog SubMain left open, if any.
  Form* OpenForm() const { return form_.get(); }

 private:
  QtApp& app_;
  Session& session_;
  FormMaker (*findForm_)(std::u16string_view);
  std::unique_ptr<frmMain> splash_;
  std::unique_ptr<Form> form_;
};

}  // namespace lp::ui
