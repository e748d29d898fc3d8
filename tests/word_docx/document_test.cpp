#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "../shared_material.h"
#include "docx_test_util.h"
#include "word/docx/docx_application.h"
#include "word/docx/docx_document.h"
#include "word/docx/selection.h"

namespace word::docx {
namespace {

using testing::ReadFile;
using testing::ReadPart;
using testing::TempDir;

TEST(DocxFile, CaretPersistsBetweenRunsAndUnchangedFilesAreNotWritten) {
  TempDir dir;
  const auto file = dir / "sheet.docx";
  {
    auto app = OpenDocx(file);
    app->Selection().TypeText(u"第一题");
    app->Selection().TypeParagraph();
    app->Selection().TypeText(u"x=");
    app->Selection().MoveLeft(wdCharacter, 1, wdMove);
    EXPECT_TRUE(app->SaveIfChanged());
  }
  const std::string saved = ReadFile(file);
  {
    auto app = OpenDocx(file);
    EXPECT_EQ(app->Selection().Start(), 5);
    EXPECT_EQ(app->ActiveDocument().Bookmarks().Exists(u"_lpCaret"), false);
    EXPECT_FALSE(app->SaveIfChanged());
  }
  EXPECT_EQ(ReadFile(file), saved);
  {
    auto app = OpenDocx(file);
    app->Selection().TypeText(u"1");
    EXPECT_TRUE(app->SaveIfChanged());
  }
  {
    auto app = OpenDocx(file);
    EXPECT_EQ(app->ActiveDocument().Content()->Text(), u"第一题\rx1=\r");
    EXPECT_EQ(app->Selection().Start(), 6);
    app->Selection().MoveLeft(wdStory, 1, wdMove);
    app->Selection().MoveRight(wdCharacter, 2, wdExtend);
    EXPECT_TRUE(app->SaveIfChanged());
  }
  // The next run continues behind the selection: nobody can click it away.
  auto app = OpenDocx(file);
  EXPECT_EQ(app->Selection().Text(), u"");
  EXPECT_EQ(app->Selection().Start(), 2);
}

TEST(DocxFile, FileWithoutStoredCaretHasItAtTheEndOfTheLastParagraph) {
  LP_SKIP_WITHOUT_SHARED(LP_CORPUS_DIR);
  auto app = OpenDocx(testing::Corpus("docx/poi/Bug54849.docx"));
  auto& doc = app->ActiveDocument();
  EXPECT_EQ(app->Selection().Start(), doc.Content()->End() - 1);
}

TEST(DocxFile, RefusedFilesRaiseTheTypedErrorAndStayUntouched) {
  TempDir dir;
  struct Row {
    const char* name;
    std::string bytes;
  };
  const Row rows[] = {
      {"text", "hello, not a zip"},
      {"empty", ""},
      {"old binary", std::string("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8) + std::string(600, '\0')},
  };
  for (const Row& r : rows) {
    const auto file = dir / (std::string(r.name) + ".docx");
    std::ofstream(file, std::ios::binary) << r.bytes;
    try {
      auto app = OpenDocx(file);
      ADD_FAILURE() << r.name << " opened";
    } catch (const DocxFileError& e) {
      EXPECT_FALSE(std::string(e.what()).empty());
    }
    EXPECT_EQ(ReadFile(file), r.bytes) << r.name;
  }
}

// In a child process whose files may not grow past `limit` bytes, a stand-in
// for a full disk: types text no zip packs small and saves. Exits 0 when
// the save failed and left the folder as it found it.
[[noreturn]] void SaveOntoFullDisk(const std::filesystem::path& file, rlim_t limit) {
  const std::string before = ReadFile(file);
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit files{limit, limit};
  setrlimit(RLIMIT_FSIZE, &files);
  bool saved = false;
  try {
    auto app = OpenDocx(file);
    std::u16string noise;
    for (unsigned i = 0, x = 1; i < 6000; ++i) {
      x = x * 1103515245u + 12345u;
      noise += static_cast<char16_t>(0x4E00 + (x >> 16) % 5000);
    }
    app->Selection().TypeText(noise);
    saved = app->SaveIfChanged();
  } catch (const std::exception&) {
  }
  const bool alone = std::distance(std::filesystem::directory_iterator(file.parent_path()),
                                   std::filesystem::directory_iterator()) == 1;
  const bool same = ReadFile(file) == before;
  std::fprintf(stderr, "saved %d, nothing beside %d, unchanged %d\n", saved, alone, same);
  std::exit(!saved && alone && same ? 0 : 1);
}

TEST(DocxFile, FailedSaveLeavesTheFileAsItWas) {
  TempDir dir;
  const auto file = dir / "exam.docx";
  {
    auto app = OpenDocx(file);
    app->Selection().TypeText(u"第一题 解方程 x+1=2");
    ASSERT_TRUE(app->SaveIfChanged());
  }
  const auto size = static_cast<rlim_t>(std::filesystem::file_size(file));
  // Below the file's own size the copy fails; above it, the new package.
  EXPECT_EXIT(SaveOntoFullDisk(file, size / 2), ::testing::ExitedWithCode(0), "");
  EXPECT_EXIT(SaveOntoFullDisk(file, size + 512), ::testing::ExitedWithCode(0), "");
}

TEST(DocxFile, CaretPositionOnThePageAndItsPage) {
  TempDir dir;
  auto app = OpenDocx(dir / "page.docx");
  auto& sel = app->Selection();
  auto& doc = app->ActiveDocument();
  EXPECT_NEAR(sel.Information(wdHorizontalPositionRelativeToPage), 90, 0.1);
  EXPECT_NEAR(sel.Information(wdVerticalPositionRelativeToPage), 72, 0.1);
  for (int i = 0; i < 120; ++i) {
    sel.TypeText(u"第" + std::u16string(1, u'0' + i % 10) + u"行");
    sel.TypeParagraph();
  }
  double y = sel.Information(wdVerticalPositionRelativeToPage);
  EXPECT_GT(y, 72);
  EXPECT_LT(y, doc.PageSetup().PageHeight() - doc.PageSetup().BottomMargin());
  auto page = doc.Bookmarks().Item(u"\\Page");
  EXPECT_GT(page->Start(), 0);  // the caret is on a later page
  EXPECT_EQ(page->End(), doc.Content()->End());
}

// A new document has Word's grid of 15.6-point lines: a line of the body
// size takes one pitch, a heading of 16 points two.
TEST(DocxFile, LinesTakeWholePitchesOfTheGrid) {
  TempDir dir;
  auto app = OpenDocx(dir / "grid.docx");
  auto& sel = app->Selection();
  sel.TypeText(u"正文");
  sel.TypeParagraph();
  EXPECT_NEAR(sel.Information(wdVerticalPositionRelativeToPage), 72 + 15.6, 0.1);
  sel.Font().SetSize(16);
  sel.TypeText(u"标题");
  sel.TypeParagraph();
  sel.Font().SetSize(10.5f);
  sel.TypeText(u"正文");
  EXPECT_NEAR(sel.Information(wdVerticalPositionRelativeToPage), 72 + 3 * 15.6, 0.1);
}

TEST(DocxFile, RunRaisesForUnknownMacrosAndTurnsTexIntoEquations) {
  TempDir dir;
  auto app = OpenDocx(dir / "tex.docx");
  EXPECT_THROW(app->Run(u"MTCommand_TeXToggle"), ComError);
  app->SetTexConverter([](const std::u16string& tex) -> std::optional<std::string> {
    if (tex != u"x^2") return std::nullopt;
    return std::string(
        "<m:oMath><m:sSup><m:e><m:r><m:t>x</m:t></m:r></m:e><m:sup><m:r>"
        "<m:t>2</m:t></m:r></m:sup></m:sSup></m:oMath>");
  });
  auto& sel = app->Selection();
  sel.TypeText(u"设 $x^2$ 为");
  app->ActiveDocument().Content()->Select();
  app->Run(u"MTCommand_TeXToggle");
  EXPECT_EQ(app->ActiveDocument().Content()->Text(), u"设 \x01 为\r");
  EXPECT_THROW(app->Run(u"NoSuchMacro"), ComError);
  app->ActiveDocument().Save();
  std::string xml = ReadPart(dir / "tex.docx", "word/document.xml");
  EXPECT_NE(xml.find("</w:r><m:oMath><m:sSup>"), std::string::npos);
}

TEST(DocxFile, BuiltInPropertiesAreReadAndWritten) {
  TempDir dir;
  {
    auto app = OpenDocx(dir / "p.docx");
    app->ActiveDocument().SetBuiltInDocumentProperty(u"Title", u"期中试卷");
    app->SaveIfChanged();
  }
  auto app = OpenDocx(dir / "p.docx");
  EXPECT_EQ(app->ActiveDocument().BuiltInDocumentProperty(u"Title"), u"期中试卷");
}

}  // namespace
}  // namespace word::docx

namespace word::docx {
namespace {

TEST(DocxFile, TextBoxStoriesHaveTheirOwnPositions) {
  LP_SKIP_WITHOUT_SHARED(LP_CORPUS_DIR);
  TempDir dir;
  const auto file = dir / "box.docx";
  std::filesystem::copy_file(testing::Corpus("docx/shapes/aspose-Various shapes.docx"), file);
  {
    auto app = OpenDocx(file);
    DocxDocument& doc = app->Document();
    pugi::xml_node box = doc.DocumentXml().select_node("//w:txbxContent").node();
    auto story = doc.StoryRange(box);
    EXPECT_EQ(story->Start(), 0);
    EXPECT_EQ(story->Text(), u"Hello world!");
    story->Select();
    app->Selection().MoveLeft(wdCharacter, 1, wdMove);
    app->Selection().MoveRight(wdCharacter, 5, wdMove);
    app->Selection().TypeText(u",");
    app->ActiveDocument().Save();
  }
  auto app = OpenDocx(file);
  pugi::xml_node box = app->Document().DocumentXml().select_node("//w:txbxContent").node();
  EXPECT_EQ(app->Document().StoryRange(box)->Text(), u"Hello, world!");
}

}  // namespace
}  // namespace word::docx
