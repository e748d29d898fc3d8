#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "launcher/browse_my_site.h"
#include "launcher/command_table.h"
#include "launcher/headless_prompt.h"
#include "launcher/run_options.h"
#include "launcher/sub_main.h"
#include "runtime/error.h"
#include "runtime/recording_prompt.h"
#include "runtime/utf8.h"

namespace fs = std::filesystem;

namespace lp {
namespace {

// Writes down what SubMain asks of the user interface and of the run.
class Journal : public Frontend {
 public:
  void ShowSplash() override { events.push_back("splash"); }
  void SetSplashProgress(const std::u16string& text) override {
    events.push_back("progress " + ToUtf8(text));
  }
  void UnloadSplash() override { events.push_back("unload splash"); }
  void ShowForm(std::u16string_view form, bool modal) override {
    events.push_back((modal ? "modal " : "show ") + ToUtf8(std::u16string(form)));
  }
  void PumpEvents() override {}
  std::vector<std::string> events;
};

void NoteMhgs(Session& session, Frontend&) {
  session.exitStatus = 77;
}
constexpr RoutineBinding kRoutines[] = {{u"test", &TestCommand}, {u"mhgs", &NoteMhgs}};

class SubMainTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() /
              ("lp_launcher_" +
               std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::create_directories(folder_);
    std::ofstream(folder_ / "lumenpadsetup") << "#!/bin/sh\nexit 0\n";
    fs::permissions(folder_ / "lumenpadsetup", fs::perms::owner_all);
    session_.programFolder = FromUtf8(folder_.string());
    session_.EndRun = [this] { ui_.events.push_back("exit"); };
  }
  void TearDown() override { fs::remove_all(folder_); }

  void Run(const std::u16string& commandLine, bool wordReached = true) {
    SubMain(session_, ui_, kRoutines, commandLine, [&] {
      ui_.events.push_back("Document_Init");
      return wordReached;
    });
  }

