#pragma once
// Files in and out of binary fields (the gallery keeps Word documents so).

#include <string>

#include "runtime/prompt.h"
#include "settings/database.h"

namespace lp {

// Appends the whole file to the field. On failure: a box with the error's
// description, icon 64, title "错误！文件上传到数据库不成功！", and false.
bool SaveFileToField(const std::string& path, Field field, Prompt& prompt);
// Writes the field's bytes to the file. On failure (an empty field
// included): a box titled "错误！文件下载到本地不成功！", and false.
bool LoadFieldToFile(Field field, const std::string& path, Prompt& prompt);

}  // namespace lp
