#pragma once
// Picture files read a strip at a time for the JPEG writer: binary PPM and
// PGM, and PNG. Other files (and interlaced PNG, whose rows arrive in seven
// passes) are left to a reader that loads the picture whole.

#include <memory>
#include <string>

#include "pictures/jpeg_writer.h"

namespace lp {

// By the file's first bytes; null when it is none of these formats or its
// header is damaged. `path` is UTF-8.
std::unique_ptr<RowSource> OpenPictureRows(const std::string& path);

// P5 (grey) and P6 (colour), one or two bytes a sample; samples scaled to
// 0..255 when the largest value is not 255.
std::unique_ptr<RowSource> OpenNetpbmRows(const std::string& path);

// Any non-interlaced PNG: palette, grey and 16-bit samples become 8-bit
// colour, and transparent parts are laid on white, as they show on paper.
std::unique_ptr<RowSource> OpenPngRows(const std::string& path);

}  // namespace lp
