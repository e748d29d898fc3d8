#include "batch/batch_run.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <fstream>
#include <mutex>
#include <thread>

#include "runtime/convert.h"
#include "runtime/text.h"
#include "runtime/utf8.h"

namespace lp::batch {
namespace fs = std::filesystem;
namespace {

std::u16string Why(const std::exception& e) {
  return FromUtf8(e.what());
}

// Open, work, save, close. A document the work fails on is closed unsaved,
// so that its file stays as it was. The codes of the EQ fields left.
std::vector<std::u16string> WorkOn(BatchRun& run, const fs::path& file) {
  word::Document& doc = run.app.Documents().Open(PathText(file), run.visible);
  std::vector<std::u16string> left;
  try {
    left = run.work(doc);
    doc.Save();
  } catch (...) {
    doc.Close(false);
    throw;
  }
  doc.Close(false);
  return left;
}

FileOutcome ProcessFile(BatchRun& run, const fs::path& file) {
  FileOutcome out{file, FileResult::kDone, {}, {}, {}};
  try {
    if (IsOldWordFile(file) && run.convert) {
      Conversion c = run.convert(file);
      if (!c.docx) return {file, FileResult::kSkipped, c.why, {}, {}};
      out.made = *c.docx;
      out.result = FileResult::kConverted;
      out.leftFields = WorkOn(run, *c.docx);
      return out;
    }
    out.leftFields = WorkOn(run, file);
  } catch (const std::exception& e) {
    return {file, FileResult::kFailed, Why(e), out.made, {}};
  }
  return out;
}

void Count(BatchSummary& s, const FileOutcome& o) {
  ++s.walked;
  if (!o.made.empty()) s.made.push_back(o.made);
  if (o.result == FileResult::kConverted) ++s.converted;
  if (o.result == FileResult::kSkipped) s.skipped.push_back(o);
  if (o.result == FileResult::kFailed) s.failed.push_back(o);
  if (!o.leftFields.empty()) s.withLeftFields.push_back(o);
}

// One thread: Word's objects live in the caller's apartment.
BatchSummary RunInline(BatchRun& run, const FileList& files) {
  BatchSummary s;
  const int total = static_cast<int>(files.size());
  for (const fs::path& file : files) {
    run.app.SetScreenUpdating(false);
    FileOutcome o = ProcessFile(run, file);
    run.app.SetScreenUpdating(true);
    Count(s, o);
    if (run.progress && !run.progress(s.walked, total, o) && s.walked < total) {
      s.cancelled = true;
      break;
    }
  }
  return s;
}

// Workers take the next file as they finish one; the calling thread reports
// each outcome and, on cancel, lets the files in hand finish.
BatchSummary RunParallel(BatchRun& run, const FileList& files, unsigned threads) {
  std::atomic<size_t> next{0};
  std::atomic<bool> stop{false};
  std::mutex mutex;
  std::condition_variable ready;
  std::deque<FileOutcome> outcomes;
  unsigned finished = 0;
  auto worker = [&] {
    for (size_t i; !stop && (i = next++) < files.size();) {
      FileOutcome o = ProcessFile(run, files[i]);
      std::lock_guard<std::mutex> lock(mutex);
      outcomes.push_back(std::move(o));
      ready.notify_one();
    }
    std::lock_guard<std::mutex> lock(mutex);
    ++finished;
    ready.notify_one();
  };
  std::vector<std::thread> pool;
  for (unsigned t = 0; t < threads; ++t) pool.emplace_back(worker);
  BatchSummary s;
  const int total = static_cast<int>(files.size());
  for (;;) {
    std::unique_lock<std::mutex> lock(mutex);
    ready.wait(lock, [&] { return !outcomes.empty() || finished == threads; });
    if (outcomes.empty()) break;
    FileOutcome o = std::move(outcomes.front());
    outcomes.pop_front();
    lock.unlock();
    Count(s, o);
    if (run.progress && !run.progress(s.walked, total, o) && s.walked < total) {
      s.cancelled = true;
      stop = true;
    }
  }
  for (std::thread& t : pool) t.join();
  return s;
}

}  // namespace

bool IsOldWordFile(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  char magic[4] = {};
  return in.read(magic, 4) && std::string(magic, 4) == "\xD0\xCF\x11\xE0";
}

BatchSummary RunFiles(BatchRun& run, const FileList& files) {
  const unsigned threads = std::min<unsigned>(run.app.Documents().IndependentOpens(),
                                              static_cast<unsigned>(files.size()));
  return threads > 1 ? RunParallel(run, files, threads) : RunInline(run, files);
}

std::u16string ClosingCaption(const BatchSummary& s) {
  return u"全部文件处理完毕！本次共处理了" + Trim(Str(s.walked)) + u"个word文档。";
}

std::u16string SummaryLine(const BatchSummary& s) {
  std::u16string line = u"其中转换 .doc 文件" + Trim(Str(s.converted)) + u"个，跳过" +
                        Trim(Str(static_cast<double>(s.skipped.size()))) + u"个，失败" +
                        Trim(Str(static_cast<double>(s.failed.size()))) + u"个";
  if (s.cancelled) line += u"（已取消）";
  std::u16string names;
  for (const auto* list : {&s.skipped, &s.failed})
    for (const FileOutcome& o : *list)
      names +=
          (names.empty() ? u"：" : u"、") + PathText(o.file.filename()) + u"（" + o.why + u"）";
  return line + names + u"。";
}

std::u16string LeftFieldsLine(const BatchSummary& s) {
  if (s.withLeftFields.empty()) return {};
  size_t count = 0;
  std::u16string names;
  for (const FileOutcome& o : s.withLeftFields) {
    count += o.leftFields.size();
    std::u16string codes;
    for (const std::u16string& code : o.leftFields) codes += (codes.empty() ? u"" : u"；") + code;
    names += (names.empty() ? u"：" : u"、") + PathText(o.file.filename()) + u"（" + codes + u"）";
  }
  return u"未能转为Word公式的EQ域" + Trim(Str(static_cast<double>(count))) + u"个" + names + u"。";
}

}  // namespace lp::batch
