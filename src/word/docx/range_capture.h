#pragma once
// A stretch of a story copied out as run-level pieces and paragraph marks,
// formats and all: what AutoText stores and what a fragment exports.

#include <memory>
#include <vector>

#include <pugixml.hpp>

#include "word/docx/docx_document.h"

namespace word::docx {

// One piece of a stored range: a run holding part of it, or a paragraph mark.
struct Piece {
  std::shared_ptr<pugi::xml_document> run;  // null for a paragraph mark
  long positions = 1;
};

// The place of a range handed back through the API; error 5852 for one
// that is not the engine's.
const Place& PlaceOf(word::Range& range);

std::vector<Piece> Capture(const Place& place);

}  // namespace word::docx
