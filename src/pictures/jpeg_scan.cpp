#include "pictures/jpeg_scan.h"

#include <algorithm>

#include "pictures/jpeg_tables.h"

namespace lp {

namespace {

// Worst case of one block in the scan: 64 codes of at most 26 bits, each
// byte possibly followed by a stuffed zero.
constexpr std::size_t kMaxBlockBytes = 1024;

constexpr int kTileUnits = 8;

}  // namespace

ScanWriter::ScanWriter(JpegOutput& out, const JpegFrame& frame, const JpegKernels& kernels)
    : out_(out),
      frame_(frame),
      kernels_(kernels),
      coder_(out),
      mcuWidth_(8 * frame.lumaHorizontal),
      mcuHeight_(8 * frame.lumaVertical),
      mcusAcross_((frame.width + mcuWidth_ - 1) / mcuWidth_),
      tileWidth_(std::min(mcusAcross_, kTileUnits) * mcuWidth_) {
  for (int c = 0; c < frame.components; ++c) {
    planes_[c].resize(static_cast<std::size_t>(tileWidth_) * mcuHeight_);
  }
  for (int t = 0; t < frame.Tables(); ++t) {
    for (int i = 0; i < 64; ++i)
      divisors_[t][ColumnMajorIndex(kZigZag[i])] = frame.quantisation[t][i];
  }
}

void ScanWriter::Write(const std::uint8_t* topRow, std::ptrdiff_t rowStep) {
  for (int top = 0; top < frame_.height; top += mcuHeight_) {
    WriteBand(topRow + top * rowStep, rowStep, std::min(mcuHeight_, frame_.height - top));
  }
}

void ScanWriter::WriteBand(const std::uint8_t* firstRow, std::ptrdiff_t rowStep, int rows) {
  for (int first = 0; first < mcusAcross_; first += kTileUnits) {
    const int units = std::min(kTileUnits, mcusAcross_ - first);
    ConvertTile(firstRow, rowStep, rows, first * mcuWidth_, units * mcuWidth_);
    if (mcuWidth_ > 8 || mcuHeight_ > 8) DownsampleChroma(units * mcuWidth_);
    WriteTile(units);
  }
}

// Partial units at the right and lower edges are filled by repeating the
// last column and the last row of the picture: flat continuations cost the
// fewest bits and leave no ringing at the visible edge.
void ScanWriter::ConvertTile(const std::uint8_t* firstRow, std::ptrdiff_t rowStep, int rows,
                             int left, int samples) {
  const int inside = std::min(samples, frame_.width - left);
  for (int r = 0; r < mcuHeight_; ++r) {
    const std::uint8_t* pixels = firstRow + std::min(r, rows - 1) * rowStep + 3 * left;
    const std::size_t at = static_cast<std::size_t>(r) * tileWidth_;
    if (frame_.components == 1) {
      kernels_.convertGrey(pixels, frame_.pixels, inside, frame_.width - left, &planes_[0][at]);
    } else {
      kernels_.convertColour(pixels, frame_.pixels, inside, frame_.width - left, &planes_[0][at],
                             &planes_[1][at], &planes_[2][at]);
    }
    for (int c = 0; c < frame_.components; ++c) {
      float* row = &planes_[c][at];
      std::fill(row + inside, row + samples, row[inside - 1]);
    }
  }
}

// Each chroma sample becomes the mean of the 2 or 4 samples it covers (the
// four corners of its cell, a sample counted twice when the cell is one
// wide or high), written into the same plane from its start: every write
// lands on a place already read.
void ScanWriter::DownsampleChroma(int samples) {
  const int h = frame_.lumaHorizontal, v = frame_.lumaVertical;
  for (int c = 1; c < 3; ++c) {
    float* plane = planes_[c].data();
    for (int r = 0; r < 8; ++r) {
      const float* top = plane + static_cast<std::size_t>(r * v) * tileWidth_;
      const float* bottom = top + (v - 1) * tileWidth_;
      float* out = plane + static_cast<std::size_t>(r) * tileWidth_;
      for (int x = 0; x < samples / h; ++x) {
        const int left = x * h, right = left + h - 1;
        out[x] = ((top[left] + top[right]) + (bottom[left] + bottom[right])) * 0.25f;
      }
    }
  }
}

void ScanWriter::WriteTile(int units) {
  for (int mcu = 0; mcu < units; ++mcu) {
    for (int v = 0; v < frame_.lumaVertical; ++v) {
      for (int h = 0; h < frame_.lumaHorizontal; ++h) {
        WriteBlock(
            &planes_[0][static_cast<std::size_t>(8 * v) * tileWidth_ + mcu * mcuWidth_ + 8 * h], 0);
      }
    }
    for (int c = 1; c < frame_.components; ++c) WriteBlock(&planes_[c][8 * mcu], c);
  }
}

void ScanWriter::WriteBlock(const float* samples, int component) {
  std::int16_t columnMajor[64];
  kernels_.transformBlock(samples, tileWidth_, divisors_[component == 0 ? 0 : 1].data(),
                          columnMajor);
  out_.Reserve(kMaxBlockBytes);
  coder_.WriteBlock(columnMajor, component);
}

}  // namespace lp
