#pragma once
// A .docx document in a temporary folder with a session over it, and the
// runs of its saved document.xml as plain values to compare.

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "runtime/recording_prompt.h"
#include "word/docx/docx_application.h"
#include "session/session.h"

namespace lp::testing {

// One w:r of the body: its kind, text and formatting.
struct SavedRun {
  std::string kind;  // "t" text, "code" field code, "begin"/"end" field marks
  std::u16string text;
  std::string font;    // w:rFonts w:ascii
  int halfPoints = 0;  // w:sz
  std::string color;   // w:color
};

// A piece of text typed with its own formatting.
struct Piece {
  std::u16string text;
  std::u16string font = u"Times New Roman";
  float size = 12;
  long color = 0;
};

class DocxSession {
 public:
  DocxSession();
  ~DocxSession();

  word::docx::DocxApplication& App() { return *app_; }
  word::Selection& Selection() { return app_->Selection(); }
  Session& Run() { return *session_; }
  RecordingPrompt prompt;

  // Types the pieces at the caret and selects them; with withMark the
  // paragraph mark behind them is selected too.
  void TypeSelected(const std::vector<Piece>& pieces, bool withMark = false);
  // Saves the document and reads back its body's runs, and their code or text.
  std::vector<SavedRun> SavedRuns();
  // The field code of the saved document, its runs joined.
  std::u16string SavedCode();
  // The saved run whose text or code is exactly text.
  SavedRun RunOf(const std::u16string& text);
  std::string DocumentXml();
  // The last field ends its paragraph, and the paragraph "next" follows.
  bool FieldEndsItsParagraph();
  // The document saved again under another name, for rendering.
  std::filesystem::path Path() const { return path_; }
  // Reopens the file as the next run would.
  void Reopen();

 private:
  std::filesystem::path folder_, path_;
  std::unique_ptr<word::docx::DocxApplication> app_;
  std::unique_ptr<Session> session_;
};

}  // namespace lp::testing
