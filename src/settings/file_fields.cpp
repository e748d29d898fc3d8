#include "settings/file_fields.h"

#include <exception>
#include <fstream>
#include <iterator>
#include <vector>

#include "errorlog/error_log.h"
#include "runtime/error.h"

namespace lp {

bool SaveFileToField(const std::string& path, Field field, Prompt& prompt) {
  try {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw RuntimeError(kFileNotFound);
    std::vector<uint8_t> bytes((std::istreambuf_iterator<char>(in)),
                               std::istreambuf_iterator<char>());
    field.AppendChunk(bytes);
    return true;
  } catch (const std::exception& e) {
    prompt.MsgBox(ErrOf(e).description, vbInformation, u"错误！文件上传到数据库不成功！");
    return false;
  }
}

bool LoadFieldToFile(Field field, const std::string& path, Prompt& prompt) {
  try {
    DbValue chunk = field.GetChunk(field.ActualSize());
    auto* bytes = std::get_if<std::vector<uint8_t>>(&chunk);
    if (!bytes) throw RuntimeError(kInvalidUseOfNull);
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes->data()),
              static_cast<std::streamsize>(bytes->size()));
    out.close();
    if (!out) throw RuntimeError(kPathFileAccessError);
    return true;
  } catch (const std::exception& e) {
    prompt.MsgBox(ErrOf(e).description, vbInformation, u"错误！文件下载到本地不成功！");
    return false;
  }
}

}  // namespace lp
