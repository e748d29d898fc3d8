#pragma once
// What the Wine run counts: checks passed and failed, printed as they fail,
// and the allocations of the COM heap (BSTRs, arrays) still outstanding.

#include <objidl.h>
#include <windows.h>
#undef RGB
#undef GetObject

#include <string>

namespace comtest {

class Checks {
 public:
  // Counts one check; a failure prints what was expected and the detail.
  bool Check(bool ok, const std::string& what, const std::string& detail = "");
  int passed = 0;
  int failed = 0;
};

// Watches CoTaskMemAlloc and CoTaskMemFree, which BSTRs and SAFEARRAYs go
// through when the BSTR cache is off (OANOCACHE=1).
class AllocationSpy : public IMallocSpy {
 public:
  // Registers itself for the calling thread's COM; false when it couldn't.
  bool Register();
  void Revoke();
  long Outstanding() const { return allocations_ - frees_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** out) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T size) override;
  void* STDMETHODCALLTYPE PostAlloc(void* p) override;
  void* STDMETHODCALLTYPE PreFree(void* p, BOOL) override;
  void STDMETHODCALLTYPE PostFree(BOOL) override {}
  SIZE_T STDMETHODCALLTYPE PreRealloc(void* p, SIZE_T size, void** out, BOOL) override;
  void* STDMETHODCALLTYPE PostRealloc(void* p, BOOL) override { return p; }
  void* STDMETHODCALLTYPE PreGetSize(void* p, BOOL) override { return p; }
  SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T size, BOOL) override { return size; }
  void* STDMETHODCALLTYPE PreDidAlloc(void* p, BOOL) override { return p; }
  int STDMETHODCALLTYPE PostDidAlloc(void*, BOOL, int actual) override { return actual; }
  void STDMETHODCALLTYPE PreHeapMinimize() override {}
  void STDMETHODCALLTYPE PostHeapMinimize() override {}

 private:
  long allocations_ = 0;
  long frees_ = 0;
};

}  // namespace comtest
