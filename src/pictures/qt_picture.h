#pragma once
// Saving a Qt picture as JPEG, and opening any picture file Qt reads as rows
// for the encoder.

#include <QImage>
#include <cstdint>
#include <memory>
#include <string>

#include "pictures/jpeg_writer.h"

namespace lp {

bool SavePictureAsJPEG(const QImage& picture, const std::string& path, std::uint32_t options);

// A PPM, PGM or PNG file streams a strip at a time; any other file Qt reads
// is loaded whole. Null when the file cannot be read as a picture.
std::unique_ptr<RowSource> OpenPicture(const std::string& path);

}  // namespace lp
