#pragma once
// Saving a Qt picture as JPEG: the bitmap goes to the encoder as the 24-bit
// bottom-up rows a device-independent bitmap holds.

#include <QImage>
#include <cstdint>
#include <string>

namespace lp {

bool SavePictureAsJPEG(const QImage& picture, const std::string& path, std::uint32_t options);

}  // namespace lp
