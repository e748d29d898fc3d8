#pragma once
// The kinds of objects of the Word double. Each holds where it points in the
// state (a span, a document, a list of shapes) and the path the records give
// it; the member tables are in text_objects.cpp, document_objects.cpp and
// shape_objects.cpp.

#include "double/object.h"

namespace comdouble {

// A range, or the selection itself (which also types and moves).
class RangeObj : public Object {
 public:
  RangeObj(State& state, std::string path, SpanPtr span, std::shared_ptr<FindState> find = nullptr)
      : Object(state, std::move(path)),
        span(std::move(span)),
        find(find ? std::move(find) : std::make_shared<FindState>()) {}
  const std::vector<Member>& Members() const override;
  virtual bool IsSelection() const { return false; }
  Story& story() const { return *span->story; }
  // The selection moved: typing no longer continues the format set at the caret.
  void Moved() const;
  SpanPtr span;
  std::shared_ptr<FindState> find;
  bool wholeCode = false;  // a field's code: its text reads hidden characters too
};

class SelectionObj : public RangeObj {
 public:
  explicit SelectionObj(State& state)
      : RangeObj(state, "Selection", state.selection, state.selectionFind) {}
  const std::vector<Member>& Members() const override;
  bool IsSelection() const override { return true; }
};

// The character format of a range, or a format Find searches for or gives.
class FontObj : public Object {
 public:
  FontObj(State& state, std::string path, const RangeObj& owner)
      : Object(state, std::move(path)), span(owner.span), selection(owner.IsSelection()) {}
  const std::vector<Member>& Members() const override;
  SpanPtr span;
  bool selection;
};

class FontSpecObj : public Object {
 public:
  FontSpecObj(State& state, std::string path, std::shared_ptr<FindState> find)
      : Object(state, std::move(path)), find(std::move(find)) {}
  const std::vector<Member>& Members() const override;
  std::shared_ptr<FindState> find;
};

class ParagraphObj : public Object {
 public:
  ParagraphObj(State& state, std::string path, SpanPtr span)
      : Object(state, std::move(path)), span(std::move(span)) {}
  const std::vector<Member>& Members() const override;
  SpanPtr span;
};

class FindObj : public Object {
 public:
  FindObj(State& state, std::string path, const RangeObj& owner)
      : Object(state, std::move(path)),
        span(owner.span),
        selection(owner.IsSelection()),
        find(owner.find) {}
  const std::vector<Member>& Members() const override;
  SpanPtr span;
  bool selection;
  std::shared_ptr<FindState> find;
};

class ReplacementObj : public Object {
 public:
  ReplacementObj(State& state, std::string path, std::shared_ptr<FindState> find)
      : Object(state, std::move(path)), find(std::move(find)) {}
  const std::vector<Member>& Members() const override;
  std::shared_ptr<FindState> find;
};

// The fields of a range; with whole set, of its whole story.
class FieldsObj : public Object {
 public:
  FieldsObj(State& state, std::string path, SpanPtr span, bool whole)
      : Object(state, std::move(path)), span(std::move(span)), whole(whole) {}
  const std::vector<Member>& Members() const override;
  std::vector<FieldState*> InSpan() const;
  SpanPtr span;
  bool whole;
};

class FieldObj : public Object {
 public:
  FieldObj(State& state, std::string path, Story& story, long id)
      : Object(state, std::move(path)), story(story), id(id) {}
  const std::vector<Member>& Members() const override;
  // First and one past the last position of the field, marks included.
  std::pair<long, long> Extent() const;
  Story& story;
  long id;
};

class CharactersObj : public Object {
 public:
  CharactersObj(State& state, std::string path, SpanPtr span)
      : Object(state, std::move(path)), span(std::move(span)) {}
  const std::vector<Member>& Members() const override;
  SpanPtr span;
};

class ApplicationObj : public Object {
 public:
  explicit ApplicationObj(State& state) : Object(state, "Application") {}
  std::string Child(const std::string& name) const override { return name; }
  const std::vector<Member>& Members() const override;
};

class DocumentObj : public Object {
 public:
  DocumentObj(State& state, DocumentState& document);
  std::string Child(const std::string& name) const override { return prefix + name; }
  const std::vector<Member>& Members() const override;
  DocumentState& document;
  std::string prefix;  // before the names of its collections
};

// A shape, or several (a ShapeRange): reads answer from the first, writes change each.
class ShapeObj : public Object {
 public:
  ShapeObj(State& state, std::string path, ShapeList targets, bool range)
      : Object(state, std::move(path)), targets(std::move(targets)), range(range) {}
  ShapeObj(State& state, std::shared_ptr<ShapeState> shape)
      : ShapeObj(state, "Shape" + std::to_string(shape->serial), {shape}, false) {}
  const std::vector<Member>& Members() const override;
  Kept KeptValue(const std::string& name, const Kept& fallback) const override;
  void KeepValue(const std::string& name, const Kept& value) override;
  ShapeState& First() const;
  ShapeList targets;
  bool range;
};

// A document's shapes.
class ShapesObj : public Object {
 public:
  ShapesObj(State& state, std::string path, DocumentState& document)
      : Object(state, std::move(path)), document(document) {}
  const std::vector<Member>& Members() const override;
  DocumentState& document;
};

// An object of no state of its own: its members read and keep values under
// its path, or reach further objects. Options, PageSetup, CommandBars, ...
class PlainObj : public Object {
 public:
  PlainObj(State& state, std::string path, const std::vector<Member>& members,
           std::string childPrefix)
      : Object(state, std::move(path)), members_(members), childPrefix_(std::move(childPrefix)) {}
  std::string Child(const std::string& name) const override { return childPrefix_ + name; }
  const std::vector<Member>& Members() const override { return members_; }

 private:
  const std::vector<Member>& members_;
  std::string childPrefix_;
};

// A format object of shapes (Line, Fill, ForeColor, WrapFormat, TextFrame):
// its values are kept in each shape under prefix.Name.
class ShapeFormatObj : public Object {
 public:
  ShapeFormatObj(State& state, std::string path, const std::vector<Member>& members,
                 ShapeList targets, std::string prefix)
      : Object(state, std::move(path)),
        targets(std::move(targets)),
        prefix(std::move(prefix)),
        members_(members) {}
  const std::vector<Member>& Members() const override { return members_; }
  Kept KeptValue(const std::string& name, const Kept& fallback) const override;
  void KeepValue(const std::string& name, const Kept& value) override;
  ShapeList targets;
  std::string prefix;

 private:
  const std::vector<Member>& members_;
};

template <class T, class... A>
Object* Make(A&&... args) {
  return new T(std::forward<A>(args)...);
}

// The selection's story stretch was set to [start, end).
void SelectSpan(State& state, Story* story, long start, long end);

}  // namespace comdouble
