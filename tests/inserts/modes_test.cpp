// Hot keys and modes: through Word as the recording fake answers it, and in
// the .docx engine, whose state a second run reads back.
#include <gtest/gtest.h>
#include <unistd.h>

#include "inserts/modes.h"
#include "inserts_fixture.h"
#include "runtime/recording_prompt.h"
#include "runtime/utf8.h"
#include "settings/database.h"
#include "word/fake/fake_word.h"

namespace lp {
namespace {

using testing::DocxSession;

TEST(HotKeys, KeyPartsAsWordsCodes) {
  EXPECT_EQ(KeyCodesOf(u"Ctrl+Alt+F"), (std::vector<long>{512, 1024, 70}));
  EXPECT_EQ(KeyCodesOf(u"Ctrl+/"), (std::vector<long>{512, 191}));
  EXPECT_EQ(KeyCodesOf(u"F"), (std::vector<long>{70}));
  EXPECT_EQ(KeyCodesOf(u"Alt+\\"), (std::vector<long>{1024, 220}));
  EXPECT_EQ(KeyPartCode(u";"), 186);
  EXPECT_EQ(KeyPartCode(u"Q"), 81);
}

class FakeHotKeys : public ::testing::Test {
 protected:
  void SetUp() override {
    session.databasePath = (std::filesystem::temp_directory_path() /
                            ("lp_hotkeys_" + std::to_string(::getpid()) + ".db"))
                               .string();
    std::filesystem::remove(session.databasePath);
  }
  void TearDown() override { std::filesystem::remove(session.databasePath); }
  long Count(const std::string& part) {
    long n = 0;
    for (const std::string& call : word.Calls()) n += call.find(part) != std::string::npos;
    return n;
  }
  word::fake::FakeWord word;
  RecordingPrompt prompt;
  Session session{word, prompt};
};

TEST_F(FakeHotKeys, BindsInTheTemplateUnlessAlreadyBound) {
  SetHotKey(session);
  EXPECT_EQ(Count("CustomizationContext="), 1);
  EXPECT_EQ(Count("KeyBindings.Add(2,\"gs\",1606)"), 1) << ::testing::PrintToString(word.Calls());
  ASSERT_EQ(prompt.Shown().size(), 1u);
  EXPECT_EQ(prompt.Shown()[0].prompt, u"hotkey set ok");
  word.ClearCalls();
  SetHotKey(session);
  EXPECT_EQ(Count("KeyBindings.Add"), 0);
}

TEST(Modes, ThroughWordTheCaptionDecides) {
  word::fake::FakeWord word;
  RecordingPrompt prompt;
  Session session{word, prompt};
  const std::string caption =
      "CommandBars(\"" + ToUtf8(ModeToolbarName()) + "\").Controls(7).Caption";
  word.Set(caption, u"绘图模式");
  ToggleDrawingMode(session);
  EXPECT_FALSE(word.ActiveDocument().SnapToGrid());
  EXPECT_FALSE(word.ActiveDocument().SnapToShapes());
  EXPECT_EQ(word.CommandBars().ControlCaption(ModeToolbarName(), 7), u"网格模式");
  word.Set(caption, u"文字模式");
  ToggleFormulaMode(session);
  EXPECT_FALSE(word.AutoCorrect().CorrectSentenceCaps());
  EXPECT_TRUE(word.AutoCorrect().ReplaceTextOn());
  EXPECT_EQ(word.CommandBars().ControlCaption(ModeToolbarName(), 7), u"公式模式");
}

TEST(Modes, WithoutTheToolbarNothingChanges) {
  word::fake::FakeWord word;
  RecordingPrompt prompt;
  Session session{word, prompt};
  word.FailOn("CommandBars", 5, "Invalid procedure call or argument");
  ToggleDrawingMode(session);
  ToggleFormulaMode(session);
  EXPECT_TRUE(word.Calls().empty()) << ::testing::PrintToString(word.Calls());
}

TEST(DocxModes, TwiceReturnsToTheStartAndANewRunReadsTheState) {
  DocxSession doc;
  word::Application& app = doc.App();
  ToggleDrawingMode(doc.Run());  // a fresh engine: the grid mode's state
  const std::u16string start = app.CommandBars().ControlCaption(ModeToolbarName(), 7);
  const bool grid = app.ActiveDocument().SnapToGrid();
  ToggleDrawingMode(doc.Run());
  EXPECT_NE(app.CommandBars().ControlCaption(ModeToolbarName(), 7), start);
  EXPECT_NE(app.ActiveDocument().SnapToGrid(), grid);
  doc.Reopen();
  word::Application& again = doc.App();
  EXPECT_NE(again.ActiveDocument().SnapToShapes(), grid);
  ToggleDrawingMode(doc.Run());
  EXPECT_EQ(again.CommandBars().ControlCaption(ModeToolbarName(), 7), start);
  EXPECT_EQ(again.ActiveDocument().SnapToGrid(), grid);
  EXPECT_EQ(again.ActiveDocument().SnapToShapes(), grid);
}

TEST(DocxModes, FormulaModeTogglesTheAutoCorrectOptions) {
  DocxSession doc;
  word::Application& app = doc.App();
  ToggleFormulaMode(doc.Run());
  EXPECT_EQ(app.CommandBars().ControlCaption(ModeToolbarName(), 7), u"文字模式");
  EXPECT_TRUE(app.AutoCorrect().CorrectSentenceCaps());
  EXPECT_FALSE(app.AutoCorrect().ReplaceTextOn());
  doc.Reopen();
  ToggleFormulaMode(doc.Run());
  EXPECT_EQ(doc.App().CommandBars().ControlCaption(ModeToolbarName(), 7), u"公式模式");
  EXPECT_FALSE(doc.App().AutoCorrect().CorrectSentenceCaps());
  EXPECT_TRUE(doc.App().AutoCorrect().ReplaceTextOn());
}

TEST(DocxHotKeys, BindingLandsOnceInTheAttachedTemplate) {
  DocxSession doc;
  SetHotKey(doc.Run());
  doc.Reopen();
  SetHotKey(doc.Run());
  word::Application& app = doc.App();
  auto attached = app.ActiveDocument().AttachedTemplate();
  app.SetCustomizationContext(*attached);
  EXPECT_EQ(app.FindKeyCommand(512 + 1024 + 70), u"gs");
  EXPECT_EQ(doc.prompt.Shown().size(), 2u);
}

}  // namespace
}  // namespace lp
