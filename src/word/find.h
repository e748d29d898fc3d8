#pragma once
#include "word/font.h"

namespace word {

class Replacement {
 public:
  virtual ~Replacement() = default;
  virtual void ClearFormatting() = 0;
  virtual void SetText(const Text& text) = 0;
  virtual word::Font& Font() = 0;  // formatting given to replaced text
};

// Find over a range or the selection. Wildcards follow Word's subset:
// ^$ any letter, ^# any digit, and {n,} repetition with MatchWildcards.
class Find {
 public:
  virtual ~Find() = default;
  virtual void ClearFormatting() = 0;
  virtual void SetText(const Text& text) = 0;
  virtual void SetForward(bool forward) = 0;
  virtual void SetWrap(WdFindWrap wrap) = 0;
  virtual void SetMatchWildcards(bool on) = 0;
  virtual void SetMatchByte(bool on) = 0;
  virtual word::Replacement& Replacement() = 0;
  // Without a replacement a hit selects (or narrows the range to) the match.
  virtual bool Execute(WdReplace replace = wdReplaceNone) = 0;
  virtual bool Found() const = 0;
};

}  // namespace word
