// The file layout the writer promises, read back with a small segment parser.

#include <gtest/gtest.h>

#include <algorithm>

#include "jpeg_test_support.h"
#include "pictures/jpeg_tables.h"
#include "pictures/jpeg_writer.h"

namespace lp::test {
namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;

JpegParts EncodeAndParse(const RgbImage& image, std::uint32_t options) {
  const auto path = FreshDirectory("structure") / "out.jpg";
  EXPECT_TRUE(SavePictureAsJPEG(ToBitmap(image), path.string(), options));
  const std::optional<JpegParts> parts = ParseJpeg(ReadBytes(path));
  EXPECT_TRUE(parts.has_value());
  return parts.value_or(JpegParts{});
}

Bytes First(const Bytes& bytes, std::size_t offset, std::size_t count) {
  return Bytes(bytes.begin() + offset, bytes.begin() + offset + count);
}

TEST(JpegStructure, SegmentsComeInTheirOrderWithTheirLengths) {
  struct Row {
    const char* name;
    std::uint32_t options;
    int components;
    std::uint8_t sampling;
  };
  const Row rows[] = {{"444", 0, 3, 0x11},         {"wide luma", 256, 3, 0x21},
                      {"tall luma", 512, 3, 0x12}, {"both", 768, 3, 0x22},
                      {"grey", 1024, 1, 0x11},     {"grey ignores sampling", 1024 | 768, 1, 0x11}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const JpegParts parts = EncodeAndParse(MakeTestImage(21, 13, 1), row.options);
    std::vector<std::uint8_t> markers;
    for (const Segment& s : parts.segments) markers.push_back(s.marker);
    EXPECT_EQ(markers, (Bytes{0xD8, 0xE0, 0xC0, 0xDB, 0xC4, 0xDA}));
    if (markers.size() != 6) continue;
    const int n = row.components;
    EXPECT_EQ(parts.segments[1].payload, (Bytes{'J', 'F', 'I', 'F', 0, 1, 1, 0, 0, 1, 0, 1, 0, 0}));
    const Bytes& frame = parts.segments[2].payload;
    ASSERT_EQ(frame.size() + 2, std::size_t(3 * n + 8));
    EXPECT_EQ(First(frame, 0, 6), (Bytes{8, 0, 13, 0, 21, std::uint8_t(n)}));
    EXPECT_EQ(First(frame, 6, 3), (Bytes{1, row.sampling, 0}));
    if (n == 3) {
      EXPECT_EQ(First(frame, 9, 6), (Bytes{2, 0x11, 1, 3, 0x11, 1}));
    }
    EXPECT_EQ(parts.segments[3].payload.size() + 2, std::size_t((n == 1 ? 1 : 2) * 65 + 2));
    EXPECT_EQ(parts.segments[4].payload, GetJpegTables().huffmanPayload);  // all four, grey too
    const Bytes scanHeader =
        n == 1 ? Bytes{1, 1, 0x00, 0, 0x3F, 0} : Bytes{3, 1, 0x00, 2, 0x11, 3, 0x11, 0, 0x3F, 0};
    EXPECT_EQ(parts.segments[5].payload, scanHeader);
    EXPECT_EQ(parts.endMarker, 0xD9);
    EXPECT_TRUE(parts.endsAtEndMarker);
  }
}

TEST(JpegStructure, QualityValueScalesTheBaseTables) {
  const RgbImage image = MakeTestImage(8, 8, 2);
  const Bytes base = EncodeAndParse(image, 0).segments[3].payload;
  ASSERT_EQ(base.size(), 130u);
  EXPECT_EQ(First(base, 0, 9), (Bytes{0x00, 0x0A, 0x06, 0x07, 0x08, 0x07, 0x06, 0x0A, 0x08}));
  EXPECT_EQ(First(base, 65, 9), (Bytes{0x01, 0x0F, 0x10, 0x10, 0x16, 0x13, 0x16, 0x2C, 0x18}));
  EXPECT_EQ(base[129], 0x5C);  // 99 in the chrominance table of the standard

  for (const std::uint32_t q : {100u, 255u}) {
    const Bytes ones = EncodeAndParse(image, q).segments[3].payload;
    ASSERT_EQ(ones.size(), 130u);
    for (int i = 0; i < 128; ++i) EXPECT_EQ(ones[1 + i + i / 64], 1) << "entry " << i;
  }
  // ((10 - 1) * 50 + 50) / 100 + 1 = 6, ((15 - 1) * 50 + 50) / 100 + 1 = 8
  const Bytes half = EncodeAndParse(image, 50).segments[3].payload;
  EXPECT_EQ(half[1], 6);
  EXPECT_EQ(half[66], 8);

  const Bytes grey = EncodeAndParse(image, 1024).segments[3].payload;
  EXPECT_EQ(grey, First(base, 0, 65));
}

TEST(JpegStructure, ZigZagWalksTheAntiDiagonals) {
  const std::array<std::uint8_t, 10> start{0, 1, 8, 16, 9, 2, 3, 10, 17, 24};
  EXPECT_TRUE(std::equal(start.begin(), start.end(), kZigZag.begin()));
  EXPECT_EQ(kZigZag[35], 56);  // the first of the lower-left corner
  EXPECT_EQ(kZigZag[62], 62);
  EXPECT_EQ(kZigZag[63], 63);
}

TEST(JpegStructure, HuffmanCodesFollowTheCounts) {
  // Luminance DC: one code of 2 bits, five of 3, then one more bit each.
  const HuffmanCodes& dc = GetJpegTables().dc[0];
  const std::pair<int, int> expected[] = {{0b00, 2},   {0b010, 3},   {0b011, 3},
                                          {0b100, 3},  {0b101, 3},   {0b110, 3},
                                          {0b1110, 4}, {0b11110, 5}, {0b111111110, 9}};
  const int categories[] = {0, 1, 2, 3, 4, 5, 6, 7, 11};
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(dc.code[categories[i]], expected[i].first) << "category " << categories[i];
    EXPECT_EQ(dc.length[categories[i]], expected[i].second) << "category " << categories[i];
  }
  const HuffmanCodes& ac = GetJpegTables().ac[0];
  EXPECT_EQ(ac.code[0x00], 0b1010);  // end of block
  EXPECT_EQ(ac.length[0xF0], 11);    // sixteen zeros
  EXPECT_EQ(ac.code[0xF0], 0b11111111001);
}

