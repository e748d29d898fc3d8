// lumenpadsetup: the companion that lumenpad starts with "browse" at every
// run. Settings and updates are looked after elsewhere; here it only answers.

#include <cstdio>
#include <cstring>

int main(int argc, char** argv) {
  if (argc > 1 && std::strcmp(argv[1], "--version") == 0)
    std::printf("lumenpadsetup " LP_VERSION "\n");
  return 0;
}
