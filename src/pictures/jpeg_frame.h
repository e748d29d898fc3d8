#pragma once
// What the option word and the bitmap header decide about the file.

#include <array>
#include <cstdint>

#include "pictures/jpeg_writer.h"

namespace lp {

struct JpegFrame {
  int width = 0;
  int height = 0;
  int components = 3;                    // 1 for grey
  int lumaHorizontal = 1;                // sampling factors of component 1; the others
  int lumaVertical = 1;                  // are sampled 1 by 1
  int quality = 0;                       // the quality reduction value Q, 0 to 100
  PixelOrder pixels = PixelOrder::kBgr;  // of the rows the encoder is given
  std::array<std::array<std::uint8_t, 64>, 2> quantisation{};  // scaled, zig-zag order

  int Tables() const { return components == 1 ? 1 : 2; }
};

// Reads the option word; the header must already be valid.
JpegFrame MakeJpegFrame(const BitmapHeader& header, std::uint32_t options);

class JpegOutput;

// SOI, APP0, SOF0, DQT, DHT and SOS, in this order.
void WriteHeaders(JpegOutput& out, const JpegFrame& frame);

}  // namespace lp
