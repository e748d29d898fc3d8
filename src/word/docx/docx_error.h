#pragma once
// A file the engine refuses to open or cannot save. The message is the one
// the teacher reads (UTF-8, Chinese); the command line prints it and exits
// with status 2. As a Word error it carries the runtime's number for a file
// that cannot be reached, so that an error box shows the message itself.

#include <string>

#include "word/types.h"

namespace word::docx {

class DocxFileError : public ComError {
 public:
  explicit DocxFileError(const std::string& message) : ComError(75, message) {}
};

}  // namespace word::docx
