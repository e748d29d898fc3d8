#include "batch/doc_conversion.h"

#include <cstdlib>
#include <memory>
#include <mutex>
#include <random>

namespace lp::batch {
namespace fs = std::filesystem;
namespace {

std::string Quoted(const fs::path& path) {
  std::string out = "'";
  for (char c : path.string()) out += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return out + "'";
}

struct Workspace {
  ~Workspace() {
    std::error_code error;
    fs::remove_all(folder, error);
  }
  std::mutex mutex;
  fs::path folder;
};

Conversion Convert(Workspace& space, const fs::path& doc) {
  fs::path target = doc.parent_path() / doc.stem();
  target += ".docx";
  std::error_code error;
  if (fs::exists(target, error)) return {std::nullopt, u"同名的 .docx 文件已存在"};
  std::lock_guard<std::mutex> lock(space.mutex);
  const fs::path out = space.folder / "out";
  fs::remove_all(out, error);
  const std::string command = "soffice -env:UserInstallation=file://" +
                              (space.folder / "profile").string() +
                              " --headless --convert-to docx --outdir " + Quoted(out) + " " +
                              Quoted(doc) + " >/dev/null 2>&1";
  fs::path made = out / doc.stem();
  made += ".docx";
  if (std::system(command.c_str()) != 0 || !fs::exists(made, error))
    return {std::nullopt, u"LibreOffice 无法转换此文件"};
  // Complete beside the target before it takes the name.
  fs::path temp = target;
  temp += ".lptmp";
  fs::copy_file(made, temp, fs::copy_options::overwrite_existing, error);
  if (!error) fs::rename(temp, target, error);
  if (error) {
    fs::remove(temp, error);
    return {std::nullopt, u"无法写入转换后的 .docx 文件"};
  }
  return {target, {}};
}

}  // namespace

DocConverter SofficeConverter() {
  if (std::system("command -v soffice >/dev/null 2>&1") != 0) return {};
  auto space = std::make_shared<Workspace>();
  std::random_device random;
  space->folder = fs::temp_directory_path() / ("lumenpad_soffice_" + std::to_string(random()));
  return [space](const fs::path& doc) { return Convert(*space, doc); };
}

}  // namespace lp::batch
