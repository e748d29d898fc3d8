#pragma once
// The inline pictures (wp:inline) of a range, sized through wp:extent.

#include <memory>

#include "word/docx/docx_document.h"

namespace word::docx {

std::unique_ptr<word::InlineShapes> MakeInlineShapes(const Place& place);

}  // namespace word::docx
