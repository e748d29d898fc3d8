// Runs one batch operation over every .docx of a folder tree through the
// .docx engine and the batch runner, for the corpus checks:
//   batch_tool OPERATION FOLDER [ARGUMENT...]
// OPERATION: blank | headers | textlinks | shapelinks | delinfo WORDS |
// changeinfo FROM TO | replace FROM TO | formulas FACTOR | pictures FACTOR |
// align | eq | tab0 | backup. Prints one line per file and the closing lines.

#include <cstdio>
#include <string>

#include "batch/batch_run.h"
#include "batch/document_operations.h"
#include "runtime/convert.h"
#include "runtime/utf8.h"
#include "word/docx/docx_application.h"

namespace {

using Work = std::function<std::vector<std::u16string>(word::Document&)>;

// An operation that leaves no fields behind.
Work Plain(std::function<void(word::Document&)> f) {
  return [f](word::Document& d) {
    f(d);
    return std::vector<std::u16string>();
  };
}

Work WorkFor(const std::string& op, const std::vector<std::u16string>& a) {
  using namespace lp::batch;
  if (op == "blank") return Plain(DelBlankLine);
  if (op == "headers") return Plain(DelPageHeaderFooter);
  if (op == "textlinks") return Plain(DelLinkInTxt);
  if (op == "shapelinks") return Plain(DelLinkInShape);
  if (op == "delinfo") return Plain([a](word::Document& d) { DelFileInfo(d, a.at(0)); });
  if (op == "changeinfo")
    return Plain([a](word::Document& d) { ChangeFileInfo(d, a.at(0), a.at(1)); });
  if (op == "replace")
    return Plain([a](word::Document& d) { ChangeFileContent(d, a.at(0), a.at(1)); });
  if (op == "formulas")
    return Plain([a](word::Document& d) { ScaleFormulas(d, lp::Val(a.at(0))); });
  if (op == "pictures")
    return Plain([a](word::Document& d) { ScalePictures(d, lp::Val(a.at(0))); });
  if (op == "align") return Plain([](word::Document& d) { AlignFormulas(d, true); });
  if (op == "eq") return EqFieldsToEquations;
  if (op == "tab0" || op == "backup") {
    BatchChoice c;
    c.blankLine = c.pageHeader = c.linkInShape = c.linkInText = c.fileInfo = true;
    c.fileInfoWords = u"a,e";
    return [c](word::Document& d) { return RunOperations(d, c); };
  }
  return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  const std::string op = argv[1];
  std::vector<std::u16string> args;
  for (int i = 3; i < argc; ++i) args.push_back(lp::FromUtf8(argv[i]));
  Work work = WorkFor(op, args);
  if (!work) return 2;
  const std::filesystem::path folder = argv[2];
  auto app = word::docx::OpenDocx(folder / "no-such-document.docx");
  lp::batch::FileList files = lp::batch::BuildFileList(folder, u"docx", true);
  if (op == "backup") lp::batch::MakeBackups(files);
  lp::batch::BatchRun run{*app, work, true, {}, {}};
  run.progress = [](int done, int total, const lp::batch::FileOutcome& o) {
    std::printf("%d/%d %s\n", done, total, o.file.string().c_str());
    return true;
  };
  lp::batch::BatchSummary s = lp::batch::RunFiles(run, files);
  std::printf("%s\n%s\n%s\n", lp::ToUtf8(lp::batch::ClosingCaption(s)).c_str(),
              lp::ToUtf8(lp::batch::SummaryLine(s)).c_str(),
              lp::ToUtf8(lp::batch::LeftFieldsLine(s)).c_str());
  return s.failed.empty() ? 0 : 1;
}
