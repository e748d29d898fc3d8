#pragma once
// The figures an empty gallery starts with: drawn by the program's own tools
// into gallery.docx beside the executable (make_gallery_seed.sh), each in its
// own paragraph after its caption, and taken in one entry per figure.

#include "session/session.h"

namespace lp::gallery {

// Record slot 2 holds the gallery's update state: "new" asks for the seed
// figures to be taken in, "UpdateOk" says they were. A fresh store (the slot
// empty) with an empty gallery takes them in too.
bool GalleryWantsSeeds(const std::string& dbPath);

// Adds every figure of the seed document under its caption and marks the
// update taken in; how many were added (0 when the document is missing).
int SeedGallery(Session& session);

}  // namespace lp::gallery
