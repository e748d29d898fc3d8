#include "batch/batch_dialog_run.h"

#include <algorithm>

#include "batch/doc_conversion.h"
#include "batch/document_operations.h"
#include "runtime/convert.h"
#include "runtime/text.h"

namespace lp::batch {
namespace {

BatchReport OnActiveDocument(word::Application& app, const BatchChoice& choice) {
  word::Document& doc = app.ActiveDocument();
  app.SetScreenUpdating(false);
  std::vector<std::u16string> left;
  try {
    left = RunOperations(doc, choice);
  } catch (...) {
    app.SetScreenUpdating(true);
    throw;
  }
  app.SetScreenUpdating(true);
  BatchSummary s;
  if (!left.empty())
    s.withLeftFields.push_back({PathOf(doc.FullName()), FileResult::kDone, {}, {}, left});
  return {u"批处理任务已经完成，请检查！", LeftFieldsLine(s)};
}

// Backups first: a file whose copy failed is not touched.
FileList WithBackups(const FileList& files, BatchSummary& failures) {
  const FileList failed = MakeBackups(files);
  FileList kept;
  for (const auto& file : files) {
    if (std::find(failed.begin(), failed.end(), file) == failed.end()) {
      kept.push_back(file);
    } else {
      failures.failed.push_back({file, FileResult::kFailed, u"无法备份，未处理", {}, {}});
    }
  }
  return kept;
}

void Rename(const BatchChoice& choice, const FileList& files) {
  if (choice.tab == 0 && choice.fileName) DelFileName(files, choice.fileNameWords);
  if (choice.tab == 1 && !choice.change[0].empty())
    ChangeFileName(files, choice.change[0], choice.change[1]);
}

BatchReport OnFolder(word::Application& app, const BatchChoice& choice, const BatchView& view) {
  FileList files =
      BuildFileList(PathOf(choice.folder), choice.filter, choice.subFolders, view.yield);
  BatchSummary notDone;
  if (choice.backup) files = WithBackups(files, notDone);
  BatchSummary s;
  if (AnyDocumentWork(choice)) {
    BatchRun run{app, [&](word::Document& doc) { return RunOperations(doc, choice); }, !choice.fast,
                 SofficeConverter(),
                 [&](int done, int total, const FileOutcome& o) {
                   if (view.caption)
                     view.caption(u"已完成" + Trim(Str(done)) + u"/" + Trim(Str(total)));
                   return !view.fileDone || view.fileDone(done, total, o);
                 }};
    s = RunFiles(run, files);
  } else {
    s.walked = static_cast<int>(files.size());
  }
  s.failed.insert(s.failed.begin(), notDone.failed.begin(), notDone.failed.end());
  FileList renamed = files;
  renamed.insert(renamed.end(), s.made.begin(), s.made.end());
  Rename(choice, renamed);
  const std::u16string left = LeftFieldsLine(s);
  return {ClosingCaption(s), SummaryLine(s) + (left.empty() ? u"" : u"\n" + left)};
}

}  // namespace

std::optional<BatchReport> StartBatch(word::Application& app, Prompt& prompt,
                                      const BatchChoice& choice, const BatchView& view) {
  if (auto refusal = RefusalOf(choice)) {
    prompt.MsgBox(*refusal);
    return std::nullopt;
  }
  BatchReport report =
      choice.activeDocument ? OnActiveDocument(app, choice) : OnFolder(app, choice, view);
  if (view.caption) view.caption(report.caption);
  return report;
}

}  // namespace lp::batch
