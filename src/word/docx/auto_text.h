#pragma once
// AutoText entries of the normal template, kept for the run: a stored range
// comes back with its formatting (its runs are copied as they are).

#include <map>
#include <memory>
#include <vector>

#include "word/api.h"

namespace word::docx {

std::unique_ptr<word::AutoTextEntries> MakeAutoTextEntries();

}  // namespace word::docx
