#pragma once
// How a run finds Word: attach to the Word the teacher has open, or start one.
// With a .docx file the open document's application answers both.

#include "word/api.h"

namespace lp {

class WordConnector {
 public:
  virtual ~WordConnector() = default;
  // The running "Word.Application"; throws word::ComError when none runs.
  virtual word::Application& GetObject() = 0;
  // A new "Word.Application"; throws word::ComError when it can't be started.
  virtual word::Application& CreateObject() = 0;
};

}  // namespace lp
