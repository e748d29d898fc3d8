// measure_run COMMAND ARGS...: runs the command and prints its wall time and
// processor time in seconds and its peak resident memory in kilobytes. A
// process's peak counts from its parent's size when it was started, so the
// benchmark starts commands through this small program rather than itself.

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <time.h>

#include <cstdio>

extern char** environ;

namespace {

double Seconds(const timeval& t) {
  return t.tv_sec + t.tv_usec * 1e-6;
}

double Now() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec + now.tv_nsec * 1e-9;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  const double start = Now();
  pid_t child = 0;
  if (posix_spawnp(&child, argv[1], nullptr, nullptr, argv + 1, environ) != 0) return 1;
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) != child) return 1;
  std::printf("%.6f %.6f %ld\n", Now() - start, Seconds(usage.ru_utime) + Seconds(usage.ru_stime),
              usage.ru_maxrss);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
