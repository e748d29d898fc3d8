#pragma once
#include "word/types.h"

namespace word {

// Character formatting of a range. The long-valued flags take wdTrue, wdFalse
// or wdToggle and read back wdUndefined when the range is mixed.
class Font {
 public:
  virtual ~Font() = default;

  virtual Text Name() const = 0;
  virtual void SetName(const Text& name) = 0;
  virtual Text NameFarEast() const = 0;
  virtual void SetNameFarEast(const Text& name) = 0;
  virtual float Size() const = 0;
  virtual void SetSize(float points) = 0;
  virtual long Bold() const = 0;
  virtual void SetBold(long value) = 0;
  virtual long Italic() const = 0;
  virtual void SetItalic(long value) = 0;
  virtual long Superscript() const = 0;
  virtual void SetSuperscript(long value) = 0;
  virtual long Subscript() const = 0;
  virtual void SetSubscript(long value) = 0;
  virtual long Scaling() const = 0;  // horizontal scale in percent
  virtual void SetScaling(long percent) = 0;
  virtual long Color() const = 0;
  virtual void SetColor(long rgb) = 0;
};

}  // namespace word
