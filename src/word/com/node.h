#pragma once
// The base of every Word object of the COM back end: how the object is
// reached, and short forms of the calls made on it.

#include <memory>

#include "word/com/dispatch.h"
#include "word/errors.h"

namespace word::com {

// Either a fixed object, or a member of another object fetched afresh at each
// use, so that Selection.Font always means the font of the present selection.
class Ref {
 public:
  explicit Ref(Dispatch fixed) : fixed_(std::move(fixed)) {}
  Ref(const Ref& parent, const wchar_t* member)
      : parent_(std::make_shared<Ref>(parent)), member_(member) {}
  Dispatch operator()() const { return parent_ ? (*parent_)().Object(member_) : fixed_; }

 private:
  Dispatch fixed_;
  std::shared_ptr<Ref> parent_;
  const wchar_t* member_ = nullptr;
};

class ComNode {
 public:
  explicit ComNode(Ref ref) : ref_(std::move(ref)) {}
  virtual ~ComNode() = default;
  Dispatch Object() const { return ref_(); }

 protected:
  Variant Get(const wchar_t* name, std::initializer_list<Variant> args = {}) const {
    return ref_().Get(name, args);
  }
  void Put(const wchar_t* name, const Variant& value) const { ref_().Put(name, value); }
  Variant Call(const wchar_t* name, std::initializer_list<Variant> args = {}) const {
    return ref_().Call(name, args);
  }
  Ref Member(const wchar_t* name) const { return Ref(ref_, name); }
  Ref Fixed(const wchar_t* name, std::initializer_list<Variant> args = {}) const {
    return Ref(ref_().Object(name, args));
  }

  Ref ref_;
};

// The IDispatch behind an API object made by this back end.
template <class T>
Dispatch DispatchOf(T& object) {
  auto* node = dynamic_cast<const ComNode*>(&object);
  if (!node) throw TypeMismatch();
  return node->Object();
}

}  // namespace word::com
