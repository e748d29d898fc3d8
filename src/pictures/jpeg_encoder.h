#pragma once
// The encoder with a chosen set of inner loops, for checks that compare the
// plain and the vector loops and for the benchmark.

#include "pictures/jpeg_kernels.h"
#include "pictures/jpeg_writer.h"

namespace lp {

bool EncodeBitmapWith(const std::uint8_t* bits, const BitmapHeader& header, const std::string& path,
                      std::uint32_t options, const JpegKernels& kernels);
JpegResult EncodeRowsWith(RowSource& source, const std::string& path, std::uint32_t options,
                          const JpegKernels& kernels);

}  // namespace lp
