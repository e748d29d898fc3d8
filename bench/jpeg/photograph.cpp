#include "photograph.h"

#include <QImage>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>

namespace lp::bench {

Picture MakePhotograph(const std::string& png, int side) {
  const QImage photo = QImage(QString::fromStdString(png)).convertToFormat(QImage::Format_BGR888);
  if (photo.isNull()) {
    std::fprintf(stderr, "cannot read %s\n", png.c_str());
    std::exit(1);
  }
  Picture picture;
  picture.header = {side, side, 24};
  const std::size_t stride = BitmapStride(side, 24);
  picture.bits.resize(stride * side);
  const auto mirror = [](int i, int n) { return (i / n) % 2 ? n - 1 - i % n : i % n; };
  for (int y = 0; y < side; ++y) {
    const std::uint8_t* in = photo.constScanLine(mirror(y, photo.height()));
    std::uint8_t* out = &picture.bits[stride * (side - 1 - y)];
    for (int x = 0; x < side; ++x) std::memcpy(out + 3 * x, in + 3 * mirror(x, photo.width()), 3);
  }
  return picture;
}

bool WritePpm(const Picture& picture, const std::string& path) {
  const int width = picture.header.width, height = picture.header.height;
  const std::size_t stride = BitmapStride(width, 24);
  std::ofstream file(path, std::ios::binary);
  file << "P6\n" << width << ' ' << height << "\n255\n";
  std::string row(3 * static_cast<std::size_t>(width), '\0');
  for (int y = height - 1; y >= 0; --y) {  // the bitmap's last row is the top
    const std::uint8_t* bgr = &picture.bits[stride * y];
    for (int x = 0; x < width; ++x) {
      row[3 * x] = static_cast<char>(bgr[3 * x + 2]);
      row[3 * x + 1] = static_cast<char>(bgr[3 * x + 1]);
      row[3 * x + 2] = static_cast<char>(bgr[3 * x]);
    }
    file.write(row.data(), static_cast<std::streamsize>(row.size()));
  }
  return static_cast<bool>(file);
}

}  // namespace lp::bench
