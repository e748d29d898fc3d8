#pragma once
// The command-line edge of the .docx back end: a file becomes Word's
// Application with one open document, and is saved back when a command
// changed it.

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "word/api.h"
#include "word/docx/document_file.h"
#include "word/docx/docx_error.h"

namespace word::docx {

class DocxDocument;

// Turns TeX into the XML of one OMML <m:oMath> element; nullopt if it can't.
using TexConverter = std::function<std::optional<std::string>(const std::u16string& tex)>;

class DocxApplication : public word::Application {
 public:
  explicit DocxApplication(std::unique_ptr<DocxDocument> document);
  ~DocxApplication() override;

  bool Visible() const override { return true; }
  void SetVisible(bool) override {}
  Text Version() const override { return u"14.0"; }
  word::Documents& Documents() override;
  word::Document& ActiveDocument() override;
  word::Selection& Selection() override;
  void SetScreenUpdating(bool) override {}
  // "MTCommand_TeXToggle" turns each $...$ of the selection into an equation
  // when a converter is set; any other name raises ComError as Word does.
  void Run(const Text& macroName) override;
  word::AddIns& AddIns() override;
  word::CommandBars& CommandBars() override;
  word::KeyBindings& KeyBindings() override;
  void SetCustomizationContext(Template& context) override;
  long BuildKeyCode(long key1, long key2, long key3, long key4) override;
  Text FindKeyCommand(long keyCode) override;
  word::Options& Options() override;
  word::AutoCorrect& AutoCorrect() override;
  word::NormalTemplate& NormalTemplate() override;

  void SetTexConverter(TexConverter converter) { texConverter_ = std::move(converter); }
  // The file that keeps toolbar captions, options and key bindings between
  // runs (see app_state.h); without one they last for the run.
  void SetStateFile(const std::filesystem::path& file);
  // Stores the caret in the file and saves it atomically if anything changed.
  bool SaveIfChanged();
  DocxDocument& Document() { return *document_; }
  // Keeps other runs on the document waiting until this one ends.
  void Hold(std::unique_ptr<DocumentLock> lock) { lock_ = std::move(lock); }

 private:
  void TexToggle();

  std::unique_ptr<DocumentLock> lock_;
  std::unique_ptr<DocxDocument> document_;
  TexConverter texConverter_;
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

// Opens the file, or a new A4 document for it when it does not exist yet.
// Throws DocxFileError (a Chinese message) for a damaged, encrypted or
// non-.docx file; the file is left as it was.
std::unique_ptr<DocxApplication> OpenDocx(const std::filesystem::path& file);
// An existing .docx file as a document; throws DocxFileError as OpenDocx does.
std::unique_ptr<DocxDocument> LoadDocx(const std::filesystem::path& file);

// OpenDocx for a run that may change the document: waits for other runs on
// it, then refuses (DocxFileError) a file that cannot be written or is held
// open elsewhere, and a document protected against editing.
std::unique_ptr<DocxApplication> OpenDocxForEditing(const std::filesystem::path& file);

// Replaces the range with an equation given as OMML (an m:oMath element).
// Throws ComError if the XML is not an equation.
void InsertOmml(word::Range& where, const std::string& ommlXml);

}  // namespace word::docx
