// `lumenpad --jpeg` end to end against libjpeg-turbo's cjpeg, process
// against process: a 4096x4096 photograph as a PPM file (and, for lumenpad,
// as a PNG), encoded 4:4:4 with the same tables and the float DCT, cjpeg with
// its SIMD on and off. Prints the medians of 7 runs of each, by wall time and
// by processor time (user + system: on a busy machine the wall clock says
// more about the neighbours), the peak resident memory of each process, and
// the ratios.

#include <unistd.h>

#include <QImage>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "photograph.h"
#include "pictures/jpeg_tables.h"

namespace {

namespace fs = std::filesystem;

constexpr int kSide = 4096;
constexpr int kRuns = 7;

struct Measure {
  double seconds = 0;    // median wall time
  double processor = 0;  // median processor time
  double megabytes = 0;  // largest peak resident set of the runs
};

// One run of the command through measure_run, with `extraEnv` (NAME=VALUE
// words) set for it.
bool RunOnce(const std::vector<std::string>& command, const std::string& extraEnv, Measure& run) {
  std::string line = extraEnv.empty() ? "" : "env " + extraEnv + " ";
  line += "'" LP_MEASURE_RUN "'";
  for (const std::string& arg : command) line += " '" + arg + "'";
  std::FILE* child = popen(line.c_str(), "r");
  if (child == nullptr) return false;
  long kilobytes = 0;
  const bool read =
      std::fscanf(child, "%lf %lf %ld", &run.seconds, &run.processor, &kilobytes) == 3;
  run.megabytes = kilobytes / 1024.0;
  return pclose(child) == 0 && read;
}

Measure Median(const std::vector<std::string>& command, const std::string& extraEnv = "") {
  std::vector<double> wall, processor;
  Measure result;
  for (int i = 0; i < kRuns; ++i) {
    Measure run;
    if (!RunOnce(command, extraEnv, run)) {
      std::fprintf(stderr, "failed: %s\n", command[0].c_str());
      std::exit(1);
    }
    wall.push_back(run.seconds);
    processor.push_back(run.processor);
    result.megabytes = std::max(result.megabytes, run.megabytes);
  }
  std::sort(wall.begin(), wall.end());
  std::sort(processor.begin(), processor.end());
  result.seconds = wall[kRuns / 2];
  result.processor = processor[kRuns / 2];
  return result;
}

bool WritePhotograph(const std::string& png, const std::string& ppm, const std::string& bigPng) {
  const lp::Picture picture = lp::bench::MakePhotograph(png, kSide);
  return lp::bench::WritePpm(picture, ppm) &&
         QImage(QString::fromStdString(ppm)).save(QString::fromStdString(bigPng), "png", 50);
}

// Our tables for Q 0 in natural order, as cjpeg -qtables reads them.
void WriteTables(const std::string& path) {
  std::ofstream file(path);
  for (int table = 0; table < 2; ++table) {
    const auto zigZagOrder = lp::ScaledQuantisationTable(table, 0);
    int natural[64];
    for (int i = 0; i < 64; ++i) natural[lp::kZigZag[i]] = zigZagOrder[i];
    for (int v : natural) file << v << ' ';
    file << '\n';
  }
}

void Print(const char* name, const Measure& m) {
  std::printf("  %-24s %7.3f s wall %7.3f s processor %7.1f MB\n", name, m.seconds, m.processor,
              m.megabytes);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string png = argc > 1 ? argv[1] : std::string(LP_KODAK_DIR) + "/kodim01.png";
  const fs::path dir =
      fs::temp_directory_path() / ("bench_jpeg_process_" + std::to_string(getpid()));
  fs::create_directories(dir);
  const std::string ppm = (dir / "photo.ppm").string(), bigPng = (dir / "photo.png").string();
  if (!WritePhotograph(png, ppm, bigPng)) {
    std::fputs("cannot write the photograph\n", stderr);
    return 1;
  }
  const std::string tables = (dir / "tables.txt").string();
  WriteTables(tables);
  const std::string ours = (dir / "ours.jpg").string(), theirs = (dir / "theirs.jpg").string();
  const std::vector<std::string> cjpeg = {"cjpeg",    "-baseline", "-dct", "float",   "-quality",
                                          "50",       "-qtables",  tables, "-sample", "1x1,1x1,1x1",
                                          "-outfile", theirs,      ppm};

  const std::string dot = (dir / "dot.ppm").string();
  std::ofstream(dot, std::ios::binary) << "P6 1 1 255\n" << std::string(3, '\x80');
  const Measure program = Median({LP_LUMENPAD, "--jpeg", dot, ours});
  const Measure fromPpm = Median({LP_LUMENPAD, "--jpeg", ppm, ours});
  const Measure fromPng = Median({LP_LUMENPAD, "--jpeg", bigPng, ours});
  const Measure simd = Median(cjpeg);
  const Measure noSimd = Median(cjpeg, "JSIMD_FORCENONE=1");

  std::printf(
      "%s tiled to %dx%d, 4:4:4, Q 0, float DCT, process against process, "
      "medians of %d runs\n",
      fs::path(png).filename().c_str(), kSide, kSide, kRuns);
  Print("lumenpad --jpeg PPM", fromPpm);
  Print("lumenpad --jpeg PNG", fromPng);
  Print("lumenpad --jpeg 1x1 PPM", program);
  Print("cjpeg PPM, SIMD", simd);
  Print("cjpeg PPM, no SIMD", noSimd);
  std::printf("  speed of lumenpad to cjpeg from PPM, by wall time: %.2fx SIMD, %.2fx no SIMD\n",
              simd.seconds / fromPpm.seconds, noSimd.seconds / fromPpm.seconds);
  std::printf("  by processor time: %.2fx SIMD, %.2fx no SIMD\n",
              simd.processor / fromPpm.processor, noSimd.processor / fromPpm.processor);
  std::printf("  memory of lumenpad above its 1x1 run: PPM %.1f MB, PNG %.1f MB\n",
              fromPpm.megabytes - program.megabytes, fromPng.megabytes - program.megabytes);
  std::printf("  files: lumenpad %.2f MB, cjpeg %.2f MB\n", fs::file_size(ours) / 1e6,
              fs::file_size(theirs) / 1e6);
  fs::remove_all(dir);
  return 0;
}
