// The COM back end run for real under Wine against the Word double. Ends
// with its own summary line, so its result reads apart from the native suite.
#include <cstdio>
#include <cstdlib>

#include "connector_test.h"
#include "harness.h"
#include "scripts.h"

int main() {
  // Failures show as they happen, also when a later script hangs.
  std::setvbuf(stdout, nullptr, _IONBF, 0);
  // Without the BSTR cache every string goes through the spied heap.
  if (!std::getenv("OANOCACHE")) {
    std::printf("OANOCACHE=1 must be set, or freed strings stay in the cache\n");
    return 2;
  }
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 2;
  comtest::AllocationSpy spy;
  comtest::Checks checks;
  checks.Check(spy.Register(), "the allocation spy registers");
  int scripts = 0;
  for (const comtest::Script& script : comtest::Scripts()) {
    comtest::Compare(script, spy, checks);
    ++scripts;
  }
  comtest::CheckConnectorWithoutWord(checks);
  spy.Revoke();
  CoUninitialize();
  std::printf("COM under Wine: %d scripts compared, %d checks passed, %d failed\n", scripts,
              checks.passed, checks.failed);
  return checks.failed == 0 ? 0 : 1;
}
