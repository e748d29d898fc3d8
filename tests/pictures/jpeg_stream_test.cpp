// Pictures read from PPM and PGM files a strip at a time: the same file as
// the whole bitmap gives, damage and oversize refused with nothing written.

#include <gtest/gtest.h>

#include <fstream>

#include "jpeg_test_support.h"
#include "pictures/picture_rows.h"

namespace lp::test {
namespace {

namespace fs = std::filesystem;

RgbImage Grey(const RgbImage& colour) {
  RgbImage grey{colour.width, colour.height, 1, {}};
  for (std::size_t i = 0; i < colour.samples.size(); i += 3)
    grey.samples.push_back(colour.samples[i + 1]);
  return grey;
}

RgbImage AsColour(const RgbImage& grey) {
  RgbImage colour{grey.width, grey.height, 3, {}};
  for (std::uint8_t v : grey.samples) colour.samples.insert(colour.samples.end(), {v, v, v});
  return colour;
}

JpegResult StreamFile(const fs::path& in, const fs::path& out, std::uint32_t options) {
  const std::unique_ptr<RowSource> rows = OpenPictureRows(in.string());
  return rows ? EncodeRows(*rows, out.string(), options) : JpegResult::kUnreadable;
}

TEST(JpegStream, PpmAndPgmStreamToTheBitmapsFile) {
  const fs::path dir = FreshDirectory("stream");
  for (const auto& [w, h] : {std::pair{1, 1}, {19, 11}, {17, 33}, {4097, 3}, {64, 48}}) {
    for (std::uint32_t options : {0u, 256u, 512u, 768u, 1024u, 50u | 768u}) {
      const RgbImage colour = MakeTestImage(w, h, w + options);
      for (const RgbImage& image : {colour, Grey(colour)}) {
        SCOPED_TRACE(std::to_string(w) + "x" + std::to_string(h) + " options " +
                     std::to_string(options) + " channels " + std::to_string(image.channels));
        ASSERT_TRUE(WritePnm(image, dir / "in.pnm"));
        const RgbImage pixels = image.channels == 3 ? image : AsColour(image);
        ASSERT_TRUE(SavePictureAsJPEG(ToBitmap(pixels), (dir / "whole.jpg").string(), options));
        ASSERT_EQ(StreamFile(dir / "in.pnm", dir / "strips.jpg", options), JpegResult::kWritten);
        EXPECT_EQ(ReadBytes(dir / "strips.jpg"), ReadBytes(dir / "whole.jpg"));
      }
    }
  }
}

void WriteText(const fs::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

TEST(JpegStream, SamplesAboveOneByteAndCommentsAreRead) {
  const fs::path dir = FreshDirectory("wide");
  // Two pixels of 16-bit samples (largest 1000) and the same scaled to bytes.
  WriteText(dir / "deep.ppm",
            std::string("P6\n# made by hand\n2 1\n1000\n") +
                std::string("\x03\xE8\x00\x00\x01\xF4\x00\x00\x03\xE8\x00\x00", 12));
  WriteText(dir / "flat.ppm",
            std::string("P6 2 1 255\n") + std::string("\xFF\x00\x80\x00\xFF\x00", 6));
  ASSERT_EQ(StreamFile(dir / "deep.ppm", dir / "deep.jpg", 0), JpegResult::kWritten);
  ASSERT_EQ(StreamFile(dir / "flat.ppm", dir / "flat.jpg", 0), JpegResult::kWritten);
  EXPECT_EQ(ReadBytes(dir / "deep.jpg"), ReadBytes(dir / "flat.jpg"));
}

TEST(JpegStream, DamagedFilesWriteNothing) {
  const fs::path dir = FreshDirectory("damaged");
  const std::string body(3 * 16 * 16, '\x40');
  struct Row {
    const char* name;
    std::string bytes;
  };
  const Row rows[] = {{"no size", "P6\n255\n"},
                      {"no largest value", "P6 16 16\n"},
                      {"zero wide", "P6 0 16 255\n" + body},
                      {"largest value 0", "P6 16 16 0\n" + body},
                      {"largest value 65536", "P6 16 16 65536\n" + body},
                      {"size past all reason", "P6 99999999999 1 255\n" + body},
                      {"plain text samples", "P3 1 1 255 0 0 0\n"}};
  for (const Row& row : rows) {
    WriteText(dir / "in.ppm", row.bytes);
    EXPECT_EQ(OpenPictureRows((dir / "in.ppm").string()), nullptr) << row.name;
  }
  WriteText(dir / "short.ppm", "P6 16 16 255\n" + body.substr(0, body.size() - 1));
  EXPECT_EQ(StreamFile(dir / "short.ppm", dir / "out.jpg", 0), JpegResult::kUnreadable);
  EXPECT_FALSE(fs::exists(dir / "out.jpg"));
  EXPECT_FALSE(fs::exists(dir / "out.jpg.part"));
}

TEST(JpegStream, SidesUpTo65500AreWrittenAndLargerOnesRefused) {
  const fs::path dir = FreshDirectory("sides");
  struct Row {
    std::int64_t width, height;
    JpegResult result;
  };
  const Row rows[] = {{65500, 1, JpegResult::kWritten},     {1, 65500, JpegResult::kWritten},
                      {65501, 1, JpegResult::kTooLarge},    {1, 65501, JpegResult::kTooLarge},
                      {65535, 1, JpegResult::kTooLarge},    {65536, 1, JpegResult::kTooLarge},
                      {65536, 65536, JpegResult::kTooLarge}};
  for (const Row& row : rows) {
    const std::string size = std::to_string(row.width) + "x" + std::to_string(row.height);
    SCOPED_TRACE(size);
    std::string pixels(row.width * row.height <= 65536 ? 3 * row.width * row.height : 0, '\x7F');
    WriteText(dir / "in.ppm", "P6 " + std::to_string(row.width) + " " + std::to_string(row.height) +
                                  " 255\n" + pixels);
    fs::remove(dir / "out.jpg");
    EXPECT_EQ(StreamFile(dir / "in.ppm", dir / "out.jpg", 0), row.result);
    EXPECT_EQ(fs::exists(dir / "out.jpg"), row.result == JpegResult::kWritten);
    if (row.result == JpegResult::kWritten && HaveTool("djpeg")) {
      const ToolRun run = RunTool("djpeg -outfile '" + (dir / "back.ppm").string() + "' '" +
                                  (dir / "out.jpg").string() + "'");
      EXPECT_EQ(run.status, 0) << run.errors;
      const std::optional<RgbImage> back = ReadPnm(dir / "back.ppm");
      ASSERT_TRUE(back);
      EXPECT_EQ(back->width, row.width);
      EXPECT_EQ(back->height, row.height);
    }
  }
  EXPECT_EQ(PictureTooLargeText(65501, 1),
            u"图片太大：65501×1 像素，JPEG 图片每边最多 65500 像素。");
  const Picture wide = ToBitmap(MakeTestImage(65501, 1, 1));
  EXPECT_FALSE(SavePictureAsJPEG(wide, (dir / "bitmap.jpg").string(), 0));
}

}  // namespace
}  // namespace lp::test
