#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <unistd.h>

#include <gtest/gtest.h>

#include "runtime/recording_prompt.h"
#include "runtime/utf8.h"
#include "session/document_init.h"
#include "session/files.h"
#include "word/fake/fake_word.h"

namespace {

using word::fake::CallDiff;

// A run of Document_Init against the fake Word, with ProgramFiles pointing
// at an empty folder unless a test puts a STARTUP file there.
class DocumentInitTest : public ::testing::Test {
 protected:
  DocumentInitTest() {
    programFiles_ =
        std::filesystem::temp_directory_path() / ("lp_programfiles_" + std::to_string(::getpid()));
    std::filesystem::create_directories(programFiles_);
    ::setenv("ProgramFiles", (programFiles_.string() + "/").c_str(), 1);
    session_.programFolder = u"/opt/lumenpad";
    word_.ClearCalls();
  }
  ~DocumentInitTest() override {
    std::filesystem::remove_all(programFiles_);
    ::unsetenv("ProgramFiles");
  }

  bool Init() {
    return lp::Document_Init(session_, connector_, [this] { ++configRuns_; });
  }
  std::u16string TemplatePath() const {
    return u"/opt/lumenpad" + std::u16string(1, lp::kPathSeparator) + u"流明画板.dot";
  }
  std::string TemplateArg() const { return "\"" + lp::ToUtf8(TemplatePath()) + "\""; }

