#include <algorithm>
#include <cstdlib>

#include "pictures/jpeg_frame.h"
#include "pictures/jpeg_output.h"
#include "pictures/jpeg_tables.h"

namespace lp {

JpegFrame MakeJpegFrame(const BitmapHeader& header, std::uint32_t options) {
  JpegFrame frame;
  frame.width = header.width;
  frame.height = std::abs(header.height);
  frame.quality = std::min<int>(options & kJpegQualityMask, 100);
  if (options & kJpegGrey) {
    frame.components = 1;
  } else {
    frame.lumaHorizontal = (options & kJpegLumaTwiceHorizontally) ? 2 : 1;
    frame.lumaVertical = (options & kJpegLumaTwiceVertically) ? 2 : 1;
  }
  for (int table = 0; table < frame.Tables(); ++table) {
    frame.quantisation[table] = ScaledQuantisationTable(table, frame.quality);
  }
  return frame;
}

namespace {

void WriteApp0(JpegOutput& out) {
  static const std::uint8_t kJfif[] = {'J', 'F', 'I', 'F', 0};
  out.PutWord(0xFFE0);
  out.PutWord(16);
  out.PutBytes(kJfif, sizeof kJfif);
  out.PutWord(0x0101);  // version 1.1
  out.PutByte(0);       // no density units: the densities give the aspect only
  out.PutWord(1);
  out.PutWord(1);
  out.PutByte(0);  // no thumbnail
  out.PutByte(0);
}

void WriteFrameHeader(JpegOutput& out, const JpegFrame& frame) {
  out.PutWord(0xFFC0);
  out.PutWord(3 * frame.components + 8);
  out.PutByte(8);
  out.PutWord(frame.height);
  out.PutWord(frame.width);
  out.PutByte(static_cast<std::uint8_t>(frame.components));
  for (int c = 0; c < frame.components; ++c) {
    out.PutByte(static_cast<std::uint8_t>(c + 1));
    out.PutByte(c == 0 ? static_cast<std::uint8_t>(frame.lumaHorizontal * 16 + frame.lumaVertical)
                       : 0x11);
    out.PutByte(c == 0 ? 0 : 1);
  }
}

void WriteQuantisationTables(JpegOutput& out, const JpegFrame& frame) {
  out.PutWord(0xFFDB);
  out.PutWord(frame.Tables() * 65 + 2);
  for (int table = 0; table < frame.Tables(); ++table) {
    out.PutByte(static_cast<std::uint8_t>(table));
    out.PutBytes(frame.quantisation[table].data(), 64);
  }
}

void WriteHuffmanTables(JpegOutput& out) {
  const std::vector<std::uint8_t>& payload = GetJpegTables().huffmanPayload;
  out.PutWord(0xFFC4);
  out.PutWord(static_cast<unsigned>(payload.size() + 2));
  out.PutBytes(payload.data(), payload.size());
}

void WriteScanHeader(JpegOutput& out, const JpegFrame& frame) {
  out.PutWord(0xFFDA);
  out.PutWord(frame.components * 2 + 6);
  out.PutByte(static_cast<std::uint8_t>(frame.components));
  for (int c = 0; c < frame.components; ++c) {
    out.PutByte(static_cast<std::uint8_t>(c + 1));
    out.PutByte(c == 0 ? 0x00 : 0x11);
  }
  out.PutByte(0);  // spectral selection 0 to 63, no successive approximation
  out.PutByte(0x3F);
  out.PutByte(0);
}

}  // namespace

void WriteHeaders(JpegOutput& out, const JpegFrame& frame) {
  out.PutWord(0xFFD8);
  WriteApp0(out);
  WriteFrameHeader(out, frame);
  WriteQuantisationTables(out, frame);
  WriteHuffmanTables(out);
  WriteScanHeader(out, frame);
}

}  // namespace lp
