#include "solvers/a_c.h"

#include "runtime/convert.h"
#include "runtime/text.h"
#include "toolkit/exact.h"

namespace lp {
namespace {

constexpr char16_t kRefused[] = u"数据输入有误，请检查！";
// 171! is past the double's range.
constexpr int16_t kLargestN = 170;

void Refuse(Prompt& prompt, const std::u16string& text) {
  prompt.MsgBox(text, vbCritical, u"数据错误");
}

}  // namespace

std::u16string ACLetter(bool combination) {
  return combination ? u"C" : u"A";
}

std::optional<double> CountOf(const ACControls& c, Prompt& prompt) {
  int16_t m = CInt(Val(c.txtM)), n = CInt(Val(c.txtN));
  if (n == 0 || m == 0 || m > n || m < 0) {
    Refuse(prompt, kRefused);
    return std::nullopt;
  }
  if (n > kLargestN) {
    Refuse(prompt, u"n 不能大于 170：更大的数的阶乘超出了计算范围，请检查！");
    return std::nullopt;
  }
  double count = Factorial(n, prompt) / Factorial(n - m, prompt);
  if (c.combination) count /= Factorial(m, prompt);
  return count;
}

std::u16string ACResultLabel(double count) {
  return u"运算结果：" + Str(count);
}

std::optional<double> InsertAC(Session& session, const ACControls& c) {
  if (Trim(c.txtM).empty() || Trim(c.txtN).empty() || Val(c.txtM) > Val(c.txtN)) {
    Refuse(session.prompt, kRefused);
    return std::nullopt;
  }
  std::optional<double> count;
  if (c.Check1 && !(count = CountOf(c, session.prompt))) return std::nullopt;
  word::Selection& selection = session.WordApp->Selection();
  selection.TypeText(ACLetter(c.combination));
  auto where = selection.Range();
  auto field = selection.Fields().Add(*where, word::wdFieldEmpty, u"", false);
  selection.TypeText(u"eq \\o(\\s\\up 5(" + Trim(c.txtM) + u"),\\s\\do 3(" + Trim(c.txtN) + u"))");
  field->Select();
  selection.Collapse(word::wdCollapseEnd);
  if (count) selection.TypeText(u"=" + Trim(Str(*count)));
  return count;
}

}  // namespace lp
