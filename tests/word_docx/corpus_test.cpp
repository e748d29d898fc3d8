// Real documents written by Word and others: a command that types at the end
// leaves every other part as it was, keeps all the text, and odd or broken
// packages are refused with the typed error, never a crash.
#include <gtest/gtest.h>

#include <filesystem>

#include "../shared_material.h"
#include "docx_test_util.h"
#include "word/docx/docx_application.h"
#include "word/docx/docx_document.h"
#include "word/docx/package.h"
#include "word/docx/xml_part.h"

namespace word::docx {
namespace {

namespace fs = std::filesystem;
using testing::ReadFile;

const char16_t* const kTyped = u"〔lumenpad〕";

std::vector<fs::path> Files(const std::string& folder) {
  std::vector<fs::path> files;
  for (const auto& e : fs::directory_iterator(testing::Corpus(folder))) files.push_back(e.path());
  std::sort(files.begin(), files.end());
  return files;
}

// All w:t text of the main part, in document order, read with pugixml alone.
std::string AllText(const std::string& xml) {
  pugi::xml_document doc;
  if (!ParseXml(xml, doc)) return "<unreadable>";
  std::string text;
  for (const pugi::xpath_node& t : doc.select_nodes("//w:t")) text += t.node().text().get();
  return text;
}

std::vector<std::string> EntryNames(const std::string& zipBytes) {
  std::vector<std::string> names;
  // Local file headers: "PK\3\4", name length at 26, name at 30.
  for (size_t at = zipBytes.find("PK\3\4"); at != std::string::npos && at + 30 < zipBytes.size();
       at = zipBytes.find("PK\3\4", at + 4)) {
    size_t n = static_cast<unsigned char>(zipBytes[at + 26]) |
               static_cast<unsigned char>(zipBytes[at + 27]) << 8;
    names.push_back(zipBytes.substr(at + 30, n));
  }
  std::sort(names.begin(), names.end());
  return names;
}

void RoundTrip(const fs::path& original, const fs::path& work) {
  SCOPED_TRACE(original.filename().string());
  fs::copy_file(original, work, fs::copy_options::overwrite_existing);
  std::unique_ptr<DocxApplication> app;
  try {
    app = OpenDocx(work);
  } catch (const DocxFileError&) {
    // Only a main part that is not well-formed XML may be refused.
    EXPECT_EQ(original.filename(), "unicode-path.docx");
    return;
  }
  app->Selection().TypeText(kTyped);
  ASSERT_TRUE(app->SaveIfChanged());
  const std::string mainPart = MainDocumentPart(Package::FromBytes(ReadFile(original)));
  Package before = Package::FromBytes(ReadFile(original));
  Package after = Package::FromBytes(ReadFile(work));
  const std::vector<std::string> names = EntryNames(ReadFile(original));
  EXPECT_EQ(names, EntryNames(ReadFile(work)));
  for (const std::string& name : names) {
    if (name == mainPart || name.back() == '/') continue;
    EXPECT_EQ(before.Read(name), after.Read(name)) << name;
  }
  std::string typed = testing::Utf8(kTyped);
  std::string text = AllText(*after.Read(mainPart));
  size_t at = text.find(typed);
  ASSERT_NE(at, std::string::npos);
  text.erase(at, typed.size());
  EXPECT_EQ(text, AllText(*before.Read(mainPart)));
}

TEST(Corpus, RoundTripKeepsEveryUntouchedPartAndAllText) {
  LP_SKIP_WITHOUT_SHARED(LP_CORPUS_DIR);
  testing::TempDir dir;
  for (const char* folder : {"docx/powertools", "docx/poi", "docx/shapes", "eq"})
    for (const fs::path& f : Files(folder)) RoundTrip(f, dir / "work.docx");
}

TEST(Corpus, OddPackagesOpenOrAreRefusedAndStayUntouched) {
  LP_SKIP_WITHOUT_SHARED(LP_CORPUS_DIR);
  testing::TempDir dir;
  for (const fs::path& f : Files("docx/robustness")) {
    SCOPED_TRACE(f.filename().string());
    const auto work = dir / "odd.docx";
    fs::copy_file(f, work, fs::copy_options::overwrite_existing);
    const std::string bytes = ReadFile(work);
    try {
      auto app = OpenDocx(work);
      app->Selection().TypeText(u"x");
      app->ActiveDocument().Content()->Text();
      app->SaveIfChanged();
      auto again = OpenDocx(work);
      EXPECT_NE(again->ActiveDocument().Content()->Text().find(u"x"), std::u16string::npos);
    } catch (const DocxFileError& e) {
      EXPECT_EQ(ReadFile(work), bytes);
      EXPECT_GT(std::string(e.what()).size(), 0u);
    }
  }
}

}  // namespace
}  // namespace word::docx
