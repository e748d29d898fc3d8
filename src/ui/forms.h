#pragma once
// The dialogs of the command table by their form names.

#include <memory>
#include <string_view>

#include "ui/form.h"

namespace lp::ui {

// The form, or nothing for a name no dialog answers to yet.
std::unique_ptr<Form> MakeForm(std::u16string_view name, Session& session);

}  // namespace lp::ui
