#pragma once
// The entropy-coded scan: the picture cut into minimum coded units, each
// converted, transformed, quantised and Huffman coded.

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "pictures/jpeg_block_coder.h"
#include "pictures/jpeg_frame.h"
#include "pictures/jpeg_kernels.h"

namespace lp {

class ScanWriter {
 public:
  ScanWriter(JpegOutput& out, const JpegFrame& frame, const JpegKernels& kernels);

  // `topRow` points at the picture's top row of blue, green, red pixels and
  // `rowStep` leads from one row to the next one down (negative for the
  // bottom-up rows of a bitmap).
  void Write(const std::uint8_t* topRow, std::ptrdiff_t rowStep);

  // Rows of one band of units, the most a caller streaming the picture needs
  // to hold at a time.
  int BandRows() const { return mcuHeight_; }
  // Codes the next band from its `rows` rows (BandRows, fewer in the last
  // band), the first at `firstRow`, each `rowStep` bytes after the one above.
  void WriteBand(const std::uint8_t* firstRow, std::ptrdiff_t rowStep, int rows);

 private:
  void ConvertTile(const std::uint8_t* firstRow, std::ptrdiff_t rowStep, int rows, int left,
                   int samples);
  void DownsampleChroma(int samples);
  void WriteTile(int units);
  void WriteBlock(const float* samples, int component);

  JpegOutput& out_;
  const JpegFrame& frame_;
  const JpegKernels& kernels_;
  BlockCoder coder_;
  int mcuWidth_, mcuHeight_;  // in luminance samples
  int mcusAcross_;
  // A tile is a few units side by side, small enough to stay in the
  // processor's nearest cache from conversion to coding: Y, Cb and Cr planes
  // of mcuHeight_ rows of tileWidth_ samples each. The chroma planes are
  // downsampled in place into their first rows.
  int tileWidth_;
  std::array<std::vector<float>, 3> planes_;
  std::array<std::array<float, 64>, 2> divisors_;  // column-major, as the transform writes
};

}  // namespace lp
