#include "double/object.h"

#include <algorithm>
#include <cwctype>

#include "word/fake/record.h"

namespace comdouble {

Object::Object(State& state, std::string path) : st_(state), path_(std::move(path)) {
  ++st_.counters.objectsMade;
  st_.counters.live.insert(this);
}

Object::~Object() {
  st_.counters.live.erase(this);
}

HRESULT Object::QueryInterface(REFIID riid, void** out) {
  if (!out) return E_POINTER;
  if (IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_IDispatch)) {
    *out = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
  }
  *out = nullptr;
  return E_NOINTERFACE;
}

ULONG Object::AddRef() {
  ++st_.counters.addRefs;
  return ++refs_;
}

ULONG Object::Release() {
  ++st_.counters.releases;
  ULONG left = --refs_;
  if (left == 0) delete this;
  return left;
}

HRESULT Object::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

HRESULT Object::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  *info = nullptr;
  return E_NOTIMPL;
}

namespace {

bool SameName(const wchar_t* a, const wchar_t* b) {
  for (; *a && *b; ++a, ++b) {
    if (std::towlower(*a) != std::towlower(*b)) return false;
  }
  return *a == *b;
}

std::string Narrow(const wchar_t* text) {
  return lp::ToUtf8(std::u16string(reinterpret_cast<const char16_t*>(text)));
}

struct BadArgument {
  HRESULT hr;
};

Text TextOf(BSTR b) {
  return Text(reinterpret_cast<const char16_t*>(b), SysStringLen(b));
}

VARIANT Converted(const VARIANT& in, VARTYPE type) {
  VARIANT out;
  VariantInit(&out);
  if (FAILED(VariantChangeType(&out, const_cast<VARIANT*>(&in), 0, type)))
    throw BadArgument{DISP_E_TYPEMISMATCH};
  return out;
}

std::vector<Text> NameArray(const VARIANT& in) {
  if (!(in.vt & VT_ARRAY) || SafeArrayGetDim(in.parray) != 1)
    throw BadArgument{DISP_E_TYPEMISMATCH};
  LONG low = 0, high = -1;
  SafeArrayGetLBound(in.parray, 1, &low);
  SafeArrayGetUBound(in.parray, 1, &high);
  std::vector<Text> names;
  for (LONG i = low; i <= high; ++i) {
    VARIANT element;
    VariantInit(&element);
    if ((in.vt & VT_TYPEMASK) == VT_VARIANT) {
      SafeArrayGetElement(in.parray, &i, &element);
    } else if ((in.vt & VT_TYPEMASK) == VT_BSTR) {
      element.vt = VT_BSTR;
      SafeArrayGetElement(in.parray, &i, &element.bstrVal);
    } else {
      throw BadArgument{DISP_E_TYPEMISMATCH};
    }
    VARIANT text = Converted(element, VT_BSTR);
    names.push_back(TextOf(text.bstrVal));
    VariantClear(&text);
    VariantClear(&element);
  }
  return names;
}

// An n-by-2 array of singles, indexed from 1 as Word's examples build it:
// the first dimension counts the points.
std::vector<word::PointF> PointArray(const VARIANT& in) {
  if (in.vt != (VT_ARRAY | VT_R4) || SafeArrayGetDim(in.parray) != 2)
    throw BadArgument{DISP_E_TYPEMISMATCH};
  LONG low[2], high[2];
  for (UINT d = 0; d < 2; ++d) {
    SafeArrayGetLBound(in.parray, d + 1, &low[d]);
    SafeArrayGetUBound(in.parray, d + 1, &high[d]);
  }
  if (high[1] - low[1] != 1) throw BadArgument{DISP_E_TYPEMISMATCH};
  std::vector<word::PointF> points;
  for (LONG i = low[0]; i <= high[0]; ++i) {
    float xy[2];
    for (LONG j = 0; j < 2; ++j) {
      LONG index[2] = {i, low[1] + j};  // in the order of the dimensions
      if (FAILED(SafeArrayGetElement(in.parray, index, &xy[j]))) throw BadArgument{DISP_E_BADINDEX};
    }
    points.push_back({xy[0], xy[1]});
  }
  return points;
}

Value Convert(const VARIANT& raw, char type, const State& state) {
  VARIANT in;
  VariantInit(&in);
  if (FAILED(VariantCopyInd(&in, const_cast<VARIANT*>(&raw)))) throw BadArgument{E_INVALIDARG};
  struct Clear {
    VARIANT& v;
    ~Clear() { VariantClear(&v); }
  } clear{in};
  if (in.vt == VT_ERROR && in.scode == DISP_E_PARAMNOTFOUND) return std::monostate{};
  switch (type) {
    case 'l':
      return static_cast<long>(Converted(in, VT_I4).lVal);
    case 'f':
      return Converted(in, VT_R4).fltVal;
    case 'd':
      return Converted(in, VT_R8).dblVal;
    case 'b':
      return Converted(in, VT_BOOL).boolVal != VARIANT_FALSE;
    case 'v':
      if (in.vt != VT_BSTR) return static_cast<long>(Converted(in, VT_I4).lVal);
      [[fallthrough]];
    case 's': {
      VARIANT text = Converted(in, VT_BSTR);
      Text value = TextOf(text.bstrVal);
      VariantClear(&text);
      return value;
    }
    case 'o':
      if (in.vt != VT_DISPATCH || !state.counters.live.count(in.pdispVal))
        throw BadArgument{DISP_E_TYPEMISMATCH};
      return static_cast<Object*>(in.pdispVal);
    case 'S':
      return NameArray(in);
    case 'P':
      return PointArray(in);
  }
  throw BadArgument{DISP_E_TYPEMISMATCH};
}

// The arguments of a call, first to last, as the member's letters ask.
Args Arguments(const std::string& letters, const DISPPARAMS& params, UINT named, const State& state,
               UINT* badArgument) {
  size_t bar = letters.find('|');
  size_t required = bar == std::string::npos ? letters.size() : bar;
  std::string types = letters;
  if (bar != std::string::npos) types.erase(bar, 1);
  size_t given = params.cArgs - named;
  if (given > types.size()) throw BadArgument{DISP_E_BADPARAMCOUNT};
  Args args;
  for (size_t i = 0; i < types.size(); ++i) {
    UINT at = static_cast<UINT>(params.cArgs - 1 - i);
    if (i >= given) {
      if (i < required) throw BadArgument{DISP_E_PARAMNOTOPTIONAL};
      args.push_back(std::monostate{});
      continue;
    }
    if (badArgument) *badArgument = at;
    args.push_back(Convert(params.rgvarg[at], types[i], state));
    if (i < required && !Given(args.back())) throw BadArgument{DISP_E_PARAMNOTOPTIONAL};
  }
  return args;
}

void ToVariant(Value value, VARIANT* out) {
  if (!out) {
    if (auto* object = std::get_if<Object*>(&value)) (*object)->Release();
    return;
  }
  VariantInit(out);
  if (auto* v = std::get_if<long>(&value)) {
    out->vt = VT_I4, out->lVal = *v;
  } else if (auto* v = std::get_if<float>(&value)) {
    out->vt = VT_R4, out->fltVal = *v;
  } else if (auto* v = std::get_if<double>(&value)) {
    out->vt = VT_R8, out->dblVal = *v;
  } else if (auto* v = std::get_if<bool>(&value)) {
    out->vt = VT_BOOL, out->boolVal = *v ? VARIANT_TRUE : VARIANT_FALSE;
  } else if (auto* v = std::get_if<Text>(&value)) {
    out->vt = VT_BSTR;
    out->bstrVal = SysAllocStringLen(reinterpret_cast<const OLECHAR*>(v->data()),
                                     static_cast<UINT>(v->size()));
  } else if (auto* v = std::get_if<Object*>(&value)) {
    out->vt = VT_DISPATCH, out->pdispVal = *v;  // the new object's one reference
  }
}

BSTR Bstr(const std::string& utf8) {
  Text text = lp::FromUtf8(utf8);
  return SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.data()),
                           static_cast<UINT>(text.size()));
}

