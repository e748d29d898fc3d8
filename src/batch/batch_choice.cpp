#include "batch/batch_choice.h"

#include "runtime/convert.h"

namespace lp::batch {

bool AnyDeleteChosen(const BatchChoice& c) {
  return c.blankLine || c.pageHeader || c.linkInShape || c.linkInText || c.fileName || c.fileInfo;
}

bool AnyDocumentWork(const BatchChoice& c) {
  if (c.tab == 0) return c.blankLine || c.pageHeader || c.linkInShape || c.linkInText || c.fileInfo;
  return !c.change[2].empty() || !c.change[4].empty() || c.align[0] || c.align[1] || c.scale[0] ||
         c.scale[1] || c.eqToOmml;
}

std::optional<std::u16string> RefusalOf(const BatchChoice& c) {
  if (c.tab == 1) {
    if (c.change[1].empty() && !c.align[0] && !c.scale[0] && !c.scale[1] && !c.eqToOmml)
      return u"您还没有指定需要修改的项目和内容。请检查！";
    if (!c.activeDocument && c.folder.empty()) return u"您还没有指定word文档所在的目录";
    return std::nullopt;
  }
  if (!c.activeDocument && c.folder.empty()) return u"您还没有指定word文档所在的目录";
  if (!AnyDeleteChosen(c)) return u"您还没有选择任何操作";
  if (!c.activeDocument && c.fileName && c.fileNameWords.empty())
    return u"请指定要从文件名中删除的关键字";
  if (c.fileInfo && c.fileInfoWords.empty()) return u"请指定要从文件信息中删除的关键字";
  return std::nullopt;
}

double ScaleFactor(const BatchChoice& c, int which) {
  return c.scale[which] ? Val(c.scaleText[which]) : 0;
}

}  // namespace lp::batch
