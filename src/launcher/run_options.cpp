#include "launcher/run_options.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "launcher/command_table.h"
#include "runtime/text.h"
#include "runtime/utf8.h"

namespace lp {
namespace {

// The files the .docx engine edits: Word documents and templates in XML.
bool WordFileName(const std::string& path) {
  std::string ext = std::filesystem::u8path(path).extension().string();
  std::transform(ext.begin(), ext.end(), ext.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return ext == ".docx" || ext == ".docm" || ext == ".dotx" || ext == ".dotm";
}

void Check(const RunOptions& o) {
  if (!o.doc.empty() && !WordFileName(o.doc))
    throw UsageError("--doc 只接受 Word 文档（.docx、.docm、.dotx、.dotm）：" + o.doc);
  if (o.actions.empty()) return;
  const CommandRow& row = FindCommand(LCase(FromUtf8(o.commandLine)));
  if (!row.built || row.form.empty())
    throw UsageError("命令“" + o.commandLine + "”没有对话框，--set、--click 和 --grab 用不上");
}

}  // namespace

RunOptions ParseRunOptions(const std::vector<std::string>& args) {
  RunOptions o;
  std::vector<std::string> words;
  std::string unknown;  // the first option nobody knows; --help still wins
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    auto value = [&]() -> const std::string& {
      if (i + 1 >= args.size()) throw UsageError(a + " 后面缺少它的值");
      return args[++i];
    };
    if (a == "--help" || a == "-h") {
      o.help = true;
    } else if (a == "--doc") {
      o.doc = value();
    } else if (a == "--select") {
      o.select = value();
      o.haveSelect = true;
    } else if (a == "--caret") {
      o.select = value();
      o.haveSelect = o.caretOnly = true;
    } else if (a == "--select-shape") {
      o.selectShape = value();
      o.haveSelectShape = true;
    } else if (a == "--set") {
      const std::string& v = value();
      size_t eq = v.find('=');
      if (eq == std::string::npos || eq == 0)
        throw UsageError("--set 的写法是 控件名=值，而不是 " + v);
      o.actions.push_back({ControlAction::kSet, v.substr(0, eq), v.substr(eq + 1)});
    } else if (a == "--click") {
      o.actions.push_back({ControlAction::kClick, value(), {}});
    } else if (a == "--grab") {
      o.actions.push_back({ControlAction::kGrab, {}, value()});
    } else if (a == "--answer") {
      o.answers.push_back(value());
    } else if (a == "--config") {
      o.config = value();
    } else if (a.starts_with("--")) {
      if (unknown.empty()) unknown = a;
    } else {
      words.push_back(a);
    }
  }
  for (size_t k = 0; k < words.size(); ++k) o.commandLine += (k ? " " : "") + words[k];
  if (o.help) return o;
  if (!unknown.empty())
    throw UsageError("没有这个选项：" + unknown + "（lumenpad --help 列出全部选项）");
  Check(o);
  return o;
}

}  // namespace lp
