#pragma once
#include "harness.h"

namespace comtest {

// The real connector on a machine without Word: both ways in fail with the
// errors the session reports.
void CheckConnectorWithoutWord(Checks& checks);

}  // namespace comtest