HRESULT Raise(const WordFault& fault, EXCEPINFO* exception) {
  if (exception) {
    *exception = EXCEPINFO{};
    exception->bstrSource = SysAllocString(L"Word");
    exception->bstrDescription = Bstr(fault.description);
    exception->scode = fault.number < 0 ? fault.number
                                        : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL,
                                                       static_cast<WORD>(fault.number));
  }
  return DISP_E_EXCEPTION;
}

}  // namespace

HRESULT Object::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  const auto& members = Members();
  HRESULT hr = S_OK;
  for (UINT n = 0; n < count; ++n) {
    ids[n] = DISPID_UNKNOWN;
    if (n > 0) {
      hr = DISP_E_UNKNOWNNAME;  // named arguments: Word's callers here pass none
      continue;
    }
    auto it = std::find_if(members.begin(), members.end(),
                           [&](const Member& m) { return SameName(m.name, names[n]); });
    if (it == members.end()) {
      Record("double: " + path_ + " has no member " + Narrow(names[n]));
      hr = DISP_E_UNKNOWNNAME;
    } else {
      ids[n] = static_cast<DISPID>(it - members.begin()) + 1;
    }
  }
  return hr;
}

HRESULT Object::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                       EXCEPINFO* exception, UINT* badArgument) {
  const auto& members = Members();
  if (id < 1 || id > static_cast<DISPID>(members.size())) return DISP_E_MEMBERNOTFOUND;
  const Member& m = members[id - 1];
  const bool put = flags & DISPATCH_PROPERTYPUT;
  if (put ? !m.put : !m.get) return DISP_E_MEMBERNOTFOUND;
  UINT named = params->cNamedArgs;
  if (put ? named != 1 || params->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT : named != 0)
    return DISP_E_NONAMEDARGS;
  const std::string name = Narrow(m.name);
  try {
    // A property's letter is the type of its value; it takes no index.
    Args args = Arguments(m.put ? "" : m.params, *params, named, st_, badArgument);
    if (put) {
      args.push_back(Convert(params->rgvarg[0], m.params[0], st_));
      Record(path_ + (m.bare ? "" : "." + name) + "=" + Written(args.back()));
      m.put(*this, args);
      return S_OK;
    }
    if (m.recorded)
      Record(path_ + "." + name + "(" + (m.line ? m.line(args) : WrittenList(args)) + ")");
    ToVariant(m.get(*this, args), result);
    return S_OK;
  } catch (const BadArgument& bad) {
    return bad.hr;
  } catch (const WordFault& fault) {
    return Raise(fault, exception);
  }
}

