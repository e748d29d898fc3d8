#pragma once
// The benchmark's picture: a photograph tiled with mirroring to a large
// square, so that no seams add edges a real photograph of that size would
// not have.

#include <string>

#include "pictures/jpeg_writer.h"

namespace lp::bench {

// A bottom-up bitmap of side x side pixels made from the PNG; exits the
// program when the PNG cannot be read.
Picture MakePhotograph(const std::string& png, int side);

// The same pixels as a binary PPM file.
bool WritePpm(const Picture& picture, const std::string& path);

}  // namespace lp::bench
