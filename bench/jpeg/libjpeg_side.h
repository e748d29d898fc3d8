#pragma once
// libjpeg-turbo as the yardstick: the same tables, 4:4:4, the float DCT.

#include <cstdint>
#include <string>
#include <vector>

#include "pictures/jpeg_writer.h"

namespace lp::bench {

// Encodes the bottom-up bitmap into `path` with the base tables scaled for Q 0.
bool LibjpegEncode(const Picture& picture, const std::string& path);

// Decodes a colour JPEG file into bottom-up blue, green, red rows of the
// bitmap's stride; empty on failure.
std::vector<std::uint8_t> LibjpegDecode(const std::string& path, std::size_t stride);

}  // namespace lp::bench
