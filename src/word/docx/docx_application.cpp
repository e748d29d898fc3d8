#include "word/docx/docx_application.h"

#include <algorithm>
#include <iterator>
#include <mutex>
#include <thread>

#include "runtime/utf8.h"
#include "word/docx/app_state.h"
#include "word/docx/auto_text.h"
#include "word/docx/document_file.h"
#include "word/docx/docx_document.h"
#include "word/docx/new_document.h"
#include "word/docx/selection.h"
#include "word/errors.h"

namespace word::docx {
namespace {

// The document of the command line, and those a tool opens beside it. Open
// and Close may run on several threads at once, each on its own document.
class DocxDocuments : public word::Documents {
 public:
  long Count() const override {
    std::lock_guard<std::mutex> lock(mutex_);
    return 1 + static_cast<long>(opened_.size());
  }
  word::Document& Add(const Text&) override { throw OnlyOneDocument(); }
  word::Document& Open(const Text& path, bool) override {
    std::unique_ptr<DocxDocument> document;
    const std::filesystem::path file(lp::ToUtf8(path));
    std::error_code error;
    if (!std::filesystem::exists(file, error)) throw FileNotFound();
    try {
      document = LoadDocx(file);
    } catch (const DocxFileError& e) {
      throw CannotOpenFile(e.what());
    }
    document->SetOpenedBy([this](DocxDocument* closed) { Forget(closed); });
    std::lock_guard<std::mutex> lock(mutex_);
    opened_.push_back(std::move(document));
    return *opened_.back();
  }
  // Twice the cores: a save spends part of its time waiting for the disk to
  // hold the new bytes, and another document's work fills that wait.
  unsigned IndependentOpens() const override {
    return 2 * std::max(1u, std::thread::hardware_concurrency());
  }

 private:
  void Forget(DocxDocument* closed) {
    std::unique_ptr<DocxDocument> leaving;
    std::lock_guard<std::mutex> lock(mutex_);
    for (auto it = opened_.begin(); it != opened_.end(); ++it) {
      if (it->get() != closed) continue;
      leaving = std::move(*it);
      opened_.erase(it);
      break;
    }
  }

  mutable std::mutex mutex_;
  std::vector<std::unique_ptr<DocxDocument>> opened_;
};

class NoAddIns : public word::AddIns {
 public:
  void Add(const Text&, bool) override {}
};

class Bars : public word::CommandBars {
 public:
  explicit Bars(AppState& state) : state_(state) {}
  Text ControlCaption(const Text& bar, long index) const override {
    return state_.Caption(bar, index);
  }
  void SetControlCaption(const Text& bar, long index, const Text& caption) override {
    state_.SetCaption(bar, index, caption);
  }

 private:
  AppState& state_;
};

// Bindings land in the template of the customization context.
class Keys : public word::KeyBindings {
 public:
  explicit Keys(AppState& state) : state_(state) {}
  void Add(WdKeyCategory, const Text& command, long keyCode) override {
    state_.BindKey(context, keyCode, command);
  }
  Text context = u"Normal.dotm";

 private:
  AppState& state_;
};

class NoOptions : public word::Options {
 public:
  void SetAutoCreateNewDrawings(bool) override {}
  void SetAutoFormatMatchParentheses(bool) override {}
};

// Word's defaults until a run sets them.
class Corrections : public word::AutoCorrect {
 public:
  explicit Corrections(AppState& state) : state_(state) {}
  bool CorrectSentenceCaps() const override { return state_.Option("CorrectSentenceCaps", true); }
  void SetCorrectSentenceCaps(bool on) override { state_.SetOption("CorrectSentenceCaps", on); }
  bool ReplaceTextOn() const override { return state_.Option("ReplaceText", true); }
  void SetReplaceText(bool on) override { state_.SetOption("ReplaceText", on); }

 private:
  AppState& state_;
};

class Normal : public word::NormalTemplate {
 public:
  word::AutoTextEntries& AutoTextEntries() override { return *entries_; }

