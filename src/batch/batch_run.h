#pragma once
// The folder run: each file opened, worked on, saved and closed, on as many
// threads as the Word back end allows, with progress reported on the calling
// thread between two files.

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "batch/file_walk.h"
#include "word/application.h"

namespace lp::batch {

enum class FileResult { kDone, kConverted, kSkipped, kFailed };

struct FileOutcome {
  std::filesystem::path file;
  FileResult result = FileResult::kDone;
  std::u16string why;                      // for a skipped or failed file
  std::filesystem::path made;              // the .docx converted from an old file
  std::vector<std::u16string> leftFields;  // codes of the EQ fields left unconverted
};

struct BatchSummary {
  int walked = 0;  // files the run went through, whatever became of them
  int converted = 0;
  FileList made;  // the .docx files made from old files
  std::vector<FileOutcome> skipped, failed;
  std::vector<FileOutcome> withLeftFields;  // done, with EQ fields left as they were
  bool cancelled = false;
};

// Turns an old .doc file into a .docx beside it; the path of the new file, or
// nothing with the reason.
struct Conversion {
  std::optional<std::filesystem::path> docx;
  std::u16string why;
};
using DocConverter = std::function<Conversion(const std::filesystem::path& doc)>;

// Called after each file with its index (1-based, in the order files finish)
// and the total; returns false to stop before the next file.
using BatchProgress = std::function<bool(int done, int total, const FileOutcome&)>;

struct BatchRun {
  word::Application& app;
  // The work on one document; what it returns are the codes of the EQ
  // fields it left.
  std::function<std::vector<std::u16string>(word::Document&)> work;
  bool visible = true;
  DocConverter convert;  // empty: an old file the back end can't open fails
  BatchProgress progress;
};

BatchSummary RunFiles(BatchRun& run, const FileList& files);

// Whether the file is an old binary Word file (an OLE compound file).
bool IsOldWordFile(const std::filesystem::path& file);

// The closing caption and the line after it.
std::u16string ClosingCaption(const BatchSummary& s);
std::u16string SummaryLine(const BatchSummary& s);
// The EQ fields left unconverted, file by file; empty when there are none.
std::u16string LeftFieldsLine(const BatchSummary& s);

}  // namespace lp::batch