TEST(JpegStructure, ScanStuffsEveryFfAndPadsWithZeros) {
  // A mid-grey pixel: DC difference 0 ("00") and end of block ("1010"), then
  // two padding bits, which must be zeros: 0010 1000.
  const RgbImage grey{1, 1, 3, {128, 128, 128}};
  EXPECT_EQ(EncodeAndParse(grey, 1024).scan, Bytes{0x28});
  // Colour adds Cb and Cr, each "00" then "00": 0010 1000 0000 0000.
  EXPECT_EQ(EncodeAndParse(grey, 0).scan, (Bytes{0x28, 0x00}));

  // A noisy picture at Q 100 sends many FF bytes; each must be followed by 00,
  // which the parser sees as the scan running on to FF D9 at the very end.
  const JpegParts parts = EncodeAndParse(MakeTestImage(64, 64, 3), 100);
  int stuffed = 0;
  for (std::size_t i = 0; i + 1 < parts.scan.size(); ++i) {
    if (parts.scan[i] == 0xFF) {
      EXPECT_EQ(parts.scan[i + 1], 0x00);
      ++stuffed;
    }
  }
  EXPECT_GT(stuffed, 0);
  EXPECT_EQ(parts.endMarker, 0xD9);
  EXPECT_TRUE(parts.endsAtEndMarker);
}

TEST(JpegStructure, TopDownRowsGiveTheSameFile) {
  const fs::path dir = FreshDirectory("rows");
  const Picture bottomUp = ToBitmap(MakeTestImage(19, 11, 6));
  Picture topDown = bottomUp;
  topDown.header.height = -11;
  const std::size_t stride = BitmapStride(19, 24);
  for (int y = 0; y < 11; ++y) {
    std::copy_n(&bottomUp.bits[stride * (10 - y)], stride, &topDown.bits[stride * y]);
  }
  ASSERT_TRUE(SavePictureAsJPEG(bottomUp, (dir / "a.jpg").string(), 0));
  ASSERT_TRUE(SavePictureAsJPEG(topDown, (dir / "b.jpg").string(), 0));
  EXPECT_EQ(ReadBytes(dir / "a.jpg"), ReadBytes(dir / "b.jpg"));
}

}  // namespace
}  // namespace lp::test
