#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "../shared_material.h"
#include "docx_test_util.h"
#include "word/docx/docx_application.h"

namespace word::docx {
namespace {

using testing::Corpus;
using testing::ReadFile;
using testing::ReadPart;
using testing::TempDir;

const std::u16string kTemplate = u"/opt/流明 画板/流明画板.dot";

bool SettingsValidate(const std::filesystem::path& file) {
  if (std::system("xmllint --version >/dev/null 2>&1") != 0) return true;  // nothing to check with
  const std::string command = Corpus("tools/validate_docx.sh").string() + " '" + file.string() +
                              "' word/settings.xml >/dev/null 2>&1";
  return std::system(command.c_str()) == 0;
}

// What the settings store does when its "EmbedTrueTypeFonts" option is on,
// and the template the program attaches.
void StoreOptions(word::Document& doc) {
  doc.SetEmbedTrueTypeFonts(true);
  doc.SetSaveSubsetFonts(true);
  doc.SetDoNotEmbedSystemFonts(true);
  doc.SetAttachedTemplate(kTemplate);
}

bool Has(const std::string& xml, const std::string& text) {
  return xml.find(text) != std::string::npos;
}

TEST(DocxSettings, FontEmbeddingAndTemplateAreKeptInTheSettingsPart) {
  LP_SKIP_WITHOUT_SHARED(LP_CORPUS_DIR);
  TempDir dir;
  struct Row {
    const char* name;
    const char* source;  // nothing: a new document
    const char* inOrder;
  };
  const Row rows[] = {
      {"new", nullptr,
       "<w:zoom w:percent=\"100\"/><w:embedTrueTypeFonts/><w:saveSubsetFonts/>"
       "<w:bordersDoNotSurroundHeader/><w:bordersDoNotSurroundFooter/>"
       "<w:attachedTemplate r:id=\"rId1\"/><w:defaultTabStop"},
      {"corpus", "docx/poi/Bug54849.docx",
       "<w:removeDateAndTime/><w:embedTrueTypeFonts/><w:saveSubsetFonts/>"
       "<w:proofState w:spelling=\"clean\"/><w:attachedTemplate r:id=\"rId1\"/><w:defaultTabStop"},
      {"no settings part", "docx/poi/integration-stress012.docx",
       "<w:embedTrueTypeFonts/><w:saveSubsetFonts/><w:attachedTemplate r:id=\"rId1\"/>"},
  };
  for (const Row& r : rows) {
    const auto file = dir / (std::string(r.name) + ".docx");
    if (r.source) std::filesystem::copy_file(Corpus(r.source), file);
    {
      auto app = OpenDocx(file);
      StoreOptions(app->ActiveDocument());
      EXPECT_TRUE(app->SaveIfChanged()) << r.name;
    }
    EXPECT_TRUE(Has(ReadPart(file, "word/settings.xml"), r.inOrder)) << r.name;
    EXPECT_TRUE(Has(ReadPart(file, "word/_rels/settings.xml.rels"),
                    "Target=\"file:///opt/%E6%B5%81%E6%98%8E%20%E7%94%BB%E6%9D%BF/"
                    "%E6%B5%81%E6%98%8E%E7%94%BB%E6%9D%BF.dot\" TargetMode=\"External\""))
        << r.name;
    EXPECT_TRUE(SettingsValidate(file)) << r.name;
    const std::string saved = ReadFile(file);
    {
      auto app = OpenDocx(file);
      EXPECT_EQ(app->ActiveDocument().AttachedTemplate()->FullName(), kTemplate) << r.name;
      StoreOptions(app->ActiveDocument());
      EXPECT_FALSE(app->SaveIfChanged()) << r.name;
    }
    EXPECT_EQ(ReadFile(file), saved) << r.name;
  }
  const auto created = dir / "no settings part.docx";
  EXPECT_TRUE(Has(ReadPart(created, "[Content_Types].xml"), "PartName=\"/word/settings.xml\""));
  EXPECT_TRUE(Has(ReadPart(created, "word/_rels/document.xml.rels"), "Target=\"settings.xml\""));

  // System fonts are embedded only while embedding is on.
  const auto file = dir / "new.docx";
  {
    auto app = OpenDocx(file);
    app->ActiveDocument().SetDoNotEmbedSystemFonts(false);
    app->SaveIfChanged();
  }
  EXPECT_TRUE(Has(ReadPart(file, "word/settings.xml"),
                  "<w:embedTrueTypeFonts/><w:embedSystemFonts/><w:saveSubsetFonts/>"));
  {
    auto app = OpenDocx(file);
    app->ActiveDocument().SetEmbedTrueTypeFonts(false);
    app->SaveIfChanged();
  }
  EXPECT_FALSE(Has(ReadPart(file, "word/settings.xml"), "mbed"));

  // A template Word attached is read back as a path.
  auto app = OpenDocx(Corpus("docx/shapes/tika-testWORD_template.docx"));
  EXPECT_EQ(app->ActiveDocument().AttachedTemplate()->FullName(),
            u"C:\\Users\\tallison\\Idea Projects\\poi-trunk\\test-data\\document\\tika_2163.dotx");
}

}  // namespace
}  // namespace word::docx
