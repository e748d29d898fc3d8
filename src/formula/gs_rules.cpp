#include "formula/gs_rules.h"

#include <array>

namespace lp {
namespace {

const std::array<GsRule, 8> kRules = {{
    {u"分式",
     {u"分式录入规则： ", u"标准形式：", u"(分子)/(分母)", u"简化形式：", u"分子/分母"},
     u"fs.png"},
    {u"根式",
     {u"根式录入规则： ", u"标准形式：", u"g(根指数,被开方数)", u"或 sqr(根指数,被开方数)",
      u"简化形式：", u"g被开方数或 sqr被开方数",
      u"注意：简化形式的被开方数仅允许一个字母或数字且为平方根"},
     u"gs.png"},
    {u"上标",
     {u"上标(乘方)录入规则： ", u"标准形式：底数^(指数)", u"简化形式：底数^指数",
      u"注意：简化形式的上标仅允许一个字母或数字"},
     u"cf.png"},
    {u"下标",
     {u"下标录入规则： ", u"标准形式：字母_(下标)", u"简化形式：字母_下标",
      u"注意：简化形式的下标仅允许一个字母或数字"},
     u"xb.png"},
    {u"向量和弧",
     {u"向量和弧录入规则： ", u"向量：xl(字母)", u"弧：hu(字母)",
      u"注意：公式编辑器中暂不支持向量的命令行代码"},
     u"xl.png"},
    {u"排列组合",
     {u"排列、组合录入规则： ", u"排列：A(n,m)  或 P(n,m)", u"组合：C(n,m)",
      u"注意：A,P,C均要用大写"},
     u"pl.png"},
    {u"方程组",
     {u"方程组录入规则： ", u"fcz(方程1,方程2,....)", u"注意：方程之间逗号隔开"},
     u"fcz.png"},
    {u"拔",
     {u"上划线录入规则： ", u"标准形式：", u"(字母)bar", u"简化形式：", u"字母bar",
      u"注意：简化形式仅允许一个字母或数字"},
     u"bar.png"},
}};

}  // namespace

const GsRule* GsRuleAt(int index) {
  return index >= 1 && index <= 8 ? &kRules[index - 1] : nullptr;
}

std::u16string GsRuleText(const GsRule& rule) {
  std::u16string text;
  for (size_t i = 0; i < rule.lines.size(); ++i) text += (i ? u"\r\n" : u"") + rule.lines[i];
  return text;
}

int GsRuleForKey(char16_t key) {
  switch (key) {
    case u'/':
      return 1;
    case u's':
    case u'g':
      return 2;
    case u'^':
      return 3;
    case u'_':
      return 4;
    case u'h':
    case u'x':
      return 5;
    case u'A':
    case u'P':
    case u'C':
      return 6;
    case u'f':
      return 7;
    case u'b':
      return 8;
    default:
      return 0;
  }
}

}  // namespace lp
