#include "harness.h"

#include <cstdio>

namespace comtest {

bool Checks::Check(bool ok, const std::string& what, const std::string& detail) {
  ++(ok ? passed : failed);
  if (!ok)
    std::printf("FAILED: %s\n%s%s", what.c_str(), detail.c_str(), detail.empty() ? "" : "\n");
  return ok;
}

bool AllocationSpy::Register() {
  return SUCCEEDED(CoRegisterMallocSpy(this));
}

void AllocationSpy::Revoke() {
  CoRevokeMallocSpy();
}

HRESULT AllocationSpy::QueryInterface(REFIID riid, void** out) {
  if (IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_IMallocSpy)) {
    *out = static_cast<IMallocSpy*>(this);
    return S_OK;
  }
  *out = nullptr;
  return E_NOINTERFACE;
}

SIZE_T AllocationSpy::PreAlloc(SIZE_T size) {
  return size;
}

void* AllocationSpy::PostAlloc(void* p) {
  if (p) ++allocations_;
  return p;
}

void* AllocationSpy::PreFree(void* p, BOOL) {
  if (p) ++frees_;
  return p;
}

SIZE_T AllocationSpy::PreRealloc(void* p, SIZE_T size, void** out, BOOL) {
  // A new block counts as allocated, a block freed (size 0) as freed.
  if (!p && size) ++allocations_;
  if (p && !size) ++frees_;
  *out = p;
  return size;
}

}  // namespace comtest
