#include "inserts_fixture.h"

#include <fstream>
#include <iterator>
#include <random>

#include <pugixml.hpp>

#include "runtime/utf8.h"
#include "word/docx/package.h"

namespace lp::testing {

DocxSession::DocxSession() {
  std::random_device random;
  folder_ = std::filesystem::temp_directory_path() / ("lp_inserts_" + std::to_string(random()));
  std::filesystem::create_directories(folder_);
  path_ = folder_ / "inserts.docx";
  Reopen();
}

DocxSession::~DocxSession() {
  std::error_code error;
  std::filesystem::remove_all(folder_, error);
}

void DocxSession::Reopen() {
  if (app_) app_->SaveIfChanged();
  session_.reset();
  app_ = word::docx::OpenDocx(path_);
  app_->SetStateFile(folder_ / "word_state.xml");
  session_ = std::make_unique<Session>(*app_, prompt);
  session_->databasePath = (folder_ / "config.db").string();
  session_->EndRun = [] {};
}

void DocxSession::TypeSelected(const std::vector<Piece>& pieces, bool withMark) {
  word::Selection& selection = Selection();
  const long start = selection.Start();
  for (const Piece& piece : pieces) {
    const long from = selection.Start();
    selection.TypeText(piece.text);
    auto typed = app_->ActiveDocument().Range(from, selection.Start());
    typed->Font().SetName(piece.font);
    typed->Font().SetSize(piece.size);
    typed->Font().SetColor(piece.color);
  }
  const long end = selection.Start();
  if (withMark) {
    selection.TypeParagraph();
    selection.TypeText(u"next");
  }
  app_->ActiveDocument().Range(start, end + (withMark ? 1 : 0))->Select();
}

std::string DocxSession::DocumentXml() {
  app_->ActiveDocument().Save();
  std::ifstream in(path_, std::ios::binary);
  std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  return word::docx::Package::FromBytes(bytes).Read("word/document.xml").value_or("");
}

bool DocxSession::FieldEndsItsParagraph() {
  const std::string xml = DocumentXml();
  const size_t end = xml.rfind("fldCharType=\"end\"");
  const size_t paragraphEnd = xml.find("</w:p>", end);
  const size_t next = xml.find(">next<");
  return end != std::string::npos && paragraphEnd < next && next != std::string::npos &&
         xml.find("<w:t", end) > paragraphEnd;
}

std::vector<SavedRun> DocxSession::SavedRuns() {
  pugi::xml_document xml;
  xml.load_string(DocumentXml().c_str());
  std::vector<SavedRun> runs;
  for (pugi::xpath_node found : xml.select_nodes("//w:body//w:r")) {
    pugi::xml_node r = found.node();
    SavedRun run;
    pugi::xml_node rPr = r.child("w:rPr");
    run.font = rPr.child("w:rFonts").attribute("w:ascii").value();
    run.halfPoints = rPr.child("w:sz").attribute("w:val").as_int();
    run.color = rPr.child("w:color").attribute("w:val").value();
    if (pugi::xml_node mark = r.child("w:fldChar")) {
      run.kind = mark.attribute("w:fldCharType").value();
    } else if (pugi::xml_node code = r.child("w:instrText")) {
      run.kind = "code";
      run.text = FromUtf8(code.text().get());
    } else if (pugi::xml_node t = r.child("w:t")) {
      run.kind = "t";
      run.text = FromUtf8(t.text().get());
    }
    runs.push_back(run);
  }
  return runs;
}

std::u16string DocxSession::SavedCode() {
  std::u16string code;
  for (const SavedRun& run : SavedRuns())
    if (run.kind == "code") code += run.text;
  return code;
}

SavedRun DocxSession::RunOf(const std::u16string& text) {
  for (const SavedRun& run : SavedRuns())
    if (run.text == text) return run;
  return {};
}

}  // namespace lp::testing
