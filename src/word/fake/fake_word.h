#pragma once
// A Word for tests: every call a tool makes is written down as one readable
// line, and every question is answered from a script or a sensible default.
// It keeps the little state a tool needs to go on (the selection's text, what
// was typed, the shapes made and their names) but lays out nothing.
//
// Records: methods as Shapes.AddLine(10,20,30,40), property sets as
// Selection.Font.Superscript=9999998. Reads are not recorded. The first
// document's collections go bare (Shapes, Fields, PageSetup), shapes are
// Shape1, Shape2, ... in the order they were made.
//
// Scripted answers are keyed like the records: Set("Selection.Information(5)", 120),
// Set("Application.Version", u"10.0"), Set("PageSetup.PageWidth", 600).

#include <string>
#include <vector>

#include "word/connector.h"
#include "word/fake/application.h"

namespace word::fake {

namespace detail {
struct StateHolder {
  State state;
};
}  // namespace detail

class FakeWord : private detail::StateHolder, public Application, public Node {
 public:
  // A running, visible Word 11 with one empty document based on Normal.dot.
  FakeWord();

  bool Visible() const override { return Number("Visible", -1) != 0; }
  void SetVisible(bool visible) override { Put("Visible", visible); }
  word::Text Version() const override { return String("Version", u"11.0"); }
  word::Documents& Documents() override { return documents_; }
  Document& ActiveDocument() override { return *state.ActiveDocument().object; }
  word::Selection& Selection() override { return selection_; }
  void SetScreenUpdating(bool on) override { Put("ScreenUpdating", on); }
  void Run(const word::Text& macroName) override { Call("Run", macroName); }
  word::AddIns& AddIns() override { return addIns_; }
  word::CommandBars& CommandBars() override { return commandBars_; }
  word::KeyBindings& KeyBindings() override { return keyBindings_; }
  void SetCustomizationContext(Template& context) override {
    Put("CustomizationContext", context.FullName());
  }
  long BuildKeyCode(long key1, long key2, long key3, long key4) override;
  word::Text FindKeyCommand(long keyCode) override {
    return StringAt(FakeKeyBindings::FindKeyPath(keyCode), word::Text());
  }
  word::Options& Options() override { return options_; }
  word::AutoCorrect& AutoCorrect() override { return autoCorrect_; }
  word::NormalTemplate& NormalTemplate() override { return normalTemplate_; }

  // The test's side.
  const std::vector<std::string>& Calls() const { return state.calls; }
  void ClearCalls() { state.calls.clear(); }
  void Set(const std::string& key, double value) { state.values[key] = value; }
  void Set(const std::string& key, const word::Text& value) { state.values[key] = value; }
  // A call or read whose line begins with key throws ComError(number, description).
  void FailOn(const std::string& key, long number, const std::string& description);
  // Answers of the next Find.Execute calls, in order; False when they run out.
  void QueueFindResults(const std::vector<bool>& results);
  void SetSelectionText(const word::Text& text) { *state.selection.text = text; }
  // Everything typed at the selection so far (a paragraph mark is "\r").
  const word::Text& Typed() const { return state.selection.typed; }
  void SetDocumentText(const word::Text& text) { *state.ActiveDocument().content = text; }
  void AddField(const word::Text& code);
  // A shape already in the active document; returns its n in Shape<n>.
  long AddScriptedShape(const word::Text& name, MsoShapeType type, float left, float top,
                        float width, float height);
  void SelectShapes(const std::vector<word::Text>& names);
  // Names of the shapes at the top level of the active document, in order.
  std::vector<word::Text> ShapeNames() const;
  // Turns this into a Word that was just started: invisible, no document.
  void Restart();

 private:
  friend class FakeConnector;
  FakeDocuments documents_;
  FakeSelection selection_;
  FakeAddIns addIns_;
  FakeCommandBars commandBars_;
  FakeKeyBindings keyBindings_;
  FakeOptions options_;
  FakeAutoCorrect autoCorrect_;
  FakeNormalTemplate normalTemplate_;
};

// Finds the fake Word running unless told otherwise; CreateObject restarts it.
class FakeConnector : public lp::WordConnector {
 public:
  explicit FakeConnector(FakeWord& word) : word_(word) {}
  bool running = true;   // GetObject finds Word
  bool canStart = true;  // CreateObject succeeds
  Application& GetObject() override;
  Application& CreateObject() override;

 private:
  FakeWord& word_;
};

// "" when the calls match the expected lines, else a readable diff: "  " a
// line in both, "- " expected but missing, "+ " made but not expected. A "*"
// in an expected line matches any run of characters (shape names hold the time).
std::string CallDiff(const std::vector<std::string>& actual,
                     const std::vector<std::string>& expected);

}  // namespace word::fake
