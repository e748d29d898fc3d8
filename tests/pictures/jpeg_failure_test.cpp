// A save that cannot complete reports false and leaves nothing half-written.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <cstdlib>

#include "jpeg_test_support.h"

namespace lp::test {
namespace {

namespace fs = std::filesystem;

bool NothingBeside(const fs::path& dir, const fs::path& keep) {
  for (const auto& entry : fs::directory_iterator(dir)) {
    if (entry.path() != keep) return false;
  }
  return true;
}

TEST(JpegFailure, RejectsBitmapsItCannotEncode) {
  const fs::path dir = FreshDirectory("reject");
  const Picture good = ToBitmap(MakeTestImage(9, 9, 1));
  struct Row {
    const char* name;
    BitmapHeader header;
  };
  const Row rows[] = {{"32-bit", {9, 9, 32}},
                      {"no width", {0, 9, 24}},
                      {"no height", {9, 0, 24}},
                      {"too wide", {70000, 1, 24}},
                      {"too tall", {9, -70000, 24}}};
  for (const Row& row : rows) {
    Picture bad = good;
    bad.header = row.header;
    EXPECT_FALSE(SavePictureAsJPEG(bad, (dir / "x.jpg").string(), 0)) << row.name;
  }
  Picture shortBits = good;
  shortBits.bits.pop_back();
  EXPECT_FALSE(SavePictureAsJPEG(shortBits, (dir / "x.jpg").string(), 0));
  EXPECT_FALSE(SavePictureAsJPEG(good, (dir / "no such folder" / "x.jpg").string(), 0));
  EXPECT_TRUE(fs::is_empty(dir));
}

// Runs in a child process whose files may not grow past 4 KB, a stand-in for
// a full disk: exits 0 when the save failed cleanly.
[[noreturn]] void SaveOntoFullDisk(const Picture& picture, const fs::path& target) {
  const std::vector<std::uint8_t> earlier = ReadBytes(target);
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{4096, 4096};
  setrlimit(RLIMIT_FSIZE, &limit);
  const bool saved = SavePictureAsJPEG(picture, target.string(), 100);
  const bool clean = NothingBeside(target.parent_path(), target) && ReadBytes(target) == earlier;
  std::exit(!saved && clean ? 0 : 1);
}

TEST(JpegFailure, FailedWriteKeepsTheEarlierFileAndLeavesNoPart) {
  const fs::path dir = FreshDirectory("full");
  const fs::path target = dir / "picture.jpg";
  const Picture big = ToBitmap(MakeTestImage(512, 512, 2));
  ASSERT_TRUE(SavePictureAsJPEG(ToBitmap(MakeTestImage(8, 8, 3)), target.string(), 0));
  EXPECT_EXIT(SaveOntoFullDisk(big, target), ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace lp::test