 private:
  std::unique_ptr<word::AutoTextEntries> entries_ = MakeAutoTextEntries();
};

}  // namespace

struct DocxApplication::Parts {
  AppState state;
  DocxDocuments documents;
  NoAddIns addIns;
  Bars bars{state};
  Keys keys{state};
  NoOptions options;
  Corrections autoCorrect{state};
  Normal normal;
};

DocxApplication::DocxApplication(std::unique_ptr<DocxDocument> document)
    : document_(std::move(document)), parts_(std::make_unique<Parts>()) {
  document_->SetAppState(parts_->state);
}

void DocxApplication::SetStateFile(const std::filesystem::path& file) {
  parts_->state.Open(file);
}

DocxApplication::~DocxApplication() = default;

word::Documents& DocxApplication::Documents() {
  return parts_->documents;
}
word::Document& DocxApplication::ActiveDocument() {
  return *document_;
}
word::Selection& DocxApplication::Selection() {
  return document_->Selection();
}
word::AddIns& DocxApplication::AddIns() {
  return parts_->addIns;
}
word::CommandBars& DocxApplication::CommandBars() {
  return parts_->bars;
}
word::KeyBindings& DocxApplication::KeyBindings() {
  return parts_->keys;
}
void DocxApplication::SetCustomizationContext(Template& context) {
  parts_->keys.context = context.FullName();
}

// The parts add up, as Word builds its codes; wdNoKey stands for no part.
long DocxApplication::BuildKeyCode(long key1, long key2, long key3, long key4) {
  long code = 0;
  for (long key : {key1, key2, key3, key4})
    if (key != wdNoKey) code += key;
  return code;
}

Text DocxApplication::FindKeyCommand(long keyCode) {
  return parts_->state.KeyCommand(parts_->keys.context, keyCode);
}

word::Options& DocxApplication::Options() {
  return parts_->options;
}
word::AutoCorrect& DocxApplication::AutoCorrect() {
  return parts_->autoCorrect;
}
word::NormalTemplate& DocxApplication::NormalTemplate() {
  return parts_->normal;
}

void DocxApplication::Run(const Text& macroName) {
  if (macroName == u"MTCommand_TeXToggle" && texConverter_) {
    TexToggle();
    return;
  }
  throw MacroNotFound();
}

// Each $...$ of the selection becomes the equation the converter makes of it,
// from the last, so that the earlier ones keep their positions.
void DocxApplication::TexToggle() {
  DocxSelection& selection = document_->Selection();
  Story& story = selection.CurrentStory();
  const long start = selection.Start();
  const Text text = story.Index().Text(start, selection.End(), true);
  std::vector<std::pair<size_t, size_t>> spans;
  for (size_t open = text.find(u'$'); open != Text::npos; open = text.find(u'$', open)) {
    size_t close = text.find(u'$', open + 1);
    if (close == Text::npos) break;
    spans.push_back({open, close});
    open = close + 1;
  }
  for (auto it = spans.rbegin(); it != spans.rend(); ++it) {
    auto omml = texConverter_(text.substr(it->first + 1, it->second - it->first - 1));
    if (!omml) continue;
    auto range = document_->Range(start + static_cast<long>(it->first),
                                  start + static_cast<long>(it->second) + 1);
    InsertOmml(*range, *omml);
  }
}

bool DocxApplication::SaveIfChanged() {
  return document_->SaveIfChanged();
}

std::unique_ptr<DocxDocument> LoadDocx(const std::filesystem::path& file) {
  std::error_code error;
  if (std::filesystem::is_directory(file, error))
    throw DocxFileError("这是一个文件夹，不是 .docx 文档。");
  std::optional<std::string> read = ReadWholeFile(file);
  if (!read) throw DocxFileError("无法读取文件。");
  std::string bytes = std::move(*read);
  if (bytes.empty()) throw DocxFileError("文件是空的，不是 .docx 文档。");
  if (bytes.compare(0, 4, "\xD0\xCF\x11\xE0") == 0) {
    bool encrypted = bytes.find(std::string("E\0n\0c\0r\0y\0p\0t\0e\0d\0P\0a\0c\0k\0a\0g\0e",
                                            31)) != std::string::npos;
    throw DocxFileError(encrypted ? "文件已加密，无法打开。请在 Word 中取消密码后再试。"
                                  : "这是旧版 Word（.doc）文件，请先在 Word 中另存为 .docx。");
  }
  if (bytes.compare(0, 2, "PK") != 0) throw DocxFileError("文件不是 .docx 文档。");
  return std::make_unique<DocxDocument>(Package::FromBytes(std::move(bytes)), file);
}

std::unique_ptr<DocxApplication> OpenDocx(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::exists(file, error)) {
    auto doc = std::make_unique<DocxDocument>(NewDocumentPackage(), file);
    doc->MarkChanged();  // the first save creates the file
    return std::make_unique<DocxApplication>(std::move(doc));
  }
  return std::make_unique<DocxApplication>(LoadDocx(file));
}

// Word's own words for an edit its protection forbids.
const char* const kProtected = "此修改不被允许，因为选定区域已被锁定。";

std::unique_ptr<DocxApplication> OpenDocxForEditing(const std::filesystem::path& file) {
  auto lock = std::make_unique<DocumentLock>(file);
  CheckWritable(ResolveLinks(file));
  std::unique_ptr<DocxApplication> app = OpenDocx(file);
  const std::string protection = app->Document().EnforcedProtection();
  // Protection for tracked changes allows editing: every edit is tracked anyway.
  if (!protection.empty() && protection != "trackedChanges")
    throw DocxFileError(std::string(kProtected) + "（文档受保护：" +
                        reinterpret_cast<const char*>(file.u8string().c_str()) + "）");
  app->Hold(std::move(lock));
  return app;
}

}  // namespace word::docx
