// Files of the writer read by a real decoder, and held against libjpeg-turbo's
// encoder given the same tables, sampling and floating-point transform.

#include <gtest/gtest.h>

#include <fstream>

#include "jpeg_test_support.h"
#include "pictures/jpeg_encoder.h"
#include "pictures/jpeg_tables.h"

namespace lp::test {
namespace {

namespace fs = std::filesystem;

struct Case {
  int width, height;
  std::uint32_t options;
};

std::string Name(const Case& c) {
  return std::to_string(c.width) + "x" + std::to_string(c.height) + " options " +
         std::to_string(c.options);
}

// The tables our file holds, in natural order, as cjpeg -qtables reads them.
void WriteQuantisationTables(int quality, const fs::path& path) {
  std::ofstream file(path);
  for (int table = 0; table < 2; ++table) {
    const auto zigZagOrder = ScaledQuantisationTable(table, quality);
    int natural[64];
    for (int i = 0; i < 64; ++i) natural[kZigZag[i]] = zigZagOrder[i];
    for (int v : natural) file << v << ' ';
    file << '\n';
  }
}

std::string TheirCommand(const Case& c, const fs::path& dir) {
  WriteQuantisationTables(std::min<int>(c.options & 0xFF, 100), dir / "tables.txt");
  std::string command =
      "cjpeg -baseline -dct float -quality 50 -qtables '" + (dir / "tables.txt").string() + "'";
  if (c.options & kJpegGrey) {
    command += " -grayscale";
  } else {
    command += " -sample " + std::to_string(c.options & 256 ? 2 : 1) + "x" +
               std::to_string(c.options & 512 ? 2 : 1) + ",1x1,1x1";
  }
  return command + " -outfile '" + (dir / "theirs.jpg").string() + "' '" +
         (dir / "source.ppm").string() + "'";
}

// How far below libjpeg-turbo's PSNR ours may fall. Our quantiser divides the
// rounded coefficient truncating toward zero, where libjpeg rounds the
// quotient: smaller files, and 0.5 to 2.2 dB less on these pictures. With the
// all-one tables of Q 100 the division does nothing, and what remains is
// libjpeg's 8-bit samples meeting the decoder's rounding (up to 0.3 dB).
// A wrong table, colour factor or block order costs far more than either.
double AllowedLoss(std::uint32_t options) {
  return (options & 0xFF) >= 100 ? 0.4 : 2.5;
}

std::optional<RgbImage> Decode(const fs::path& jpeg, std::string* errors = nullptr) {
  const fs::path out = jpeg.string() + ".pnm";
  const ToolRun run = RunTool("djpeg -outfile '" + out.string() + "' '" + jpeg.string() + "'");
  if (errors) *errors = run.errors;
  if (run.status != 0) return std::nullopt;
  return ReadPnm(out);
}

TEST(JpegDecoding, DjpegReadsEveryFileCleanlyAndQualityMatchesLibjpeg) {
  if (!HaveTool("djpeg") || !HaveTool("cjpeg")) GTEST_SKIP() << "libjpeg-turbo-progs missing";
  std::vector<Case> cases;
  for (const auto& [w, h] : {std::pair{1, 1}, {7, 9}, {17, 33}, {4097, 3}, {40, 24}}) {
    for (std::uint32_t layout : {0u, 256u, 512u, 768u, 1024u}) {
      for (std::uint32_t q : {0u, 50u, 100u}) cases.push_back({w, h, layout | q});
    }
  }
  for (const Case& c : cases) {
    SCOPED_TRACE(Name(c));
    const fs::path dir = FreshDirectory("decode");
    const RgbImage source = MakeTestImage(c.width, c.height, c.width * 31 + c.height);
    const bool grey = (c.options & kJpegGrey) != 0;
    const std::vector<double> reference = Reference(source, grey);
    ASSERT_TRUE(SavePictureAsJPEG(ToBitmap(source), (dir / "ours.jpg").string(), c.options));
    ASSERT_TRUE(WritePnm(source, dir / "source.ppm"));
    ASSERT_EQ(RunTool(TheirCommand(c, dir)).status, 0);

    std::string warnings;
    const std::optional<RgbImage> ours = Decode(dir / "ours.jpg", &warnings);
    const std::optional<RgbImage> theirs = Decode(dir / "theirs.jpg");
    ASSERT_TRUE(ours && theirs) << warnings;
    EXPECT_EQ(warnings, "");
    ASSERT_EQ(ours->channels, grey ? 1 : 3);
    ASSERT_EQ(ours->width, c.width);
    ASSERT_EQ(ours->height, c.height);
    if (c.width * c.height >= 64) {  // a handful of pixels says nothing of quality
      EXPECT_GE(Psnr(*ours, reference), Psnr(*theirs, reference) - AllowedLoss(c.options));
    }
  }
}

TEST(JpegDecoding, HuffmanTablesAreLibjpegsStandardOnes) {
  if (!HaveTool("cjpeg")) GTEST_SKIP() << "libjpeg-turbo-progs missing";
  const fs::path dir = FreshDirectory("tables");
  ASSERT_TRUE(WritePnm(MakeTestImage(16, 16, 5), dir / "source.ppm"));
  ASSERT_EQ(RunTool("cjpeg -outfile '" + (dir / "t.jpg").string() + "' '" +
                    (dir / "source.ppm").string() + "'")
                .status,
            0);
  const std::optional<JpegParts> parts = ParseJpeg(ReadBytes(dir / "t.jpg"));
  ASSERT_TRUE(parts);
  std::vector<std::uint8_t> theirs;  // one DHT segment per table, in our order
  for (const Segment& s : parts->segments) {
    if (s.marker == 0xC4) theirs.insert(theirs.end(), s.payload.begin(), s.payload.end());
  }
  EXPECT_EQ(theirs, GetJpegTables().huffmanPayload);
}

TEST(JpegDecoding, VectorAndPlainLoopsWriteTheSameFile) {
  const JpegKernels* vector = Avx2Kernels();
  if (vector == nullptr) GTEST_SKIP() << "no AVX2 here";
  const fs::path dir = FreshDirectory("kernels");
  const Picture picture = ToBitmap(MakeTestImage(203, 77, 9));
  for (std::uint32_t options : {0u, 768u, 1024u, 100u, 256u | 37u}) {
    SCOPED_TRACE(options);
    const fs::path a = dir / "plain.jpg", b = dir / "vector.jpg";
    ASSERT_TRUE(
        EncodeBitmapWith(picture.bits.data(), picture.header, a.string(), options, PlainKernels()));
    ASSERT_TRUE(
        EncodeBitmapWith(picture.bits.data(), picture.header, b.string(), options, *vector));
    EXPECT_EQ(ReadBytes(a), ReadBytes(b));
  }
}

}  // namespace
}  // namespace lp::test
