#pragma once
// Drives a dialog without a screen: sets controls and clicks buttons by their
// object names, in the order given (--set NAME=VALUE, --click NAME).

#include <QWidget>
#include <stdexcept>
#include <vector>

#include "launcher/run_options.h"

namespace lp::ui {

class DriverError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Text boxes take the text, check boxes and option buttons 1 or 0, combo
// boxes an index or an item's text, spin boxes and scroll bars a number, lists the row to select
// (from 0). Raises DriverError for a control the dialog doesn't have or a value it can't take.
void ApplyAction(QWidget& form, const ControlAction& action);

}  // namespace lp::ui
