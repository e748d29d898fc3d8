#pragma once
// The parts of a new document: A4 portrait, 宋体 / Times New Roman at 五号
// (10.5 pt), the margins and line grid of a Chinese Word's blank document.

#include "word/docx/package.h"

namespace word::docx {

Package NewDocumentPackage();

}  // namespace word::docx
