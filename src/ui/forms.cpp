#include "ui/forms.h"

#include "solvers/frmFactoring.h"

namespace lp::ui {

std::unique_ptr<Form> MakeForm(std::u16string_view name, Session& session) {
  if (name == u"frmFactoring") return std::make_unique<frmFactoring>(session);
  return nullptr;
}

}  // namespace lp::ui
