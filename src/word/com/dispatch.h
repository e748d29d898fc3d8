#pragma once
// Late-bound calls into Word through IDispatch: names looked up with
// GetIDsOfNames, calls made with Invoke, arguments and results as VARIANTs.
// A failed call becomes word::ComError with the number the tools' handlers
// expect (Word's own error number where Word gives one).

#include <windows.h>
// The Word API has its own RGB and a GetObject of its own meaning.
#undef RGB
#undef GetObject

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "word/types.h"

namespace word::com {

// An owned VARIANT.
class Variant {
 public:
  Variant() { VariantInit(&v_); }
  Variant(long value);
  Variant(int value) : Variant(static_cast<long>(value)) {}
  Variant(float value);
  Variant(double value);
  Variant(bool value);
  Variant(const Text& text);
  Variant(const char16_t* text) : Variant(Text(text)) {}
  Variant(IDispatch* object);                               // adds a reference
  static Variant Array(SAFEARRAY* a, VARTYPE elementType);  // takes the array
  static Variant Missing();                                 // an optional argument left out
  Variant(const Variant& other);
  Variant(Variant&& other) noexcept;
  Variant& operator=(Variant other) noexcept;
  ~Variant() { VariantClear(&v_); }

  VARIANT* get() { return &v_; }
  const VARIANT* get() const { return &v_; }

  // Conversions as Word's values convert; a value that can't raises type mismatch.
  long ToLong() const;
  double ToDouble() const;
  float ToFloat() const { return static_cast<float>(ToDouble()); }
  bool ToBool() const;
  Text ToText() const;

 private:
  VARIANT Converted(VARTYPE type) const;
  VARIANT v_;
};

// An owned IDispatch reference.
class Dispatch {
 public:
  Dispatch() = default;
  explicit Dispatch(IDispatch* p, bool addRef = true);
  Dispatch(const Dispatch& other) : Dispatch(other.p_) {}
  Dispatch(Dispatch&& other) noexcept : p_(std::exchange(other.p_, nullptr)) {}
  Dispatch& operator=(Dispatch other) noexcept {
    std::swap(p_, other.p_);
    return *this;
  }
  ~Dispatch();
  IDispatch* get() const { return p_; }
  explicit operator bool() const { return p_ != nullptr; }

  Variant Get(const wchar_t* name, std::initializer_list<Variant> args = {}) const;
  Dispatch Object(const wchar_t* name, std::initializer_list<Variant> args = {}) const;
  void Put(const wchar_t* name, const Variant& value) const;
  void PutWith(const wchar_t* name, std::initializer_list<Variant> args,
               const Variant& value) const;
  Variant Call(const wchar_t* name, std::initializer_list<Variant> args = {}) const;

 private:
  Variant Invoke(const wchar_t* name, WORD flags, std::vector<Variant> args,
                 bool propertyPut) const;
  IDispatch* p_ = nullptr;
};

// The dispatch a variant holds; nothing there raises "Object required" (424).
Dispatch ToDispatch(const Variant& value);

// Throws ComError for a failed HRESULT.
void Check(HRESULT hr, const char* what);

// Word reports its errors as 0x800Axxxx; the runtime showed them as xxxx.
long ErrorNumber(HRESULT hr);

}  // namespace word::com
