// The teacher's file in file mode: typed text never lands in a tracked
// deletion, a tracked document records the edit as revisions, and saving
// keeps the file's mode, follows links and refuses what may not be edited.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "docx_test_util.h"
#include "word/docx/docx_application.h"
#include "word/docx/docx_document.h"
#include "word/docx/package.h"
#include "word/docx/xml_part.h"

namespace word::docx {
namespace {

namespace fs = std::filesystem;
using testing::ReadPart;
using testing::TempDir;

pugi::xml_document Body(const fs::path& file) {
  pugi::xml_document doc;
  ParseXml(ReadPart(file, "word/document.xml"), doc);
  return doc;
}

// A copy of a new document whose settings part gets `extra` (XML) added.
fs::path WithSettings(const TempDir& dir, const std::string& name, const std::string& extra) {
  const fs::path file = dir / name;
  {
    auto app = OpenDocx(file);
    app->Selection().TypeText(u"原来的句子");
    app->SaveIfChanged();
  }
  Package package = Package::FromBytes(testing::ReadFile(file));
  std::string settings = package.Read("word/settings.xml").value();
  settings.insert(settings.find("</w:settings>"), extra);
  package.Write("word/settings.xml", settings);
  package.SaveTo(file);
  return file;
}

TEST(FileSafety, TypedTextNeverLandsInATrackedDeletion) {
  TempDir dir;
  const fs::path file = dir / "deleted.docx";
  fs::copy_file(testing::Corpus("docx/powertools/RP042-Deleted-Para-Mark-at-End.docx"), file);
  fs::permissions(file, fs::perms::owner_write, fs::perm_options::add);
  {
    auto app = OpenDocx(file);
    app->Selection().TypeText(u"答案");
    // Typing before deleted text at a paragraph's start stays outside it too.
    auto start = app->ActiveDocument().Range(0, 0);
    start->InsertAfter(u"开头");
    app->SaveIfChanged();
  }
  pugi::xml_document doc = Body(file);
  EXPECT_TRUE(doc.select_nodes("//w:del//w:t | //w:moveFrom//w:t").empty());
  EXPECT_EQ(doc.select_nodes("//w:t[.='答案']").size(), 1u);
  EXPECT_EQ(doc.select_nodes("//w:t[.='开头']").size(), 1u);
}

TEST(FileSafety, ATrackedDocumentRecordsInsertionsAndReplacements) {
  TempDir dir;
  const fs::path file = WithSettings(dir, "tracked.docx", "<w:trackRevisions/>");
  {
    auto app = OpenDocx(file);
    app->Document().SetRevisionAuthor("王老师");
    auto word = app->ActiveDocument().Range(2, 4);  // "的句"
    word->SetText(u"题目");
    EXPECT_EQ(app->ActiveDocument().Content()->Text(), u"原来题目子\r");
    app->Selection().TypeText(u"。");
    app->SaveIfChanged();
  }
  pugi::xml_document doc = Body(file);
  EXPECT_EQ(std::string(doc.select_node("//w:del//w:delText").node().text().get()), "的句");
  EXPECT_EQ(std::string(doc.select_node("//w:ins[1]//w:t").node().text().get()), "题目");
  EXPECT_EQ(doc.select_nodes("//w:ins[@w:author='王老师']").size(), 2u);
  EXPECT_EQ(doc.select_nodes("//w:del[@w:author='王老师']").size(), 1u);
  std::set<std::string> ids;
  for (const auto& x : doc.select_nodes("//w:ins | //w:del"))
    EXPECT_TRUE(ids.insert(x.node().attribute("w:id").value()).second);
  EXPECT_FALSE(doc.select_node("//w:ins[1]").node().attribute("w:date").empty());
}

TEST(FileSafety, SavingKeepsTheModeAndFollowsLinks) {
  TempDir dir;
  const fs::path file = dir / "exam.docx";
  {
    auto app = OpenDocx(file);
    app->Selection().TypeText(u"一");
    app->SaveIfChanged();
  }
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink(file, dir / "link.docx");
  {
    auto app = OpenDocxForEditing(dir / "link.docx");
    app->Selection().TypeText(u"二");
    app->SaveIfChanged();
  }
  EXPECT_TRUE(fs::is_symlink(dir / "link.docx"));
  EXPECT_EQ(fs::status(file).permissions() & fs::perms::all,
            fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(OpenDocx(file)->ActiveDocument().Content()->Text(), u"一二\r");
}

TEST(FileSafety, WhatMayNotBeEditedIsRefusedBeforeAnyWork) {
  struct Case {
    const char* name;
    std::string settings;   // added to the settings part
    std::string ownerFile;  // made beside the document
    bool readOnly;
    const char* says;
  };
  const Case cases[] = {
      {"mode 444", "", "", true, "文档是只读的："},
      {"protected read-only", R"(<w:documentProtection w:edit="readOnly" w:enforcement="1"/>)", "",
       false, "此修改不被允许，因为选定区域已被锁定。"},
      {"protected forms", R"(<w:documentProtection w:edit="forms" w:enforcement="true"/>)", "",
       false, "此修改不被允许"},
      {"open in Word", "", "~$paper.docx", false, "文档正被另一个程序打开："},
      {"open in LibreOffice", "", ".~lock.paper.docx#", false, "文档正被另一个程序打开："},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    TempDir dir;
    const fs::path file = WithSettings(dir, "paper.docx", c.settings);
    if (!c.ownerFile.empty()) std::ofstream(dir / c.ownerFile) << "someone";
    if (c.readOnly) fs::permissions(file, fs::perms::owner_read | fs::perms::group_read);
    const std::string before = testing::ReadFile(file);
    try {
      OpenDocxForEditing(file);
      ADD_FAILURE() << "opened";
    } catch (const DocxFileError& e) {
      EXPECT_NE(std::string(e.what()).find(c.says), std::string::npos) << e.what();
    }
    EXPECT_EQ(testing::ReadFile(file), before);
  }
  // Editing protected for tracked changes is editing, tracked.
  TempDir dir;
  const fs::path file = WithSettings(
      dir, "t.docx", R"(<w:documentProtection w:edit="trackedChanges" w:enforcement="1"/>)");
  auto app = OpenDocxForEditing(file);
  app->Selection().TypeText(u"新");
  app->SaveIfChanged();
  EXPECT_EQ(Body(file).select_nodes("//w:ins//w:t").size(), 1u);
}

}  // namespace
}  // namespace word::docx
