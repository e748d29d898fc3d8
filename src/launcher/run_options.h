#pragma once
// The command line of lumenpad:
//   lumenpad WORD [--doc FILE] [--select TEXT | --caret TEXT] [--select-shape NAME]
//            [--set NAME=VALUE]... [--click NAME]...
//            [--grab FILE.png]... [--answer VALUE]... [--config PATH]
//   lumenpad --help
// Everything that is not an option is the command text, joined by blanks.

#include <stdexcept>
#include <string>
#include <vector>

namespace lp {

// One step of the headless driver, applied to the open dialog in order.
struct ControlAction {
  enum Kind { kSet, kClick, kGrab } kind = kSet;
  std::string name;   // objectName; NAME_INDEX for a member of a control array
  std::string value;  // what --set gives, or the picture file of --grab
};

struct RunOptions {
  std::string commandLine;  // UTF-8, not trimmed
  std::string doc;
  std::string select;
  bool haveSelect = false;
  bool caretOnly = false;  // --caret: the found text is removed, the caret stays there
  std::string selectShape;  // the start of a floating shape's name, or several, comma-separated
  bool haveSelectShape = false;
  std::vector<ControlAction> actions;
  std::vector<std::string> answers;
  std::string config;
  bool help = false;  // --help or -h: the usage, and nothing else
  // Any --set, --click or --grab: the dialog runs offscreen and its controls are driven.
  bool Driven() const { return !actions.empty(); }
};

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// args without the program's name. Raises UsageError (a one-line Chinese
// reason) for an unknown option, an option without its value, a --doc that
// names no Word document, and dialog actions for a command without a dialog.
RunOptions ParseRunOptions(const std::vector<std::string>& args);

// What --help prints: the command words, the options and the exit statuses.
std::string UsageText();

}  // namespace lp