Kept Object::KeptValue(const std::string& name, const Kept& fallback) const {
  auto it = st_.kept.find(Child(name));
  return it == st_.kept.end() ? fallback : it->second;
}

void Object::KeepValue(const std::string& name, const Kept& value) {
  st_.kept[Child(name)] = value;
}

Value FromKept(const Kept& kept) {
  return std::visit([](const auto& v) -> Value { return v; }, kept);
}

Kept ToKept(const Value& value) {
  if (auto* v = std::get_if<long>(&value)) return *v;
  if (auto* v = std::get_if<float>(&value)) return *v;
  if (auto* v = std::get_if<bool>(&value)) return *v;
  if (auto* v = std::get_if<Text>(&value)) return *v;
  throw WordFault{13, "类型不匹配"};
}

std::string Written(const Value& value) {
  using word::fake::Arg;
  struct Writer {
    std::string operator()(std::monostate) const { return ""; }
    std::string operator()(long v) const { return Arg(v); }
    std::string operator()(float v) const { return Arg(v); }
    std::string operator()(double v) const { return Arg(v); }
    std::string operator()(bool v) const { return Arg(v); }
    std::string operator()(const Text& v) const { return Arg(v); }
    std::string operator()(Object* v) const { return v->Path(); }
    std::string operator()(const std::vector<Text>& v) const {
      std::string out;
      for (const Text& t : v) out += (out.empty() ? "" : ",") + Arg(t);
      return out;
    }
    std::string operator()(const std::vector<word::PointF>& v) const {
      std::string out;
      for (const auto& p : v) out += (out.empty() ? "(" : ",(") + Arg(p.x) + "," + Arg(p.y) + ")";
      return out;
    }
  };
  return std::visit(Writer{}, value);
}

std::string WrittenList(const Args& args) {
  std::string out;
  bool first = true;
  for (const Value& v : args) {
    if (!Given(v)) continue;
    out += (first ? "" : ",") + Written(v);
    first = false;
  }
  return out;
}

bool Given(const Value& v) {
  return !std::holds_alternative<std::monostate>(v);
}

long AsLong(const Value& v) {
  return std::get<long>(v);
}

float AsFloat(const Value& v) {
  return std::get<float>(v);
}

bool AsBool(const Value& v) {
  return std::get<bool>(v);
}

const Text& AsText(const Value& v) {
  return std::get<Text>(v);
}

}  // namespace comdouble
