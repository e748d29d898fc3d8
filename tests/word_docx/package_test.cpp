// The package as an independent zip reader sees it: every entry's checksum
// holds, a save rewrites only the part that changed, and the entries keep
// their order.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <random>
#include <sstream>
#include <vector>

#include "docx_test_util.h"
#include "word/docx/package.h"

namespace word::docx {
namespace {

namespace fs = std::filesystem;

std::string Output(const std::string& command) {
  std::string out;
  if (FILE* pipe = ::popen(command.c_str(), "r")) {
    char buffer[4096];
    for (size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) out.append(buffer, n);
    ::pclose(pipe);
  }
  return out;
}

// One line per entry from `unzip -v`: sizes, method, date, CRC and name.
std::vector<std::string> Listing(const fs::path& zip) {
  std::istringstream in(Output("unzip -v '" + zip.string() + "'"));
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);)
    if (line.find("Defl:") != std::string::npos || line.find("Stored") != std::string::npos)
      lines.push_back(line);
  return lines;
}

std::string Noise(size_t size) {
  std::mt19937 random(7);
  std::string bytes(size, '\0');
  for (char& c : bytes) c = static_cast<char>(random());
  return bytes;
}

TEST(Package, AnIndependentReaderAcceptsWhatASaveWritesAndSeesOnlyTheChangedEntryChange) {
  if (std::system("unzip -v >/dev/null 2>&1") != 0) GTEST_SKIP() << "unzip missing";
  testing::TempDir dir;
  const std::vector<std::pair<std::string, std::string>> parts = {
      {"[Content_Types].xml", "<Types/>"},
      {"word/document.xml", std::string(20000, 'a')},
      {"word/图片说明.xml", "<中文/>"},
      {"word/empty.xml", ""},
      {"word/media/noise.bin", Noise(70000)}};
  Package first = Package::Empty();
  for (const auto& [name, bytes] : parts) first.Write(name, bytes);
  first.SaveTo(dir / "first.docx");
  ASSERT_EQ(std::system(("unzip -tqq '" + (dir / "first.docx").string() + "'").c_str()), 0);

  Package second = Package::FromBytes(testing::ReadFile(dir / "first.docx"));
  for (const auto& [name, bytes] : parts) EXPECT_EQ(second.Read(name), bytes) << name;
  second.Write("word/empty.xml", "<now/>");
  second.SaveTo(dir / "second.docx");
  ASSERT_EQ(std::system(("unzip -tqq '" + (dir / "second.docx").string() + "'").c_str()), 0);

  const auto before = Listing(dir / "first.docx"), after = Listing(dir / "second.docx");
  ASSERT_EQ(before.size(), parts.size());
  ASSERT_EQ(after.size(), parts.size());
  for (size_t i = 0; i < parts.size(); ++i) {
    const bool changed = before[i].find("empty.xml") != std::string::npos;
    EXPECT_EQ(before[i] == after[i], !changed) << before[i] << "\n" << after[i];
  }
}

}  // namespace
}  // namespace word::docx
