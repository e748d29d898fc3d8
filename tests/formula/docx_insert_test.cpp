// gs on a real .docx through the document engine: the field code, its
// shrunk scripts, the font pass and the splitting at ";".
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "formula/commands.h"
#include "formula/eq_to_omml.h"
#include "formula/insert.h"
#include "formula/latex_to_omml.h"
#include "runtime/recording_prompt.h"
#include "runtime/utf8.h"
#include "word/docx/docx_application.h"
#include "word/docx/package.h"

namespace lp {
namespace {

std::string ReadBytes(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

class DocxGs : public ::testing::Test {
 protected:
  void SetUp() override {
    path = std::filesystem::temp_directory_path() /
           ("lp_formula_gs_" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
            ::testing::UnitTest::GetInstance()->current_test_info()->name() + ".docx");
    std::filesystem::remove(path);
    app = word::docx::OpenDocx(path);
    app->SetTexConverter([](const std::u16string& tex) { return LatexToOmml(tex); });
    session = std::make_unique<Session>(*app, prompt);
    session->config.EmbellishFormula = -1;
  }
  void TearDown() override { std::filesystem::remove(path); }

  void Gs(const std::u16string& text) {
    word::Selection& selection = app->Selection();
    long start = selection.Range()->Start();
    selection.TypeText(text);
    app->ActiveDocument().Range(start, start + static_cast<long>(text.size()))->Select();
    ASSERT_EQ(RunGs(*session, DriverControl::WithTimeout(std::chrono::seconds(1))),
              GsOutcome::kDone);
  }
  // Codes are read as Word reads them: shown.
  word::Fields& ShownFields() {
    app->ActiveDocument().Content()->Fields().ToggleShowCodes();
    return app->ActiveDocument().Fields();
  }

  std::filesystem::path path;
  std::unique_ptr<word::docx::DocxApplication> app;
  RecordingPrompt prompt;
  std::unique_ptr<Session> session;
};

TEST_F(DocxGs, FieldWithShrunkScriptAndFonts) {
  Gs(u"x^2/2");
  word::Fields& fields = ShownFields();
  ASSERT_EQ(fields.Count(), 1);
  auto code = fields.Item(1)->Code();
  EXPECT_EQ(code->Text(), u" EQ \\F(x\\S(2),2)");
  word::Characters& chars = code->Characters();
  auto x = chars.Item(8);
  auto script = chars.Item(12);
  auto plain = chars.Item(15);
  ASSERT_EQ(x->Text(), u"x");
  ASSERT_EQ(script->Text(), u"2");
  ASSERT_EQ(plain->Text(), u"2");
  EXPECT_EQ(script->Font().Size(), std::floor(0.7f * plain->Font().Size()));
  EXPECT_EQ(x->Font().Name(), u"Times New Roman");
  EXPECT_EQ(x->Font().Italic(), word::wdTrue);
  EXPECT_EQ(plain->Font().Italic(), word::wdFalse);
}

// What replaces the notation takes the format of its first character, as in
// Word: the formula of a 24-pt line is 24 pt, the one after a bold "AB " is not bold.
TEST_F(DocxGs, FieldTakesTheFormatOfTheNotationItReplaces) {
  word::Selection& selection = app->Selection();
  selection.Font().SetBold(word::wdTrue);
  selection.TypeText(u"AB ");
  selection.Font().SetBold(word::wdFalse);
  selection.Font().SetSize(24);
  Gs(u"x^2/2");
  word::Fields& fields = ShownFields();
  ASSERT_EQ(fields.Count(), 1);
  auto code = fields.Item(1)->Code();
  word::Characters& chars = code->Characters();
  EXPECT_EQ(chars.Item(8)->Font().Bold(), word::wdFalse);
  EXPECT_EQ(chars.Item(15)->Font().Size(), 24.0f);
  EXPECT_EQ(chars.Item(12)->Font().Size(), std::floor(0.7f * 24));
  app->ActiveDocument().Save();
  app.reset();
  std::string xml =
      word::docx::Package::FromBytes(ReadBytes(path)).Read("word/document.xml").value();
  EXPECT_NE(xml.find("<w:sz w:val=\"48\"/>"), std::string::npos);
  EXPECT_EQ(xml.find("<w:sz w:val=\"20\"/>"), std::string::npos) << "a 10-pt run was typed";
}

TEST_F(DocxGs, SemicolonSplitsIntoFieldsWithBlanks) {
  Gs(u"a;b");
  word::Fields& fields = ShownFields();
  ASSERT_EQ(fields.Count(), 2);
  EXPECT_EQ(fields.Item(1)->Code()->Text(), u" EQ a");
  EXPECT_EQ(fields.Item(2)->Code()->Text(), u" EQ b");
}

TEST_F(DocxGs, TexRouteLeavesNativeEquation) {
  session->config.blMathType = -1;
  Gs(u"(a+b)/2");
  EXPECT_EQ(app->ActiveDocument().Fields().Count(), 0);
  EXPECT_EQ(app->ActiveDocument().Content()->Text().find(u'$'), std::u16string::npos);
}

TEST_F(DocxGs, BracesBecomeNestedFieldsWithSymbolLetters) {
  app->Selection().TypeText(u"x{EQ \\F(1,@p)}y");
  auto label = app->ActiveDocument().Range(1, 14);
  ExpandSymbolFields(*session, *label);
  word::Fields& fields = ShownFields();
  ASSERT_EQ(fields.Count(), 2);
  EXPECT_EQ(fields.Item(1)->Code()->Text(), u"EQ \\F(1,\x13 SYMBOL 112 \\f \"symbol\"\x15)");
  EXPECT_EQ(fields.Item(2)->Code()->Text(), u" SYMBOL 112 \\f \"symbol\"");
}

// Every field gs writes for the worked examples and textbook formulas, a
// label with a nested SYMBOL field and the codes of the other tools becomes
// an equation in its place, the text around it kept; the document validates.
TEST_F(DocxGs, EqFieldsBecomeEquationsInTheirPlace) {
  std::ifstream corpus(LP_FORMULA_CORPUS);
  int written = 0;
  std::string line;
  for (int i = 0; i < 70 && std::getline(corpus, line); ++i) {
    app->Selection().TypeText(u"题" + FromUtf8(std::to_string(i)) + u"：");
    Gs(FromUtf8(line));
    app->Selection().MoveRight(word::wdCharacter, 1);
    app->Selection().TypeText(u"。");
    app->Selection().TypeParagraph();
    ++written;
  }
  for (const char16_t* code : {u"EQ \\o(\\s\\up 3(˙),3)", u"EQ \\o \\ac(\\S\\UP7(→),AB)"}) {
    InsertEqField(*session, code);
    app->Selection().MoveRight(word::wdCharacter, 1);
    app->Selection().TypeParagraph();
    ++written;
  }
  long start = app->Selection().Range()->Start();
  app->Selection().TypeText(u"x{EQ \\F(1,@p)}y");
  ExpandSymbolFields(*session, *app->ActiveDocument().Range(start + 1, start + 14));
  ++written;

  word::EqConversion done = app->ActiveDocument().ConvertEqFields(EqFieldToOmml);
  EXPECT_EQ(done.converted, written);
  EXPECT_TRUE(done.unconverted.empty()) << ToUtf8(done.unconverted.front());
  app->ActiveDocument().Save();
  const std::string xml =
      *word::docx::Package::FromBytes(ReadBytes(path)).Read("word/document.xml");
  EXPECT_EQ(xml.find("fldChar"), std::string::npos);
  EXPECT_NE(xml.find("<w:t>题0：</w:t></w:r><m:oMath>"), std::string::npos);
  EXPECT_NE(xml.find("</m:oMath><w:r><w:t>。</w:t>"), std::string::npos);
  EXPECT_NE(xml.find("π</m:t>"), std::string::npos);
  if (std::getenv("LP_KEEP_EQ_DOCX"))
    std::filesystem::copy_file(path, std::getenv("LP_KEEP_EQ_DOCX"),
                               std::filesystem::copy_options::overwrite_existing);
  const char* validate = LP_SHARED_DIR "/corpus/tools/validate_docx.sh";
  if (!std::filesystem::exists(validate) || std::system("xmllint --version >/dev/null 2>&1") != 0)
    GTEST_SKIP() << "no schemas or xmllint";
  EXPECT_EQ(std::system((std::string(validate) + " " + path.string() + " >/dev/null 2>&1").c_str()),
            0);
}

}  // namespace
}  // namespace lp
