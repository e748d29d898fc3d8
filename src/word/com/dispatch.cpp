#include "word/com/dispatch.h"
#include "word/errors.h"

#include <string>

namespace word::com {

namespace {

std::string Narrow(const wchar_t* text) {
  if (!text) return {};
  int bytes = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  std::string out(bytes > 0 ? bytes - 1 : 0, '\0');
  if (bytes > 1) WideCharToMultiByte(CP_UTF8, 0, text, -1, out.data(), bytes, nullptr, nullptr);
  return out;
}

std::string SystemMessage(HRESULT hr) {
  wchar_t* buffer = nullptr;
  DWORD length = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      nullptr, static_cast<DWORD>(hr), 0, reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
  std::string message = length ? Narrow(buffer) : "Automation error";
  if (buffer) LocalFree(buffer);
  while (!message.empty() && (message.back() == '\n' || message.back() == '\r')) {
    message.pop_back();
  }
  return message;
}

}  // namespace

long ErrorNumber(HRESULT hr) {
  unsigned long code = static_cast<unsigned long>(hr);
  if ((code & 0xFFFF0000UL) == 0x800A0000UL) return static_cast<long>(code & 0xFFFFUL);
  return static_cast<long>(hr);
}

void Check(HRESULT hr, const char* what) {
  if (FAILED(hr)) throw ComError(ErrorNumber(hr), SystemMessage(hr) + " (" + what + ")");
}

Variant::Variant(long value) : Variant() {
  v_.vt = VT_I4;
  v_.lVal = value;
}

Variant::Variant(float value) : Variant() {
  v_.vt = VT_R4;
  v_.fltVal = value;
}

Variant::Variant(double value) : Variant() {
  v_.vt = VT_R8;
  v_.dblVal = value;
}

Variant::Variant(bool value) : Variant() {
  v_.vt = VT_BOOL;
  v_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
}

Variant::Variant(const Text& text) : Variant() {
  v_.vt = VT_BSTR;
  v_.bstrVal = SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.data()),
                                 static_cast<UINT>(text.size()));
  if (!v_.bstrVal) Check(E_OUTOFMEMORY, "SysAllocStringLen");
}

Variant::Variant(IDispatch* object) : Variant() {
  v_.vt = VT_DISPATCH;
  v_.pdispVal = object;
  if (object) object->AddRef();
}

Variant Variant::Array(SAFEARRAY* a, VARTYPE elementType) {
  Variant result;
  result.v_.vt = static_cast<VARTYPE>(VT_ARRAY | elementType);
  result.v_.parray = a;
  return result;
}

Variant Variant::Missing() {
  Variant result;
  result.v_.vt = VT_ERROR;
  result.v_.scode = DISP_E_PARAMNOTFOUND;
  return result;
}

Variant::Variant(const Variant& other) : Variant() {
  Check(VariantCopy(&v_, const_cast<VARIANT*>(&other.v_)), "VariantCopy");
}

Variant::Variant(Variant&& other) noexcept : v_(other.v_) {
  VariantInit(&other.v_);
}

Variant& Variant::operator=(Variant other) noexcept {
  std::swap(v_, other.v_);
  return *this;
}

VARIANT Variant::Converted(VARTYPE type) const {
  VARIANT out;
  VariantInit(&out);
  HRESULT hr = VariantChangeType(&out, const_cast<VARIANT*>(&v_), 0, type);
  if (FAILED(hr)) throw TypeMismatch();
  return out;
}

long Variant::ToLong() const {
  VARIANT out = Converted(VT_I4);
  return out.lVal;
}

double Variant::ToDouble() const {
  VARIANT out = Converted(VT_R8);
  return out.dblVal;
}

bool Variant::ToBool() const {
  VARIANT out = Converted(VT_BOOL);
  return out.boolVal != VARIANT_FALSE;
}

Text Variant::ToText() const {
  if (v_.vt == VT_EMPTY || v_.vt == VT_NULL) return {};
  VARIANT out = Converted(VT_BSTR);
  Text text(reinterpret_cast<const char16_t*>(out.bstrVal), SysStringLen(out.bstrVal));
  VariantClear(&out);
  return text;
}

Dispatch::Dispatch(IDispatch* p, bool addRef) : p_(p) {
  if (p_ && addRef) p_->AddRef();
}

Dispatch::~Dispatch() {
  if (p_) p_->Release();
}

Variant Dispatch::Invoke(const wchar_t* name, WORD flags, std::vector<Variant> args,
                         bool propertyPut) const {
  if (!p_) throw ObjectNotSet();
  DISPID id = 0;
  LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
  Check(p_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id), Narrow(name).c_str());

  // Invoke takes the arguments last to first.
  std::vector<VARIANT> reversed;
  for (auto it = args.rbegin(); it != args.rend(); ++it) reversed.push_back(*it->get());
  DISPID putId = DISPID_PROPERTYPUT;
  DISPPARAMS params{reversed.data(), propertyPut ? &putId : nullptr,
                    static_cast<UINT>(reversed.size()), propertyPut ? 1u : 0u};
  Variant result;
  EXCEPINFO exception{};
  UINT badArgument = 0;
  HRESULT hr = p_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params,
                          propertyPut ? nullptr : result.get(), &exception, &badArgument);
  if (hr == DISP_E_EXCEPTION) {
    if (exception.pfnDeferredFillIn) exception.pfnDeferredFillIn(&exception);
    HRESULT code = exception.scode ? exception.scode : MAKE_HRESULT(1, 10, exception.wCode);
    std::string description = Narrow(exception.bstrDescription);
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    throw ComError(ErrorNumber(code), description.empty() ? SystemMessage(code) : description);
  }
  Check(hr, Narrow(name).c_str());
  return result;
}

Variant Dispatch::Get(const wchar_t* name, std::initializer_list<Variant> args) const {
  return Invoke(name, DISPATCH_PROPERTYGET | DISPATCH_METHOD, args, false);
}

Dispatch Dispatch::Object(const wchar_t* name, std::initializer_list<Variant> args) const {
  return ToDispatch(Get(name, args));
}

void Dispatch::Put(const wchar_t* name, const Variant& value) const {
  Invoke(name, DISPATCH_PROPERTYPUT, {value}, true);
}

void Dispatch::PutWith(const wchar_t* name, std::initializer_list<Variant> args,
                       const Variant& value) const {
  std::vector<Variant> all(args);
  all.push_back(value);
  Invoke(name, DISPATCH_PROPERTYPUT, std::move(all), true);
}

Variant Dispatch::Call(const wchar_t* name, std::initializer_list<Variant> args) const {
  return Invoke(name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, args, false);
}

Dispatch ToDispatch(const Variant& value) {
  const VARIANT* v = value.get();
  if (v->vt == VT_DISPATCH && v->pdispVal) return Dispatch(v->pdispVal);
  throw ObjectRequired();
}

}  // namespace word::com
