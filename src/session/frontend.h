#pragma once
// What the launcher and the tools need of the user interface: the splash and
// the forms of the command table, by name. The executable gives the Qt one.

#include <string>
#include <string_view>

namespace lp {

class Frontend {
 public:
  virtual ~Frontend() = default;
  virtual void ShowSplash() = 0;
  virtual void SetSplashProgress(const std::u16string& text) = 0;
  virtual void UnloadSplash() = 0;
  // Shows the form; a modal one returns when it is closed.
  virtual void ShowForm(std::u16string_view form, bool modal) = 0;
  // Serves waiting events during a long computation.
  virtual void PumpEvents() = 0;
};

}  // namespace lp
