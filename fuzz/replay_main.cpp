// Runs saved fuzz inputs through LLVMFuzzerTestOneInput without libFuzzer, so
// that a corpus replays as an ordinary test under any compiler. Arguments are
// files or folders of files; a crash or a sanitizer report fails the run.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

void Replay(const fs::path& file) {
  std::printf("%s\n", file.c_str());  // the last name shown is the input that crashed
  std::fflush(stdout);
  std::ifstream in(file, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<fs::path> files;
  for (int i = 1; i < argc; ++i) {
    if (fs::is_directory(argv[i])) {
      for (const auto& entry : fs::recursive_directory_iterator(argv[i])) {
        if (entry.is_regular_file()) files.push_back(entry.path());
      }
    } else if (fs::exists(argv[i])) {
      files.emplace_back(argv[i]);
    } else {
      std::fprintf(stderr, "no such input: %s\n", argv[i]);
      return 1;
    }
  }
  if (files.empty()) {
    std::fputs("no inputs to replay\n", stderr);
    return 1;
  }
  for (const fs::path& file : files) Replay(file);
  std::printf("replayed %zu inputs\n", files.size());
  return 0;
}
