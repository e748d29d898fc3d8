#include "app/back_end.h"

#include "app/program_folder.h"
#include "formula/latex_to_omml.h"
#include "runtime/utf8.h"
#include "word/docx/docx_application.h"
#include "word/docx/docx_document.h"
#include "word/types.h"

#ifdef _WIN32
#include "word/com/com_word.h"
#include "word/errors.h"
#endif

namespace lp {
namespace {

// No Word to attach to or start on this system.
class NoWord : public BackEnd, public WordConnector {
 public:
  WordConnector& Connector() override { return *this; }
  void SaveIfChanged() override {}
  word::Application& GetObject() override { throw word::CannotCreateObject(); }
  word::Application& CreateObject() override { return GetObject(); }
};

// A .docx file: its application is the running Word, with the file open.
class DocxFile : public BackEnd, public WordConnector {
 public:
  DocxFile(const std::string& path, const std::string& statePath)
      : app_(word::docx::OpenDocxForEditing(std::filesystem::u8path(path))) {
    app_->SetStateFile(std::filesystem::u8path(statePath));
    // TeX typed for the formula tools becomes a native equation.
    app_->SetTexConverter([](const std::u16string& tex) { return LatexToOmml(tex); });
    // The program's own fonts lie beside it, as they are installed.
    app_->Document().SetFontFolder(std::filesystem::u8path(ProgramFolder()));
  }
  WordConnector& Connector() override { return *this; }
  void SaveIfChanged() override { app_->SaveIfChanged(); }
  word::Application& GetObject() override { return *app_; }
  word::Application& CreateObject() override { return *app_; }

 private:
  std::unique_ptr<word::docx::DocxApplication> app_;
};

#ifdef _WIN32
// Word itself, attached or started through COM; it keeps its own documents.
class ComWord : public BackEnd {
 public:
  ComWord() : connector_(word::com::MakeComConnector()) {}
  WordConnector& Connector() override { return *connector_; }
  void SaveIfChanged() override {}

 private:
  std::unique_ptr<WordConnector> connector_;
};
#endif

}  // namespace

std::unique_ptr<BackEnd> MakeBackEnd(const std::string& docPath, const std::string& statePath) {
#ifdef _WIN32
  if (docPath.empty()) return std::make_unique<ComWord>();
#endif
  if (docPath.empty()) return std::make_unique<NoWord>();
  return std::make_unique<DocxFile>(docPath, statePath);
}

}  // namespace lp
