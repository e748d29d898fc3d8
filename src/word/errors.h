#pragma once
// Word's errors, each by its number and with the text a Chinese Word shows,
// one factory each, so that every back end raises them alike.

#include <string>

#include "word/types.h"

namespace word {

enum WordError : long {
  kInvalidArgument = 5,
  kTypeMismatch = 13,
  kObjectNotSet = 91,
  kObjectRequired = 424,
  kCannotCreateObject = 429,
  kNotSupported = 438,
  kCommandFailed = 4198,
  kNoDocumentOpen = 4248,
  kCommandNotValid = 4605,
  kFileNotFound = 5174,
  kObjectDeleted = 5825,
  kWrapNotSettable = 5843,
  kObjectNotAvailable = 5852,
  kItemNotFound = 5941,
  kMemberNotFound = -2147352573,  // DISP_E_MEMBERNOTFOUND: Run of an unknown macro
  kShapeArgument = -2147024809,   // E_INVALIDARG: the shapes' own refusals
};

inline ComError InvalidArgument() {
  return ComError(kInvalidArgument, "无效的过程调用或参数");
}
inline ComError TypeMismatch() {
  return ComError(kTypeMismatch, "类型不匹配");
}
inline ComError ObjectNotSet() {
  return ComError(kObjectNotSet, "对象变量或 With 块变量未设置");
}
inline ComError ObjectRequired() {
  return ComError(kObjectRequired, "要求对象");
}
inline ComError CannotCreateObject() {
  return ComError(kCannotCreateObject, "ActiveX 部件不能创建对象");
}
inline ComError UnsupportedMember() {
  return ComError(kNotSupported, "对象不支持该属性或方法");
}
inline ComError OnlyOneDocument() {
  return ComError(kCommandFailed, "命令失败：此处只能编辑一个文档。");
}
inline ComError NoDocumentOpen() {
  return ComError(kNoDocumentOpen, "该命令无效，因为没有打开的文档。");
}
inline ComError CommandNotValid() {
  return ComError(kCommandNotValid, "此命令无效。");
}
inline ComError ObjectDeleted() {
  return ComError(kObjectDeleted, "对象已被删除。");
}
inline ComError WrapNotSettable() {
  return ComError(kWrapNotSettable, "无法为此形状设置环绕方式。");
}
inline ComError ObjectNotAvailable(const std::string& why = "请求的对象不可用。") {
  return ComError(kObjectNotAvailable, why);
}
inline ComError ItemNotFound() {
  return ComError(kItemNotFound, "集合中所需的成员不存在。");
}
inline ComError MacroNotFound() {
  return ComError(kMemberNotFound, "无法运行指定的宏。");
}
inline ComError FileNotFound() {
  return ComError(kFileNotFound, "找不到此文件。");
}
// Documents.Open of a file that is there but can't be read as a document.
inline ComError CannotOpenFile(const std::string& why) {
  return ComError(kCommandFailed, why);
}
inline ComError ShapeArgument(const std::string& why) {
  return ComError(kShapeArgument, why);
}

}  // namespace word
