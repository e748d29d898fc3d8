#pragma once
// Whether anybody watches this run.

namespace lp {

// True when no teacher can see a box: the command line drives the dialog
// (scripted), Qt draws offscreen, or there is no display at all. Windows
// always has its desktop.
bool RunIsHeadless(bool scripted);

}  // namespace lp
