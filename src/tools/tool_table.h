#pragma once
// Every tool of the program bound to its command word or form name: the one
// place a new tool is added (see ARCHITECTURE.md, "Adding a tool").

#include <span>
#include <string_view>

#include "launcher/command_table.h"
#include "ui/form.h"

namespace lp::tools {

struct FormBinding {
  std::u16string_view name;
  ui::FormMaker make;
};

// The routines of the command table's routine rows, by word.
std::span<const RoutineBinding> Routines();

// The dialogs of the command table and the ones tools open, by form name.
std::span<const FormBinding> Forms();

// The form named name, or null.
ui::FormMaker FindForm(std::u16string_view name);

}  // namespace lp::tools
