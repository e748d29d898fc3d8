#pragma once
// Figures going into and coming out of the gallery: an entry inserted at the
// caret, the selection kept as a new entry.

#include <optional>
#include <string>

#include "gallery/drawing_list.h"

#include "gallery/gallery_store.h"
#include "session/session.h"

namespace lp::gallery {

// Brings the entry's document in at the caret: its shapes keep their drawing,
// take fresh names of their own kind and stand at the caret, the selection
// on them. False when the entry could not be read (a box told why).
bool InsertEntry(Session& session, long id);

// Why the selection can't go into the gallery ("请先选中要保存的图形或公式！"
// when nothing is selected), else empty. Asked before the name is.
std::u16string SelectionProblem(Session& session);

// Keeps the selected figure (or formula) under `name`; the message for the
// teacher when refused or failed, else empty. Nothing changes when refused.
std::u16string AddSelectionAsEntry(Session& session, const std::u16string& name);

// The entry's figure as a drawing list, for its thumbnail; nothing when its
// document can't be read.
std::optional<DrawingList> EntryDrawing(Session& session, const GalleryEntry& entry);

}  // namespace lp::gallery
