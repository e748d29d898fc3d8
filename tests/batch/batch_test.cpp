// The batch runner's rules that the corpus run does not reach: the file
// walk, the checks before a run, the order of operations, and the edge cases
// of blank paragraphs and replacement across runs.

#include <unistd.h>

#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "batch/batch_choice.h"
#include "batch/batch_run.h"
#include "batch/document_operations.h"
#include "batch/file_walk.h"
#include "word/docx/batch_edits.h"
#include "word/docx/document_file.h"
#include "word/docx/docx_application.h"
#include "word/docx/new_document.h"
#include "word/docx/package.h"
#include "word/fake/fake_word.h"

namespace lp::batch {
namespace {

namespace fs = std::filesystem;

struct TempFolder {
  TempFolder() : path(fs::temp_directory_path() / ("lp_batch_test_" + std::to_string(::getpid()))) {
    fs::remove_all(path);
    fs::create_directories(path);
  }
  ~TempFolder() { fs::remove_all(path); }
  void Touch(const std::string& rel) {
    fs::create_directories((path / rel).parent_path());
    std::ofstream(path / rel) << "x";
  }
  fs::path path;
};

TEST(FileWalk, FourCharacterFilterFilesBeforeSubFoldersDepthFirst) {
  TempFolder t;
  for (const char* f : {"b.doc", "a.doc", "c.docx", "sub2/e.doc", "sub1/deep/f.doc", "sub1/d.doc",
                        "x.DOC", "a.doc_bak 12.doc"})
    t.Touch(f);
  std::vector<std::string> names;
  for (const fs::path& p : BuildFileList(t.path, u"*.doc", true))
    names.push_back(fs::relative(p, t.path).generic_string());
  EXPECT_EQ(names, (std::vector<std::string>{"a.doc", "a.doc_bak 12.doc", "b.doc", "sub1/d.doc",
                                             "sub1/deep/f.doc", "sub2/e.doc"}));
  EXPECT_EQ(BuildFileList(t.path, u"*.doc", false).size(), 3u);
  EXPECT_EQ(BuildFileList(t.path, u"docx", true).size(), 1u);
  EXPECT_TRUE(BuildFileList(t.path / "none", u"*.doc", true).empty());
}

TEST(FileWalk, BackupNamesAndRenames) {
  EXPECT_EQ(BackupName("/d/a.docx", 7), fs::path("/d/a.docx_bak 7.doc"));
  TempFolder t;
  t.Touch("甲校试卷一.docx");
  t.Touch("乙校试卷二.docx");
  t.Touch("试卷一.docx");
  FileList files = BuildFileList(t.path, u"docx", false);
  EXPECT_EQ(DelFileName(files, u"甲校，乙校"), 1);  // 试卷一 is taken
  EXPECT_TRUE(fs::exists(t.path / "甲校试卷一.docx"));
  EXPECT_TRUE(fs::exists(t.path / "试卷二.docx"));
  files = BuildFileList(t.path, u"docx", false);
  EXPECT_EQ(ChangeFileName(files, u"试卷", u"练习"), 3);
  EXPECT_TRUE(fs::exists(t.path / "练习二.docx"));
}

TEST(BatchChoice, RefusalsAndPredicates) {
  struct Row {
    const char* name;
    std::function<void(BatchChoice&)> set;
    std::u16string message;
  };
  const Row rows[] = {
      {"no folder", [](BatchChoice&) {}, u"您还没有指定word文档所在的目录"},
      {"nothing chosen", [](BatchChoice& c) { c.folder = u"d"; }, u"您还没有选择任何操作"},
      {"file name words", [](BatchChoice& c) { c.folder = u"d", c.fileName = true; },
       u"请指定要从文件名中删除的关键字"},
      {"info words, active document", [](BatchChoice& c) { c.activeDocument = c.fileInfo = true; },
       u"请指定要从文件信息中删除的关键字"},
      {"tab 1 empty", [](BatchChoice& c) { c.tab = 1; },
       u"您还没有指定需要修改的项目和内容。请检查！"},
      {"tab 1 scale", [](BatchChoice& c) { c.tab = 1, c.folder = u"d", c.scale[1] = true; }, u""},
  };
  for (const Row& row : rows) {
    BatchChoice c;
    row.set(c);
    EXPECT_EQ(RefusalOf(c).value_or(u""), row.message) << row.name;
  }
  BatchChoice c;
  c.fileName = true;
  EXPECT_TRUE(AnyDeleteChosen(c));
  EXPECT_FALSE(AnyDocumentWork(c));  // renaming alone opens no document
  c.tab = 1;
  c.align[1] = true;
  EXPECT_TRUE(AnyDocumentWork(c));
}

TEST(DocumentOperations, OrderOfEachTab) {
  word::fake::FakeWord fake;
  word::Document& doc = fake.ActiveDocument();
  doc.SetBuiltInDocumentProperty(u"Author", u"甲校张老师");
  BatchChoice c;
  c.blankLine = c.pageHeader = c.linkInShape = c.linkInText = c.fileInfo = true;
  c.fileInfoWords = u"甲校, 张";
  RunOperations(doc, c);
  EXPECT_EQ(doc.BuiltInDocumentProperty(u"Author"), u"老师");
  c.tab = 1;
  c.align = {true, true};
  c.change[4] = u"旧";
  c.change[5] = u"新";
  c.scale = {true, true};
  c.eqToOmml = true;
  RunOperations(doc, c);
  std::vector<std::string> calls;
  for (const std::string& line : fake.Calls())
    if (line.find("BuiltIn") == std::string::npos) calls.push_back(line.substr(line.find('.') + 1));
  EXPECT_EQ(calls,
            (std::vector<std::string>{
                "DeleteBlankParagraphs()", "DeleteHeadersFooters()", "DeleteShapeHyperlinks()",
                "DeleteTextHyperlinks()", "ConvertEqFields()", "AlignFormulas(True)",
                "ReplaceAllText(\"旧\",\"新\")", "ScaleFormulas(0.75)", "ScalePictures(0.8)"}));
}

// Word's own EQ fields (integrals, sums, displacements, enclosed
// characters besides lumenpad's constructs) all become equations; a field
// that stays is named after the closing caption.
TEST(DocumentOperations, EveryWordWrittenEqFieldConverts) {
  const fs::path corpus = LP_CORPUS_DIR "/eq";
  if (!fs::exists(corpus)) GTEST_SKIP() << "shared test material missing";
  TempFolder t;
  BatchChoice c;
  c.tab = 1;
  c.eqToOmml = true;
  int files = 0;
  for (const auto& entry : fs::directory_iterator(corpus)) {
    const fs::path copy = t.path / entry.path().filename();
    fs::copy_file(entry.path(), copy);
    auto app = word::docx::OpenDocx(copy);
    EXPECT_EQ(RunOperations(app->ActiveDocument(), c), std::vector<std::u16string>())
        << entry.path().filename();
    ++files;
  }
  EXPECT_EQ(files, 5);
  BatchSummary s;
  s.withLeftFields.push_back(
      {t.path / "eq.docx", FileResult::kDone, {}, {}, {u"EQ \\o\\ac(○,我们)", u"EQ \\i(a)"}});
  EXPECT_EQ(LeftFieldsLine(s),
            u"未能转为Word公式的EQ域2个：eq.docx（EQ \\o\\ac(○,我们)；EQ \\i(a)）。");
  EXPECT_EQ(LeftFieldsLine(BatchSummary()), u"");
}

// A new document whose header, footer and footnotes each hold one EQ field.
fs::path WithFieldsOutsideTheBody(const fs::path& file, const std::string& footerCode) {
  const std::string w = R"(xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main")";
  auto field = [](const std::string& code) {
    return "<w:p><w:r><w:t>甲</w:t></w:r><w:r><w:fldChar w:fldCharType=\"begin\"/></w:r><w:r>"
           "<w:instrText xml:space=\"preserve\">" +
           code + "</w:instrText></w:r><w:r><w:fldChar w:fldCharType=\"end\"/></w:r></w:p>";
  };
  word::docx::Package p = word::docx::NewDocumentPackage();
  p.Write("word/header1.xml", "<w:hdr " + w + ">" + field("EQ \\F(1,2)") + "</w:hdr>");
  p.Write("word/footer1.xml", "<w:ftr " + w + ">" + field(footerCode) + "</w:ftr>");
  p.Write("word/footnotes.xml", "<w:footnotes " + w + "><w:footnote w:id=\"1\">" +
                                    field("EQ \\R(3,x)") + "</w:footnote></w:footnotes>");
  std::string rels = *p.Read("word/_rels/document.xml.rels");
  const std::string kind = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
  rels.insert(rels.rfind("</Relationships>"), "<Relationship Id=\"rId7\" Type=\"" + kind +
                                                  "header\" Target=\"header1.xml\"/>"
                                                  "<Relationship Id=\"rId8\" Type=\"" +
                                                  kind +
                                                  "footer\" Target=\"footer1.xml\"/>"
                                                  "<Relationship Id=\"rId9\" Type=\"" +
                                                  kind + "footnotes\" Target=\"footnotes.xml\"/>");
  p.Write("word/_rels/document.xml.rels", rels);
  p.SaveTo(file);
  return file;
}

// Fields outside the body convert as those in it do; what cannot convert
// there is listed and its part left byte for byte.
TEST(DocumentOperations, EqFieldsOfHeadersFootersAndNotesConvertToo) {
  TempFolder t;
  const fs::path file = WithFieldsOutsideTheBody(t.path / "notes.docx", "EQ \\F(1");
  const std::string footer =
      *word::docx::Package::FromBytes(*word::docx::ReadWholeFile(file)).Read("word/footer1.xml");
  auto app = word::docx::OpenDocx(file);
  BatchChoice c;
  c.tab = 1;
  c.eqToOmml = true;
  EXPECT_EQ(RunOperations(app->ActiveDocument(), c), std::vector<std::u16string>{u"EQ \\F(1"});
  app->ActiveDocument().Save();
  const word::docx::Package saved =
      word::docx::Package::FromBytes(*word::docx::ReadWholeFile(file));
  for (const char* part : {"word/header1.xml", "word/footnotes.xml"}) {
    const std::string xml = *saved.Read(part);
    EXPECT_EQ(xml.find("fldChar"), std::string::npos) << part;
    EXPECT_NE(xml.find("xmlns:m="), std::string::npos) << part;
    EXPECT_NE(xml.find("<w:t>甲</w:t></w:r><m:oMath>"), std::string::npos) << part;
  }
  EXPECT_EQ(saved.Read("word/footer1.xml"), footer);
}

pugi::xml_document Parse(const char* body) {
  pugi::xml_document doc;
  doc.load_string((std::string("<w:body xmlns:w=\"w\">") + body + "</w:body>").c_str());
  return doc;
}

std::string Xml(pugi::xml_document& doc) {
  std::ostringstream out;
  doc.child("w:body").print(out, "", pugi::format_raw);
  return out.str();
}

TEST(DocxBatchEdits, BlankParagraphsThatMustStay) {
  pugi::xml_document doc = Parse(
      "<w:p/><w:p><w:r><w:t>　 </w:t></w:r></w:p><w:p><w:r><w:t>a</w:t></w:r></w:p>"
      "<w:tbl><w:tr><w:tc><w:p/></w:tc></w:tr></w:tbl><w:p/><w:tbl/>"
      "<w:p><w:bookmarkStart/></w:p><w:p><w:r><w:drawing/></w:r></w:p>"
      "<w:p><w:pPr><w:sectPr/></w:pPr></w:p><w:p/>");
  EXPECT_EQ(word::docx::RemoveBlankParagraphs(doc), 2);
  EXPECT_EQ(Xml(doc),
            "<w:body xmlns:w=\"w\"><w:p><w:r><w:t>a</w:t></w:r></w:p>"
            "<w:tbl><w:tr><w:tc><w:p/></w:tc></w:tr></w:tbl><w:p/><w:tbl/>"
            "<w:p><w:bookmarkStart/></w:p><w:p><w:r><w:drawing/></w:r></w:p>"
            "<w:p><w:pPr><w:sectPr/></w:pPr></w:p><w:p/></w:body>");
}

TEST(DocxBatchEdits, ReplacementAcrossRunsKeepsEachRunsFormat) {
  pugi::xml_document doc = Parse(
      "<w:p><w:r><w:rPr><w:b/></w:rPr><w:t>甲校</w:t></w:r><w:r><w:t>期中甲</w:t></w:r>"
      "<w:r><w:t>校试</w:t></w:r><w:r><w:tab/></w:r><w:r><w:t>甲校</w:t></w:r></w:p>");
  EXPECT_EQ(word::docx::ReplaceParagraphText(doc, "甲校", "乙中学"), 3);
  EXPECT_EQ(Xml(doc),
            "<w:body xmlns:w=\"w\"><w:p><w:r><w:rPr><w:b/></w:rPr><w:t "
            "xml:space=\"preserve\">乙中学</w:t></w:r>"
            "<w:r><w:t xml:space=\"preserve\">期中乙中学</w:t></w:r><w:r><w:t "
            "xml:space=\"preserve\">试</w:t></w:r><w:r><w:tab/></w:r><w:r><w:t "
            "xml:space=\"preserve\">乙中学</w:t></w:r></w:p></w:body>");
}

}  // namespace
}  // namespace lp::batch
