#pragma once
// A file the engine refuses to open. The message is the one the teacher
// reads (UTF-8, Chinese); the command line prints it and exits with status 2.

#include <stdexcept>
#include <string>

namespace word::docx {

class DocxFileError : public std::runtime_error {
 public:
  explicit DocxFileError(const std::string& message) : std::runtime_error(message) {}
};

}  // namespace word::docx
