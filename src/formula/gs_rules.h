#pragma once
// The rules of the notation as the formula dialog shows them: eight links,
// each with its text and the picture of the construct as typed and as set.

#include <string>
#include <vector>

namespace lp {

struct GsRule {
  std::u16string link;                // the caption of lbhelp(index)
  std::vector<std::u16string> lines;  // the title line ends in a blank
  std::u16string picture;             // file name below the pictures folder
};

// Index 1 to 8; nothing for other indexes.
const GsRule* GsRuleAt(int index);
// The lines joined by carriage return and line feed.
std::u16string GsRuleText(const GsRule& rule);
// The rule a typed character brings up, 0 for none.
int GsRuleForKey(char16_t key);

constexpr char16_t kGsHelpStart[] = u"帮助，提示信息显示区";

}  // namespace lp