  word::fake::FakeWord word_;
  word::fake::FakeConnector connector_{word_};
  lp::RecordingPrompt prompt_;
  lp::Session session_{prompt_};
  std::filesystem::path programFiles_;
  int configRuns_ = 0;
};

TEST_F(DocumentInitTest, StartsWordWhenNoneRuns) {
  connector_.running = false;
  ASSERT_TRUE(Init());
  EXPECT_EQ(
      CallDiff(word_.Calls(), {"CreateObject(\"Word.Application\")", "Application.Visible=True",
                               "Documents.Add(" + TemplateArg() + ")"}),
      "");
  EXPECT_EQ(session_.WordApp, &word_);
  EXPECT_EQ(session_.TemplateAttached, -1);
  EXPECT_EQ(session_.ShapeCounter, 0);
  EXPECT_EQ(session_.ShapeNames, std::vector<std::u16string>{u""});
  EXPECT_TRUE(prompt_.Shown().empty());
  EXPECT_EQ(configRuns_, 1);
}

TEST_F(DocumentInitTest, EndsTheRunWhenWordCannotBeStartedOrTheTemplateFails) {
  connector_.running = false;
  connector_.canStart = false;
  EXPECT_FALSE(Init());
  ASSERT_EQ(prompt_.Shown().size(), 1u);
  EXPECT_EQ(prompt_.Shown()[0].prompt, u"ActiveX 部件不能创建对象\r\nDocument_init-->line 0");
  EXPECT_EQ(prompt_.Shown()[0].title, u"错误号: 429");
  EXPECT_EQ(session_.WordApp, nullptr);

  connector_.canStart = true;
  word_.FailOn("Documents.Add", 5151, "Word was unable to read this document.");
  prompt_.Clear();
  EXPECT_FALSE(Init());
  ASSERT_EQ(prompt_.Shown().size(), 1u);
  EXPECT_EQ(prompt_.Shown()[0].title, u"错误号: 5151");
  EXPECT_EQ(session_.TemplateAttached, -1);
  EXPECT_EQ(configRuns_, 0);
}

TEST_F(DocumentInitTest, LeavesWordAloneWhenTheTemplateIsAttached) {
  word_.ActiveDocument().SetAttachedTemplate(u"C:\\Office\\STARTUP\\流明画板.dot");
  word_.Set("Application.Visible", 0.0);
  word_.ClearCalls();
  ASSERT_TRUE(Init());
  EXPECT_EQ(CallDiff(word_.Calls(), {"Application.Visible=True"}), "");
  EXPECT_EQ(session_.TemplateAttached, 0);
  EXPECT_EQ(configRuns_, 1);
}

TEST_F(DocumentInitTest, InstallsTheTemplateWhenWordHasItNowhere) {
  struct Row {
    const char* name;
    const char16_t* version;
  };
  // Word 10's startup path is always empty, so its files are sought at the root.
  for (Row row : {Row{"word 11", u"11.0"}, Row{"word 10", u"10.0"}}) {
    SCOPED_TRACE(row.name);
    word_.Set("Application.Version", row.version);
    word_.ActiveDocument().SetAttachedTemplate(u"C:\\Office\\Normal.dot");
    word_.ClearCalls();
    session_.TemplateAttached = 0;
    ASSERT_TRUE(Init());
    EXPECT_EQ(CallDiff(word_.Calls(), {"AddIns.Add(" + TemplateArg() + ",True)",
                                       "ActiveDocument.AttachedTemplate=" + TemplateArg()}),
              "");
    EXPECT_EQ(session_.TemplateAttached, -1);
  }
}

TEST_F(DocumentInitTest, InstallsNothingFromAStartupFolder) {
  session_.programFolder = u"C:\\Office\\StartUp\\lumenpad";
  ASSERT_TRUE(Init());
  EXPECT_TRUE(word_.Calls().empty());

  // Word's own STARTUP folder already holds the program.
  session_.programFolder = u"/opt/lumenpad";
  std::ofstream(programFiles_ / "\\Microsoft Office\\OFFICE11\\STARTUP\\lumenpad.exe");
  ASSERT_TRUE(Init());
  EXPECT_TRUE(word_.Calls().empty());
  EXPECT_EQ(session_.TemplateAttached, 0);
}

TEST_F(DocumentInitTest, ReportsAWordWithoutDocumentAndGoesOn) {
  word_.ActiveDocument().Close(false);
  word_.ClearCalls();
  ASSERT_TRUE(Init());
  ASSERT_EQ(prompt_.Shown().size(), 1u);
  EXPECT_EQ(prompt_.Shown()[0].prompt,
            u"该命令无效，因为没有打开的文档。\r\nDocument_Init-->line 0");
  EXPECT_EQ(prompt_.Shown()[0].title, u"错误号: 4248");
  EXPECT_EQ(configRuns_, 1);
}

TEST(GetStartupPath, NamesTheFolderOfEachVersion) {
  ::setenv("ProgramFiles", "C:\\Program Files", 1);
  struct Row {
    int16_t version;
    const char16_t* folder;  // below ProgramFiles, "" for none
  };
  const Row rows[] = {
      {8, u"\\Microsoft Office\\OFFICE8\\STARTUP"},
      {9, u"\\Microsoft Office\\OFFICE9\\STARTUP"},
      {10, u""},  // named "XP", sought as "xp"
      {11, u"\\Microsoft Office\\OFFICE11\\STARTUP"},
      {12, u"\\Microsoft Office\\OFFICE12\\STARTUP"},
      {13, u""},
      {14, u"\\Microsoft Office\\OFFICE14\\STARTUP"},
      {15, u""},
      {18, u"\\Microsoft Office\\OFFICE8\\STARTUP"},  // the digit 8 comes first
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.version);
    std::u16string folder = row.folder;
    EXPECT_EQ(lp::GetStartupPath(row.version),
              folder.empty() ? u"" : u"C:\\Program Files" + folder);
  }
  ::unsetenv("ProgramFiles");
}

TEST(Files, FileExistsAndTempDir) {
  EXPECT_FALSE(lp::FileExists(u""));
  std::u16string temp = lp::GetTempDir();
  ASSERT_FALSE(temp.empty());
  EXPECT_EQ(temp.back(), lp::kPathSeparator);
  EXPECT_FALSE(lp::FileExists(temp));  // a folder is no file
  std::u16string file = temp + u"lp_文件_test.txt";
  std::ofstream(lp::PathOf(file)) << "x";
  EXPECT_TRUE(lp::FileExists(file));
  std::filesystem::remove(lp::PathOf(file));
  EXPECT_FALSE(lp::FileExists(file));
}

}  // namespace
