#pragma once
// An object of the Word double: IDispatch answering Word's member names, as
// Word's type library would through late binding. Each kind of object lists
// its members in a table; the base looks names up, converts the arguments to
// the types Word declares, calls the member, records calls and property sets
// in the recording fake's notation, and reports Word's failures through
// EXCEPINFO.

#include <windows.h>
#undef RGB
#undef GetObject

#include <cwchar>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "double/state.h"
#include "runtime/utf8.h"

namespace comdouble {

class Object;

using Value = std::variant<std::monostate, long, float, double, bool, Text, Object*,
                           std::vector<Text>, std::vector<word::PointF>>;
using Args = std::vector<Value>;

Value FromKept(const Kept& kept);
Kept ToKept(const Value& value);

// One member as a table row. params holds one letter per argument: l long,
// f single, d double, b boolean, s string, o object of the double, v a long
// or a string (an index or a name), S an array of strings, P an n-by-2 array
// of singles; the letters after '|' are optional. Of a property it is the
// type of its value.
struct Member {
  const wchar_t* name;
  const char* params;
  std::function<Value(Object&, Args&)> get;      // a method call or a property read
  std::function<void(Object&, Args&)> put;       // a property write; the value is last
  bool recorded = false;                         // method calls go to the record
  bool bare = false;                             // a write recorded as path=value
  std::function<std::string(const Args&)> line;  // the record's arguments, when not all in order
};

class Object : public IDispatch {
 public:
  Object(State& state, std::string path);
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object();

  const std::string& Path() const { return path_; }
  ULONG References() const { return refs_; }
  State& state() const { return st_; }
  // The path of a member, as the records write it.
  virtual std::string Child(const std::string& name) const { return path_ + "." + name; }
  virtual const std::vector<Member>& Members() const = 0;
  // Values of properties the double keeps without modelling them.
  virtual Kept KeptValue(const std::string& name, const Kept& fallback) const;
  virtual void KeepValue(const std::string& name, const Kept& value);

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** out) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params,
                                   VARIANT* result, EXCEPINFO* exception,
                                   UINT* badArgument) override;

 protected:
  void Record(const std::string& line) const { st_.calls.push_back(line); }
  State& st_;
  std::string path_;

 private:
  ULONG refs_ = 1;
};

// Builds the member table of one kind of object.
template <class T>
class Table {
 public:
  using Get = Value (*)(T&, Args&);
  using Put = void (*)(T&, Args&);
  // A method: recorded as path.Name(arguments).
  Table& Method(const wchar_t* name, const char* params, Get fn) {
    rows_.push_back(Member{name, params, Wrap(fn), nullptr, true, false, nullptr});
    return *this;
  }
  // A read, or an object reached by name: not recorded.
  Table& Read(const wchar_t* name, const char* params, Get fn) {
    rows_.push_back(Member{name, params, Wrap(fn), nullptr, false, false, nullptr});
    return *this;
  }
  // A property: the write is recorded as path.Name=value.
  Table& Prop(const wchar_t* name, const char* type, Get get, Put put) {
    rows_.push_back(Member{name, type, Wrap(get),
                           [put](Object& o, Args& a) { put(static_cast<T&>(o), a); }, false, false,
                           nullptr});
    return *this;
  }
  // A property the double keeps as written, answering fallback before.
  Table& Keep(const wchar_t* name, const char* type, Kept fallback) {
    std::string key = lp::ToUtf8(std::u16string(name, name + std::wcslen(name)));
    rows_.push_back(Member{
        name, type,
        [key, fallback](Object& o, Args&) { return FromKept(o.KeptValue(key, fallback)); },
        [key](Object& o, Args& a) { o.KeepValue(key, ToKept(a.back())); }, false, false, nullptr});
    return *this;
  }
  // The last method records these arguments instead of all of them in order.
  Table& Records(std::string (*line)(const Args&)) {
    rows_.back().line = line;
    return *this;
  }
  // The last property's write is recorded as path=value (a default member).
  Table& Bare() {
    rows_.back().bare = true;
    return *this;
  }
  std::vector<Member> Done() { return std::move(rows_); }

 private:
  static std::function<Value(Object&, Args&)> Wrap(Get fn) {
    return [fn](Object& o, Args& a) { return fn(static_cast<T&>(o), a); };
  }
  std::vector<Member> rows_;
};

// Arguments as the fake's records write them.
std::string Written(const Value& value);
std::string WrittenList(const Args& args);

long AsLong(const Value& v);
float AsFloat(const Value& v);
bool AsBool(const Value& v);
const Text& AsText(const Value& v);
bool Given(const Value& v);  // an optional argument that was passed

template <class T>
T& AsObject(const Value& v) {
  auto* object = dynamic_cast<T*>(std::get<Object*>(v));
  if (!object) throw WordFault{13, "类型不匹配"};
  return *object;
}

}  // namespace comdouble
