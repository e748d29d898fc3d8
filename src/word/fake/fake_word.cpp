#include "word/fake/fake_word.h"
#include "word/errors.h"

namespace word::fake {

FakeWord::FakeWord()
    : Node(state, "Application"),
      documents_(state),
      selection_(state),
      addIns_(state, "AddIns"),
      commandBars_(state),
      keyBindings_(state, "KeyBindings"),
      options_(state, "Options"),
      autoCorrect_(state, "AutoCorrect"),
      normalTemplate_(state) {
  documents_.Make(u"Document1", u"Normal.dot");
}

void FakeWord::FailOn(const std::string& key, long number, const std::string& description) {
  state.failures.insert_or_assign(key, ComError(number, description));
}

void FakeWord::QueueFindResults(const std::vector<bool>& results) {
  state.findResults.insert(state.findResults.end(), results.begin(), results.end());
}

void FakeWord::AddField(const word::Text& code) {
  state.ActiveDocument().fields.push_back(FieldState{std::make_shared<word::Text>(code)});
}

long FakeWord::AddScriptedShape(const word::Text& name, MsoShapeType type, float left, float top,
                                float width, float height) {
  auto shape = state.NewShape(state.ActiveDocument(), type, left, top, width, height);
  shape->name = name;
  return shape->serial;
}

void FakeWord::SelectShapes(const std::vector<word::Text>& names) {
  state.selection.shapes.clear();
  for (const auto& shape : state.ActiveDocument().shapes) {
    for (const auto& name : names) {
      if (shape->name == name) state.selection.shapes.push_back(shape);
    }
  }
}

std::vector<word::Text> FakeWord::ShapeNames() const {
  std::vector<word::Text> names;
  for (const auto& shape : state.documents.at(state.active)->shapes) names.push_back(shape->name);
  return names;
}

void FakeWord::Restart() {
  for (auto& document : state.documents) state.closed.push_back(std::move(document));
  state.documents.clear();
  state.active = 0;
  state.values["Application.Visible"] = 0.0;
}

Application& FakeConnector::GetObject() {
  if (!running) throw CannotCreateObject();
  return word_;
}

Application& FakeConnector::CreateObject() {
  word_.state.calls.push_back("CreateObject(\"Word.Application\")");
  if (!canStart) throw CannotCreateObject();
  word_.Restart();
  running = true;
  return word_;
}

namespace {

// Whether line matches pattern, where "*" stands for any run of characters.
bool Matches(const std::string& line, const std::string& pattern) {
  size_t l = 0, p = 0, star = std::string::npos, resume = 0;
  while (l < line.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      resume = l;
    } else if (p < pattern.size() && pattern[p] == line[l]) {
      ++p, ++l;
    } else if (star != std::string::npos) {
      p = star + 1;
      l = ++resume;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

}  // namespace

std::string CallDiff(const std::vector<std::string>& actual,
                     const std::vector<std::string>& expected) {
  // Longest common subsequence, then a walk that prints the differences.
  size_t n = actual.size(), m = expected.size();
  std::vector<std::vector<size_t>> common(n + 1, std::vector<size_t>(m + 1, 0));
  for (size_t i = n; i-- > 0;) {
    for (size_t j = m; j-- > 0;) {
      common[i][j] = Matches(actual[i], expected[j]) ? common[i + 1][j + 1] + 1
                                                     : std::max(common[i + 1][j], common[i][j + 1]);
    }
  }
  if (common[0][0] == n && n == m) return {};
  std::string diff;
  size_t i = 0, j = 0;
  while (i < n || j < m) {
    if (i < n && j < m && Matches(actual[i], expected[j])) {
      diff += "  " + actual[i++] + "\n";
      ++j;
    } else if (j < m && (i == n || common[i][j + 1] >= common[i + 1][j])) {
      diff += "- " + expected[j++] + "\n";
    } else {
      diff += "+ " + actual[i++] + "\n";
    }
  }
  return diff;
}

// The parts add up, as Word's codes are built; wdNoKey stands for no part.
long FakeWord::BuildKeyCode(long key1, long key2, long key3, long key4) {
  long code = 0;
  for (long key : {key1, key2, key3, key4})
    if (key != wdNoKey) code += key;
  return code;
}

}  // namespace word::fake
