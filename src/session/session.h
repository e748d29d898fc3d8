#pragma once
// The state of one run: the Word application, the teacher's prompt, the
// stored options, and the shape names of the figure being drawn. It sits
// above the Word API and never knows which back end serves it.

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "runtime/prompt.h"
#include "settings/config_globals.h"
#include "word/api.h"

namespace lp {

// Exit statuses of a run besides 0.
constexpr int kExitUsage = 2;     // a bad option, a refused file, a missing control
constexpr int kExitTimedOut = 3;  // a formula did not finish in time
constexpr int kExitNoWord = 4;    // Word could not be reached

struct Session {
  Session(word::Application& app, Prompt& prompt) : WordApp(&app), prompt(prompt) {}
  // Before Document_Init has found Word.
  explicit Session(Prompt& prompt) : WordApp(nullptr), prompt(prompt) {}

  word::Application* WordApp;  // not owned; null after ExitLumenpad
  Prompt& prompt;
  ConfigGlobals config;
  std::u16string programFolder;  // the executable's folder, without a trailing separator
  std::string databasePath;      // the settings file of this run (UTF-8)
  // How ExitLumenpad ends the run: the executable saves the document and
  // leaves the process; tests only take note.
  std::function<void()> EndRun;
  int exitStatus = 0;  // the process's exit status when the run ends

  // No teacher watches: a script, a test, a machine without a display. Boxes
  // are answered from the command line and nobody can cancel a long formula,
  // so the formula engine gives up after formulaTimeLimit and the run ends
  // with kExitTimedOut.
  bool headless = false;
  std::chrono::milliseconds formulaTimeLimit{5000};
  // The document is a file (--doc): the program is installed where it runs,
  // and the file's own attached template is never replaced.
  bool fileMode = false;

  int16_t TemplateAttached = 0;
  long ShapeCounter = 0;
  std::vector<std::u16string> ShapeNames;  // name number k is ShapeNames[k - 1]
  float AnchorX = 0;
  float AnchorY = 0;
  int16_t FigureOriginX = 180;
  int16_t FigureOriginY = 180;
};

}  // namespace lp
