#include "compare.h"

#include <regex>

#include "double/word_double.h"
#include "runtime/recording_prompt.h"
#include "runtime/utf8.h"
#include "word/com/application.h"
#include "word/fake/fake_word.h"
#include "word/fake/record.h"

namespace comtest {

namespace {

// What a run leaves that both back ends answer alike through the API: the
// fields' codes (Word pads a code given to Fields.Add with blanks, the fake
// keeps it as given) and the shapes at the top level.
std::vector<std::string> EndState(word::Application& app) {
  using word::fake::Arg;
  std::vector<std::string> lines;
  word::Document& document = app.ActiveDocument();
  word::Fields& fields = document.Fields();
  for (long i = 1, n = fields.Count(); i <= n; ++i) {
    std::u16string code = fields.Item(i)->Code()->Text();
    size_t first = code.find_first_not_of(u' '), last = code.find_last_not_of(u' ');
    code = first == std::u16string::npos ? u"" : code.substr(first, last - first + 1);
    lines.push_back("field " + Arg(code));
  }
  word::Shapes& shapes = document.Shapes();
  for (long i = 1, n = shapes.Count(); i <= n; ++i) {
    auto shape = shapes.Item(i);
    lines.push_back("shape " + word::fake::ArgList(shape->Name(), static_cast<long>(shape->Type()),
                                                   shape->Left(), shape->Top(), shape->Width(),
                                                   shape->Height()));
  }
  return lines;
}

struct Outcome {
  std::vector<std::string> calls, endState;
  std::vector<std::string> shown;  // boxes, as text
  std::string error;               // what the run raised, if anything
};

// The calls are taken afterwards, as the end state's reads are part of the run.
// Each run has a settings store of its own.
Outcome Run(const Script& script, word::Application& app, const char* backEnd) {
  Outcome out;
  lp::RecordingPrompt prompt;
  lp::Session session(app, prompt);
  session.EndRun = [] {};
  session.databasePath = std::string(script.name) + " " + backEnd;
  try {
    script.run(session);
  } catch (const std::exception& e) {
    out.error = e.what();
  }
  for (const auto& box : prompt.Shown()) out.shown.push_back(lp::ToUtf8(box.prompt));
  out.endState = EndState(app);
  return out;
}

// Shape names hold a random number and the time: "轴：4172024112473051_lumenpad".
void Forget(std::vector<std::string>& lines, const char* varies) {
  static const std::regex digits("：[0-9]+_?[a-z]*");
  const std::regex script(*varies ? varies : "$^");
  for (auto& line : lines)
    line = std::regex_replace(std::regex_replace(line, digits, "：#"), script, "#");
}

std::string Lines(const std::vector<std::string>& lines) {
  std::string out;
  for (const auto& line : lines) out += "  " + line + "\n";
  return out;
}

}  // namespace

void Compare(const Script& script, AllocationSpy& spy, Checks& checks) {
  const std::string name = script.name;
  const Scene& scene = script.scene;
  Outcome com, fake;
  std::deque<bool> findAnswers;
  std::map<std::string, double> answers;
  {
    comdouble::WordDouble word;
    word.SetScene(scene.before, scene.selected, scene.after);
    long allocated = spy.Outstanding();
    {
      word::com::ComApplication app(word::com::Dispatch(word.Application()));
      com = Run(script, app, "COM");
      com.calls = word.Calls();
    }
    checks.Check(word.ObjectsHeld() == 0 && word.ApplicationReferences() == 1,
                 name + ": every object the double handed out is released",
                 "  held: " + std::to_string(word.ObjectsHeld()) +
                     ", application references: " + std::to_string(word.ApplicationReferences()));
    checks.Check(spy.Outstanding() == allocated, name + ": every BSTR and array is freed",
                 "  outstanding: " + std::to_string(spy.Outstanding() - allocated));
    checks.Check(word.Dump() == script.expected, name + ": the double's document",
                 "  expected: " + std::string(script.expected) + "\n  actual:   " + word.Dump());
    std::string unknown;
    for (const auto& line : com.calls) {
      if (line.rfind("double: ", 0) == 0) unknown += "  " + line + "\n";
    }
    checks.Check(unknown.empty(), name + ": the double knows every member called", unknown);
    findAnswers = word.FindAnswers();
    answers = word.Answers();
  }
  if (script.fake == Fake::kCannotFollow) return;
  word::fake::FakeWord word;
  word.SetDocumentText(scene.before + scene.selected + scene.after);
  word.SetSelectionText(scene.selected);
  word.Set("Selection.Start", static_cast<double>(scene.before.size()));
  for (const auto& [key, value] : answers) word.Set(key, value);
  word.QueueFindResults({findAnswers.begin(), findAnswers.end()});
  fake = Run(script, word, "fake");
  fake.calls = word.Calls();
  for (Outcome* run : {&com, &fake}) {
    Forget(run->calls, script.varies);
    Forget(run->endState, script.varies);
  }
  std::string diff = word::fake::CallDiff(com.calls, fake.calls);
  checks.Check(diff.empty(), name + ": the same Word calls through COM as on the fake",
               "  (- fake only, + COM only)\n" + diff);
  checks.Check(com.shown == fake.shown && com.error == fake.error,
               name + ": the same boxes and the same outcome",
               "  COM: " + com.error + "\n" + Lines(com.shown) + "  fake: " + fake.error + "\n" +
                   Lines(fake.shown));
  checks.Check(com.endState == fake.endState, name + ": the same fields and shapes",
               "  COM:\n" + Lines(com.endState) + "  fake:\n" + Lines(fake.endState));
}

}  // namespace comtest
