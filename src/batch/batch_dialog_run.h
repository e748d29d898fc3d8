#pragma once
// What the start button of the batch dialog runs: the checks with their
// messages, the active document alone or the folder walk with backups,
// documents and renames, and the captions of the run.

#include <functional>
#include <string>

#include "batch/batch_choice.h"
#include "batch/batch_run.h"
#include "runtime/prompt.h"

namespace lp::batch {

// How the dialog follows a run.
struct BatchView {
  std::function<void(const std::u16string&)> caption;
  // After each file; false stops the run before the next one.
  std::function<bool(int done, int total, const FileOutcome&)> fileDone;
  std::function<void()> yield;  // serves the dialog's events during the walk
};

struct BatchReport {
  std::u16string caption;  // the closing caption
  std::u16string summary;  // the line after it; empty for the active document
};

// Nothing when a check refused the run (its message has been shown).
std::optional<BatchReport> StartBatch(word::Application& app, Prompt& prompt,
                                      const BatchChoice& choice, const BatchView& view);

}  // namespace lp::batch
