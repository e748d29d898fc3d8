#include <string>

#include "launcher/command_table.h"
#include "launcher/run_options.h"
#include "runtime/utf8.h"

namespace lp {

std::string UsageText() {
  std::string words;
  for (const CommandRow& row : kCommandTable)
    if (row.built && !row.word.empty() &&
        words.find(ToUtf8(std::u16string(row.word))) == std::string::npos)
      words += (words.empty() ? "" : " ") + ToUtf8(std::u16string(row.word));
  return "用法：lumenpad 命令 [--doc 文件.docx] [--select 文字] [--set 控件=值]... [--click "
         "控件]...\n"
         "              [--grab 图片.png]... [--answer ok|cancel|文字]... [--config 设置文件]\n"
         "      lumenpad --normalise|--eval|--eq|--latex 文字|-    lumenpad --jpeg 图片 输出.jpg\n"
         "\n"
         "命令：" +
         words +
         "\n"
         "\n"
         "选项：\n"
         "  --doc 文件       直接编辑这个 Word 文档（.docx），光标留在文件里，下一次接着写\n"
         "  --select 文字    先选中文档中第一处这段文字\n"
         "  --caret 文字     删去文档中第一处这段文字，光标留在那里\n"
         "  --select-shape 名称  选中名称以此开头的第一个图形；用逗号隔开几个名称可同时选中几个\n"
         "  --set 控件=值    在对话框的控件里填上值（无界面运行）\n"
         "  --click 控件     按下对话框的按钮\n"
         "  --grab 图片.png  把对话框存成图片\n"
         "  --answer 回答    依次回答提示框：ok、cancel 或输入的文字\n"
         "  --config 文件    使用这个设置文件（SQLite）\n"
         "  --help, -h       显示本说明\n"
         "\n"
         "退出状态：0 完成；2 选项有误、文档被拒绝或对话框没有该控件；3 公式没有按时完成；"
         "4 连接不上 Word\n";
}

}  // namespace lp
