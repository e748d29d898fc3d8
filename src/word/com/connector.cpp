#include "word/com/application.h"
#include "word/com/com_word.h"
#include "word/errors.h"

namespace word::com {

ComApplication::ComApplication(Dispatch word)
    : ComNode(Ref(std::move(word))),
      documents_(Member(L"Documents")),
      activeDocument_(Member(L"ActiveDocument")),
      selection_(Member(L"Selection")),
      addIns_(Member(L"AddIns")),
      commandBars_(Member(L"CommandBars")),
      keyBindings_(Member(L"KeyBindings")),
      options_(Member(L"Options")),
      autoCorrect_(Member(L"AutoCorrect")),
      normalTemplate_(Member(L"NormalTemplate")) {}

namespace {

CLSID WordClassId() {
  CLSID id{};
  Check(CLSIDFromProgID(L"Word.Application", &id), "CLSIDFromProgID");
  return id;
}

class ComConnector : public lp::WordConnector {
 public:
  ComConnector() : initialized_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
  ~ComConnector() override {
    app_.reset();
    if (initialized_) CoUninitialize();
  }

  Application& GetObject() override {
    IUnknown* unknown = nullptr;
    Check(GetActiveObject(WordClassId(), nullptr, &unknown), "GetActiveObject");
    IDispatch* word = nullptr;
    HRESULT hr = unknown->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&word));
    unknown->Release();
    Check(hr, "QueryInterface");
    return Keep(Dispatch(word, false));
  }

  Application& CreateObject() override {
    // Whatever stops it, the runtime called it one error: 429.
    IDispatch* word = nullptr;
    CLSID id{};
    if (FAILED(CLSIDFromProgID(L"Word.Application", &id)) ||
        FAILED(CoCreateInstance(id, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch,
                                reinterpret_cast<void**>(&word)))) {
      throw CannotCreateObject();
    }
    return Keep(Dispatch(word, false));
  }

 private:
  Application& Keep(Dispatch word) {
    app_ = std::make_unique<ComApplication>(std::move(word));
    return *app_;
  }

  bool initialized_;
  std::unique_ptr<ComApplication> app_;
};

}  // namespace

std::unique_ptr<lp::WordConnector> MakeComConnector() {
  return std::make_unique<ComConnector>();
}

}  // namespace word::com
