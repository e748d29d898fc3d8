#include "ui/forms.h"

#include "formula/frmGS.h"
#include "solvers/frmFactoring.h"

namespace lp::ui {

std::unique_ptr<Form> MakeForm(std::u16string_view name, Session& session) {
  if (name == u"frmFactoring") return std::make_unique<frmFactoring>(session);
  if (name == u"frmGS") return std::make_unique<frmGS>(session);
  return nullptr;
}

}  // namespace lp::ui
