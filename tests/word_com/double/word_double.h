#pragma once
// A Word for the COM back end to drive in process: the IDispatch tree of
// double/objects.h over one document, with the test's view of it.

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "double/objects.h"

namespace comdouble {

class WordDouble {
 public:
  // Word with one empty document, Document1, based on Normal.dot.
  WordDouble();
  ~WordDouble();
  WordDouble(const WordDouble&) = delete;
  WordDouble& operator=(const WordDouble&) = delete;

  // The application object; the double keeps one reference of its own.
  IDispatch* Application() const { return app_; }

  // The body reads before + selected + after, the selection holding selected.
  void SetScene(const Text& before, const Text& selected, const Text& after);

  // The body as text, a paragraph mark as ¶, a field as {code}, characters
  // not in the default format as [format:text], such as [sup:3] or
  // [i,font=Symbol:p].
  std::string Dump() const;
  const std::vector<std::string>& Calls() const { return state_.calls; }
  const std::deque<bool>& FindAnswers() const { return state_.findAnswers; }
  const std::map<std::string, double>& Answers() const { return state_.answers; }
  // Objects handed out and not yet released, besides the application.
  long ObjectsHeld() const { return static_cast<long>(state_.counters.live.size()) - 1; }
  ULONG ApplicationReferences() const { return app_->References(); }

 private:
  State state_;
  ApplicationObj* app_;
};

}  // namespace comdouble
