#include "session/document_init.h"

#include "errorlog/error_log.h"
#include "runtime/convert.h"
#include "runtime/error.h"
#include "runtime/text.h"
#include "session/files.h"

namespace lp {

namespace {

constexpr char16_t kTemplateName[] = u"流明画板.dot";

// Document_Init runs with errors passing on to the next statement: a failed
// statement leaves its error standing, and only the explicit tests look at it.
class ResumeNext {
 public:
  template <class Statement>
  void operator()(Statement&& statement) {
    try {
      statement();
    } catch (const std::exception& e) {
      err_ = ErrOf(e);
    }
  }
  bool Failed() const { return err_.number != 0; }
  void Clear() { err_ = {}; }
  void Report(Prompt& prompt, const std::u16string& routine) const {
    ReportError(prompt, ErrorLabel(routine), err_.number, err_.description);
  }

 private:
  ErrInfo err_;
};

// What stands before the first "." of a version text such as "11.0", as an integer.
int16_t MajorVersion(const std::u16string& version) {
  std::u16string head = Trim(Left(version, InStr(version, u".") - 1));
  if (head.empty() || head.find_first_not_of(u"0123456789") != std::u16string::npos) {
    RaiseTypeMismatch();
  }
  return CInt(Val(head));
}

void MakeVisible(word::Application& app, ResumeNext& run) {
  bool visible = false;
  run([&] { visible = app.Visible(); });
  if (!visible) run([&] { app.SetVisible(true); });
}

// Word wasn't running: start it and open a document from the template.
bool StartWord(Session& s, WordConnector& connector, const std::u16string& templatePath,
               ResumeNext& run) {
  run([&] { s.WordApp = &connector.CreateObject(); });
  if (run.Failed()) {
    run.Report(s.prompt, u"Document_init");
    s.WordApp = nullptr;
    return false;
  }
  word::Application& app = *s.WordApp;
  MakeVisible(app, run);
  run([&] { app.Documents().Add(templatePath); });
  s.TemplateAttached = vbTrue;
  if (run.Failed()) {
    run.Report(s.prompt, u"Document_init");
    s.WordApp = nullptr;
    return false;
  }
  return true;
}

bool TemplateFoundInStartup(word::Application& app, ResumeNext& run) {
  int16_t version = 0;
  run([&] { version = MajorVersion(app.Version()); });
  std::u16string startup = GetStartupPath(version);
  return FileExists(startup + u"\\" + kTemplateName) || FileExists(startup + u"\\lumenpad.exe");
}

// Word was running: install the template unless the active document uses
// it, the program sits in a startup folder, or Word's STARTUP folder has it.
void EnsureTemplate(Session& s, const std::u16string& templatePath, ResumeNext& run) {
  word::Application& app = *s.WordApp;
  MakeVisible(app, run);
  std::u16string attached;
  run([&] { attached = app.ActiveDocument().AttachedTemplate()->FullName(); });
  if (InStrText(attached, u"流明画板") > 0) return;
  if (InStr(LCase(s.programFolder), u"startup") > 0) return;
  if (s.fileMode || TemplateFoundInStartup(app, run)) return;
  run([&] { app.AddIns().Add(templatePath, true); });
  s.TemplateAttached = vbTrue;
  run([&] { app.ActiveDocument().SetAttachedTemplate(templatePath); });
}

}  // namespace

bool Document_Init(Session& s, WordConnector& connector, const std::function<void()>& configWord) {
  std::u16string templatePath = s.programFolder;
  if (templatePath.empty() || templatePath.back() != kPathSeparator) {
    templatePath += kPathSeparator;
  }
  templatePath += kTemplateName;

  ResumeNext run;
  run([&] { s.WordApp = &connector.GetObject(); });
  if (run.Failed()) {
    run.Clear();
    if (!StartWord(s, connector, templatePath, run)) return false;
  } else {
    EnsureTemplate(s, templatePath, run);
  }
  s.ShapeCounter = 0;
  s.ShapeNames.assign(1, std::u16string());
  if (run.Failed()) run.Report(s.prompt, u"Document_Init");
  configWord();
  return true;
}

}  // namespace lp
