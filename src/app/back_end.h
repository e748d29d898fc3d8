#pragma once
// The Word a run works with: a .docx file with --doc, otherwise the Word of
// the system (none here, so Document_Init reports it and the run ends).

#include <memory>
#include <string>

#include "word/connector.h"

namespace lp {

class BackEnd {
 public:
  virtual ~BackEnd() = default;
  virtual WordConnector& Connector() = 0;
  // Keeps the teacher's work before the process ends: a .docx file is
  // written (atomically) only when the run changed it.
  virtual void SaveIfChanged() = 0;
};

// Raises the back end's typed error for a file it refuses to open. A .docx
// file's Word keeps its toolbar captions, options and key bindings in the
// file statePath (UTF-8).
std::unique_ptr<BackEnd> MakeBackEnd(const std::string& docPath, const std::string& statePath);

}  // namespace lp
