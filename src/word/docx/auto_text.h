#pragma once
// AutoText entries of the normal template, kept for the run: a stored range
// comes back with its formatting (its runs are copied as they are).

#include <map>
#include <memory>
#include <vector>

#include "word/api.h"

namespace word::docx {

// held: entries there before the run, each one run of plain text.
std::unique_ptr<word::AutoTextEntries> MakeAutoTextEntries(
    const std::vector<std::pair<Text, Text>>& held = {});

}  // namespace word::docx