  fs::path folder_;
  RecordingPrompt prompt_;
  Session session_{prompt_};
  Journal ui_;
};

// A word matches its row whole and in its case; anything else falls to the
// last row, which ends the run.
TEST(CommandTable, OnlyWholeWordsFindTheirRow) {
  EXPECT_EQ(FindCommand(u"inequality").word, u"inequality");
  for (auto text : {u"", u" dot", u"dot ", u"dot test", u"DOT", u"nonsense"})
    EXPECT_EQ(&FindCommand(text), &kCommandTable.back()) << ToUtf8(text);
}

TEST_F(SubMainTest, KnownWordsRunAfterDocumentInit) {
  Run(u"TEST");
  EXPECT_EQ(ui_.events, (std::vector<std::string>{"Document_Init"}));
  ui_.events.clear();
  session_.FigureOriginX = 0;
  Run(u"Factoring");
  EXPECT_EQ(ui_.events, (std::vector<std::string>{"Document_Init", "show frmFactoring"}));
  ui_.events.clear();
  Run(u"MHGS");
  EXPECT_EQ(session_.exitStatus, 77);
  EXPECT_EQ(session_.FigureOriginX, 180);
  EXPECT_EQ(session_.FigureOriginY, 180);
  EXPECT_TRUE(prompt_.Shown().empty());
}

TEST_F(SubMainTest, OtherWordsEndThroughExitLumenpad) {
  for (auto text : {u" dot", u"dot ", u"dot test", u"nonsense", u"group"}) {
    ui_.events.clear();
    Run(text);
    EXPECT_EQ(ui_.events, (std::vector<std::string>{"Document_Init", "exit"})) << ToUtf8(text);
  }
  ui_.events.clear();
  Run(u"test", false);
  EXPECT_EQ(ui_.events, (std::vector<std::string>{"Document_Init", "exit"}));
}

TEST_F(SubMainTest, MissingCompanionStopsEverything) {
  fs::remove(folder_ / "lumenpadsetup");
  Run(u"test");
  EXPECT_TRUE(ui_.events.empty());
  ASSERT_EQ(prompt_.Shown().size(), 1u);
  EXPECT_EQ(prompt_.Shown()[0].prompt,
            u"在lumenpad目录下未找到lumenpadsetup."
            u"exe，无法获得《流明画板》的相关设置信息！同时您也将无法及时"
            u"得到《流明画板》的最新版本及更新信息。详情请查看https://lumenpad.example的说明。");
  EXPECT_EQ(prompt_.Shown()[0].style, vbOKOnly);
  EXPECT_EQ(prompt_.Shown()[0].title, u"");
}

TEST_F(SubMainTest, EmptyCommandShowsTheSplash) {
  Run(u"");
  const std::vector<std::string> splash = {
      "splash", "progress 正在连接word，请稍候...", "Document_Init",
      "progress 流明画板初始化工作完成，可以开始工作了！", "unload splash"};
  std::vector<std::string> expected = splash;
  expected.push_back("exit");
  EXPECT_EQ(ui_.events, expected);

  ui_.events.clear();
  session_.TemplateAttached = -1;
  Run(u"");
  EXPECT_EQ(ui_.events, splash);
}

TEST_F(SubMainTest, EscapingErrorsAreReported) {
  SubMain(session_, ui_, kRoutines, u"test",
          []() -> bool { throw RuntimeError(kOverflow, "Overflow"); });
  ASSERT_EQ(prompt_.Shown().size(), 1u);
  EXPECT_EQ(prompt_.Shown()[0].prompt, u"Overflow\r\nsubmain-->line 0");
  EXPECT_EQ(prompt_.Shown()[0].title, u"错误号: 6");
}

TEST(HeadlessPrompt, AnswersInOrder) {
  HeadlessPrompt prompt;
  prompt.Answer(u"cancel");
  prompt.Answer(u"42");
  EXPECT_EQ(prompt.MsgBox(u"继续？", vbOKCancel, u""), vbCancel);
  EXPECT_EQ(prompt.InputBox(u"数", u"", u""), u"42");
  EXPECT_EQ(prompt.MsgBox(u"好", vbOKOnly, u""), vbOK);
  EXPECT_EQ(prompt.InputBox(u"数", u"", u""), std::nullopt);
  EXPECT_EQ(prompt.Shown().size(), 4u);
}

TEST(RunOptions, WordsJoinAndActionsKeepTheirOrder) {
  EXPECT_EQ(ParseRunOptions({"dot", "--doc", "a.docx", "test"}).commandLine, "dot test");
  RunOptions o =
      ParseRunOptions({"factoring", "--set", "optKD_1=1", "--doc", "a.docx", "--click", "cmdOK",
                       "--set", "txt=a=b", "--answer", "no", "--config", "c.db"});
  EXPECT_EQ(o.doc, "a.docx");
  EXPECT_EQ(o.config, "c.db");
  EXPECT_EQ(o.answers, std::vector<std::string>{"no"});
  ASSERT_EQ(o.actions.size(), 3u);
  EXPECT_EQ(o.actions[0].name, "optKD_1");
  EXPECT_EQ(o.actions[1].kind, ControlAction::kClick);
  EXPECT_EQ(o.actions[2].value, "a=b");
  EXPECT_EQ(ParseRunOptions({" dot"}).commandLine, " dot");
  EXPECT_FALSE(ParseRunOptions({"test"}).Driven());
  EXPECT_THROW(ParseRunOptions({"--set", "=1"}), UsageError);
  EXPECT_THROW(ParseRunOptions({"factoring", "--click"}), UsageError);
}

// What the command line refuses, with a one-line reason, before anything runs.
TEST(RunOptions, MistakesAreRefusedAndHelpIsAnOption) {
  EXPECT_TRUE(ParseRunOptions({"--help"}).help);
  EXPECT_TRUE(ParseRunOptions({"gs", "-h", "--selct"}).help);
  const std::vector<std::vector<std::string>> refused = {
      {"gs", "--selct", "x"},           // misspelt option
      {"test", "--doc", "typo.dcox"},   // no Word document
      {"test", "--click", "cmdOK"},     // a command without a dialog
      {"mhgs", "--set", "a=1"},         // likewise
      {"nonsense", "--grab", "x.png"},  // an unknown word has none either
  };
  for (const auto& args : refused) {
    try {
      ParseRunOptions(args);
      ADD_FAILURE() << args[1];
    } catch (const UsageError& e) {
      EXPECT_EQ(std::string(e.what()).find('\n'), std::string::npos);
    }
  }
  EXPECT_NO_THROW(
      ParseRunOptions({"gs", "--doc", "A.DOCX", "--set", "txtGS=x", "--click", "cmdOK"}));
  EXPECT_NE(UsageText().find("factoring"), std::string::npos);
}

}  // namespace
}  // namespace lp
