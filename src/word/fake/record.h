#pragma once
// What every object of the recording back end shares: the list of calls, the
// scripted answers, and the scripted failures, with the helpers that write a
// call as one readable line such as Shapes.AddLine(10,20,30,40).

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "word/api.h"
#include "word/errors.h"

namespace word::fake {

using Value = std::variant<double, Text>;

// One text of the document that several objects read and write: the selection,
// a field's code, a text box's story.
using SharedText = std::shared_ptr<Text>;

struct ShapeState {
  long serial = 0;  // the shape is Shape<serial> in the records
  Text name;
  Text alternativeText;
  MsoShapeType type = msoAutoShape;
  float left = 0, top = 0, width = 0, height = 0;
  SharedText text = std::make_shared<Text>();
  std::vector<std::shared_ptr<ShapeState>> members;  // of a group
};
using ShapeList = std::vector<std::shared_ptr<ShapeState>>;

struct FieldState {
  SharedText code = std::make_shared<Text>();
};

struct DocumentState {
  Document* object = nullptr;  // the API object that stands for it
  long number = 0;             // 1 for the first document of the run
  Text fullName;
  Text attachedTemplate;
  SharedText content = std::make_shared<Text>();
  ShapeList shapes;
  std::vector<FieldState> fields;
  std::map<Text, Text> properties;
};

struct SelectionState {
  SharedText text = std::make_shared<Text>();
  Text typed;  // everything typed, in order
  ShapeList shapes;
};

struct State {
  std::vector<std::string> calls;
  std::map<std::string, Value> values;
  std::map<std::string, ComError> failures;
  std::deque<bool> findResults;
  std::vector<std::unique_ptr<DocumentState>> documents;  // open, in order
  std::vector<std::unique_ptr<DocumentState>> closed;     // kept for objects still held
  size_t active = 0;                                      // index into documents
  SelectionState selection;
  long nextSerial = 1;

  DocumentState& ActiveDocument();
  // Throws the scripted failure whose key begins the line.
  void CheckFailure(const std::string& line) const;
  // A shape with the next serial, added to the top level of the document.
  std::shared_ptr<ShapeState> NewShape(DocumentState& document, MsoShapeType type, float left,
                                       float top, float width, float height);
};

// What Word raises for a collection member that isn't there.
inline ComError NoSuchMember() {
  return ItemNotFound();
}

// Arguments as the records write them: numbers shortest, texts quoted.
std::string Arg(double value);
std::string Arg(float value);
std::string Arg(long value);
std::string Arg(int value);
std::string Arg(bool value);
std::string Arg(const Text& text);
std::string Arg(const char* raw);
std::string Arg(const std::string& raw);

template <class... Args>
std::string ArgList(const Args&... args) {
  std::string out;
  ((out += (out.empty() ? "" : ",") + Arg(args)), ...);
  return out;
}

// An object of the fake: it knows its path ("Selection.Font") and writes its
// calls under it.
class Node {
 public:
  Node(State& state, std::string path) : st_(state), path_(std::move(path)) {}
  const std::string& Path() const { return path_; }

 protected:
  template <class... Args>
  void Call(const std::string& member, const Args&... args) const {
    Record(path_ + "." + member + "(" + ArgList(args...) + ")");
  }
  template <class T>
  void Put(const std::string& member, const T& value) const {
    Record(path_ + "." + member + "=" + Arg(value));
    Keep(member, value);
  }
  void Record(const std::string& line) const;
  void Keep(const std::string& member, double value) const;
  void Keep(const std::string& member, const Text& value) const;
  // A scripted or kept answer; a scripted failure of path.member throws.
  double Number(const std::string& member, double fallback) const {
    return NumberAt(Child(member), fallback);
  }
  Text String(const std::string& member, const Text& fallback) const {
    return StringAt(Child(member), fallback);
  }
  double NumberAt(const std::string& key, double fallback) const;
  Text StringAt(const std::string& key, const Text& fallback) const;
  std::string Child(const std::string& member) const { return Join(path_, member); }
  static std::string Join(const std::string& path, const std::string& member) {
    return path.empty() ? member : path + "." + member;
  }

  State& st_;
  std::string path_;
};

}  // namespace word::fake
