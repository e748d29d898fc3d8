#include "word/fake/record.h"

#include <charconv>

#include "runtime/utf8.h"
#include "word/errors.h"

namespace word::fake {

DocumentState& State::ActiveDocument() {
  if (documents.empty()) {
    throw NoDocumentOpen();
  }
  return *documents[active];
}

void State::CheckFailure(const std::string& line) const {
  for (const auto& [key, error] : failures) {
    if (line.compare(0, key.size(), key) == 0) throw error;
  }
}

std::shared_ptr<ShapeState> State::NewShape(DocumentState& document, MsoShapeType type, float left,
                                            float top, float width, float height) {
  auto shape = std::make_shared<ShapeState>();
  shape->serial = nextSerial++;
  shape->type = type;
  shape->left = left;
  shape->top = top;
  shape->width = width;
  shape->height = height;
  document.shapes.push_back(shape);
  return shape;
}

namespace {

template <class T>
std::string Shortest(T value) {
  char buffer[64];
  auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}

}  // namespace

std::string Arg(double value) {
  return Shortest(value);
}
std::string Arg(float value) {
  return Shortest(value);
}
std::string Arg(long value) {
  return std::to_string(value);
}
std::string Arg(int value) {
  return std::to_string(value);
}
std::string Arg(bool value) {
  return value ? "True" : "False";
}
std::string Arg(const Text& text) {
  return "\"" + lp::ToUtf8(text) + "\"";
}
std::string Arg(const char* raw) {
  return raw;
}
std::string Arg(const std::string& raw) {
  return raw;
}

void Node::Record(const std::string& line) const {
  st_.calls.push_back(line);
  st_.CheckFailure(line);
}

void Node::Keep(const std::string& member, double value) const {
  st_.values[Child(member)] = value;
}

void Node::Keep(const std::string& member, const Text& value) const {
  st_.values[Child(member)] = value;
}

double Node::NumberAt(const std::string& key, double fallback) const {
  st_.CheckFailure(key);
  auto it = st_.values.find(key);
  if (it == st_.values.end()) return fallback;
  if (auto* number = std::get_if<double>(&it->second)) return *number;
  return fallback;
}

Text Node::StringAt(const std::string& key, const Text& fallback) const {
  st_.CheckFailure(key);
  auto it = st_.values.find(key);
  if (it == st_.values.end()) return fallback;
  if (auto* text = std::get_if<Text>(&it->second)) return *text;
  return fallback;
}

}  // namespace word::fake
