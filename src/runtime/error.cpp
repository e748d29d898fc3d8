#include "runtime/error.h"

namespace lp {
namespace {

// The database numbers are those the data layer reports; -2147467259 is its
// "unspecified error", whose text the settings store words for each cause.
constexpr ErrorText kTexts[] = {
    {kInvalidProcedureCall, "无效的过程调用或参数"},
    {kOverflow, "溢出"},
    {kOutOfMemory, "内存溢出"},
    {kSubscriptOutOfRange, "下标越界"},
    {kDivisionByZero, "除数为零"},
    {kTypeMismatch, "类型不匹配"},
    {28, "堆栈空间溢出"},
    {kInternalError, "内部错误"},
    {kFileNotFound, "文件未找到"},
    {kPathFileAccessError, "路径/文件访问错误"},
    {kInvalidUseOfNull, "无效使用 Null"},
    {91, "对象变量或 With 块变量未设置"},
    {424, "要求对象"},
    {429, "ActiveX 部件不能创建对象"},
    {438, "对象不支持该属性或方法"},
    {450, "错误的参数个数或无效的属性赋值"},
    {1002, "语法错误"},
    {3021, "BOF 或 EOF 中有一个是“真”，或者当前记录已被删除，所需的操作要求一个当前的记录。"},
    {3251, "当前记录集不支持更新。这可能是提供程序的限制，也可能是选定锁定类型的限制。"},
    {3704, "对象关闭时，不允许操作。"},
    {3709, "连接无法用于执行此操作。在此上下文中它可能已被关闭或无效。"},
    {-2147467259, "未指定的错误"},
};

}  // namespace

std::span<const ErrorText> RuntimeErrorTexts() {
  return kTexts;
}

std::string ErrorDescription(int number) {
  for (const ErrorText& t : kTexts)
    if (t.number == number) return t.description;
  return "应用程序定义的错误或对象定义的错误";
}

void RaiseOverflow() {
  throw RuntimeError(kOverflow);
}
void RaiseTypeMismatch() {
  throw RuntimeError(kTypeMismatch);
}
void RaiseDivisionByZero() {
  throw RuntimeError(kDivisionByZero);
}
void RaiseInvalidProcedureCall() {
  throw RuntimeError(kInvalidProcedureCall);
}

}  // namespace lp
