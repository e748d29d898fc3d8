#include "graph/frmGraph_tabs.h"

namespace lp::graph {
namespace {

using K = TabControl;

TabControl Text(const char16_t* name, const char16_t* caption, const char16_t* value = u"") {
  return {K::kText, name, caption, value, nullptr};
}
TabControl Check(const char16_t* name, const char16_t* caption, bool on = false) {
  return {K::kCheck, name, caption, on ? u"1" : u"0", nullptr};
}
TabControl Option(const char16_t* name, const char16_t* caption, const char16_t* group,
                  bool on = false) {
  return {K::kOption, name, caption, on ? u"1" : u"0", group};
}
TabControl Note(const char16_t* text) {
  return {K::kNote, u"", text, u"", nullptr};
}
TabControl Row() {
  return {K::kRow, u"", u"", u"", nullptr};
}

GraphTab Trig() {
  return {u"三角函数",
          {Option(u"optType_SJ_0", u"正弦函数", u"SJ", true),
           Option(u"optType_SJ_1", u"余弦函数", u"SJ"),
           Option(u"optType_SJ_2", u"正切函数", u"SJ"),
           Option(u"optType_SJ_3", u"余切函数", u"SJ"),
           Row(),
           Option(u"optType_SJ_4", u"反正弦函数", u"SJ"),
           Option(u"optType_SJ_5", u"反余弦函数", u"SJ"),
           Option(u"optType_SJ_6", u"反正切函数", u"SJ"),
           Option(u"optType_SJ_7", u"反余切函数", u"SJ"),
           Note(u"y = A·f(ωx + φ) + k"),
           Text(u"txtA_sin", u"A =", u"1"),
           Text(u"txtW_sin", u"ω =", u"1"),
           Row(),
           Text(u"txtF_sin", u"φ =", u"0"),
           Text(u"txtK_sin", u"k =", u"0"),
           Row(),
           Check(u"chkHD_SJ", u"所有角均按弧度制输入", true),
           Row(),
           Option(u"optFW_1", u"在给定范围内作图", u"FW", true),
           Option(u"optFW_0", u"按给定周期数作图", u"FW"),
           Row(),
           Option(u"optFS_2", u"五点法", u"FS", true),
           Option(u"optFS_1", u"指定起点", u"FS"),
           Option(u"optFS_0", u"左右对称", u"FS"),
           Row(),
           Text(u"txtXmin_SJ", u"x从", u"0"),
           Text(u"txtXmax_SJ", u"到", u"2*PI"),
           Note(u"按周期数作图时，前一框填周期数，后一框填起点。")},
          {{u"cmdOK_sin", u"确定", u"sj"}, {u"cmdCancel_sin", u"重置", u""}},
          {}};
}

GraphTab Lines() {
  return {u" 直线",
          {Option(u"optType_ZX_0", u"斜截式", u"ZX", true),
           Option(u"optType_ZX_1", u"点斜式", u"ZX"),
           Option(u"optType_ZX_2", u"两点式", u"ZX"),
           Option(u"optType_ZX_3", u"截距式", u"ZX"),
           Row(),
           Option(u"optType_ZX_4", u"点向式", u"ZX"),
           Option(u"optType_ZX_5", u"点法式", u"ZX"),
           Option(u"optType_ZX_6", u"一般式", u"ZX"),
           Row(),
           Text(u"txtZX_0", u"斜率k=", u"1"),
           Text(u"txtZX_1", u"截距b=", u"0"),
           Row(),
           Text(u"txtZX_2", u"C=", u""),
           Row(),
           Text(u"txtXmin_ZX", u"范围", u"-5"),
           Text(u"txtXmax_ZX", u"≤ x ≤", u"5"),
           Row(),
           Note(u"点"),
           Text(u"txtPoint", u"点P的坐标", u"(  ,  )"),
           Text(u"txtPointName", u"字母", u"P"),
           Row(),
           Check(u"chkPointTxt", u"标字母", true),
           Check(u"chkPointOnly", u"仅画点"),
           Check(u"chkXD", u"画经过两点的线段")},
          {{u"cmdOK_ZX_0", u"确定", u"zx"},
           {u"cmdOK_ZX_1", u"重置", u""},
           {u"cmdDrawPoint", u"画点", u"point"}},
          {{u"ZX",
            u"txtZX",
            {{u"斜率k=", u"截距b=", u""},
             {u"点P的坐标", u"斜率k=", u""},
             {u"点P1的坐标", u"点P2的坐标", u""},
             {u"横截距a=", u"纵截距b=", u""},
             {u"点P的坐标", u"方向向量", u""},
             {u"点P的坐标", u"法向量", u""},
             {u"A=", u"B=", u"C="}}}}};
}

GraphTab Reciprocal() {
  return {u"反比例函数",
          {Note(u"y = k / x"), Text(u"txtFBL_2", u"k =", u"1"), Row(),
           Text(u"txtFBL_0", u"x从", u"-5"), Text(u"txtFBL_1", u"到", u"5")},
          {{u"cmdOK_FBL", u"确定", u"fblhs"}},
          {}};
}

GraphTab Results() {
  return {u"作图结果",
          {Note(u"右侧列表中的对象按顺序绘制；单击“添加图像”切换为“修改图像”后，"
                u"选中列表中的对象即可修改。")},
          {},
          {}};
}

GraphTab Power() {
  return {u"幂函数",
          {Option(u"optXn_Power", u"y = x^n", u"Power", true),
           Option(u"optXmn_Power", u"y = x^(n/m)", u"Power"), Row(),
           Text(u"txtN_Power", u"n =", u"2"), Text(u"txtM_Power", u"m =", u"3"), Row(),
           Text(u"txtXmin_Power", u"x从", u"-3"), Text(u"txtXmax_Power", u"到", u"3")},
          {{u"cmdOK_Power", u"确定", u"mi"}, {u"cmdCancel_Power", u"重置", u""}},
          {}};
}

GraphTab Exponent() {
  return {u"指数函数",
          {Note(u"y = a^(x + h) + k"), Text(u"txtA_Exponent", u"a =", u"2"),
           Text(u"txtH_Exponent", u"h =", u"0"), Row(), Text(u"txtK_Exponent", u"k =", u"0"), Row(),
           Text(u"txtXmin_Exponent", u"x从", u"-3"), Text(u"txtXmax_Exponent", u"到", u"2")},
          {{u"cmdOK_Exponent", u"确定", u"ax"}, {u"cmdCancel_Exponent", u"重置", u""}},
          {}};
}

GraphTab Log() {
  return {
      u"对数函数",
      {Option(u"optLogX", u"y = log_a(x+h)+k", u"Log", true),
       Option(u"optLogAbsX", u"y = log_a|x+h|+k", u"Log"),
       Option(u"optAbsLogX", u"y = |log_a(x+h)|+k", u"Log"), Row(), Text(u"txtA_Log", u"a =", u"2"),
       Text(u"txtH_Log", u"h =", u"0"), Row(), Text(u"txtK_Log", u"k =", u"0"), Row(),
       Text(u"txtXmin_Log", u"x从", u"0"), Text(u"txtXmax_Log", u"到", u"5")},
      {{u"cmdOK_log", u"确定", u"logx"}, {u"cmdCancel_log", u"重置", u""}},
      {}};
}

GraphTab Any() {
  return {u"任意函数",
          {Option(u"optFX", u"y = f(x)", u"Any", true), Option(u"optFY", u"x = f(y)", u"Any"),
           Row(), Text(u"txtExp", u"表达式", u""), Row(), Text(u"txtXmin_Any", u"从", u"-5"),
           Text(u"txtXmax_Any", u"到", u"5"),
           Note(u"注意：本函数不作边界检查，请自行检查x或y的取值范围是否包含函数定义域之外的点。"
                u"(如果含有末定义的点,可能画出的图像有误)。另外，VB不支持负数的指数运算，"
                u"即使是负数开奇数次方也无法得到正确的结果。")},
          {{u"cmdOK_Any", u"确定", u"any"}, {u"cmdCancel_Any", u"重置", u""}},
          {}};
}

GraphTab Circle() {
  return {
      u"圆",
      {Option(u"optType_Y_0", u"x²+y²=r²", u"Y", true),
       Option(u"optType_Y_1", u"(x-a)²+(y-b)²=r²", u"Y"),
       Option(u"optType_Y_2", u"x²+y²+Dx+Ey+F=0", u"Y"), Row(), Text(u"txtY_0", u"r =", u"2"),
       Text(u"txtY_1", u"", u"0"), Row(), Text(u"txtY_2", u"", u"0"), Row(),
       Check(u"chkCentreOfCircle", u"画圆心")},
      {{u"cmdOK_Y", u"确定", u"yuan"}, {u"cmdCancel_Y", u"重置", u""}},
      {{u"Y", u"txtY", {{u"r =", u"", u""}, {u"a =", u"b =", u"r ="}, {u"D =", u"E =", u"F ="}}}}};
}

// The five forms of an ellipse or a hyperbola.
std::vector<TabControl> ConicControls(const char16_t* group, std::vector<const char16_t*> names,
                                      std::vector<const char16_t*> captions) {
  std::vector<TabControl> c;
  for (size_t i = 0; i < names.size(); ++i) {
    c.push_back(Option(names[i], captions[i], group, i == 0));
    if (i == 2) c.push_back(Row());
  }
  c.push_back(Row());
  return c;
}

// What the five coefficient boxes of an ellipse or a hyperbola are called
// in each of its five forms.
std::vector<std::vector<const char16_t*>> ConicBoxCaptions() {
  return {{u"a² =", u"b² =", u"", u"", u""},
          {u"a² =", u"b² =", u"", u"", u""},
          {u"h =", u"k =", u"a² =", u"b² =", u""},
          {u"h =", u"k =", u"a² =", u"b² =", u""},
          {u"A =", u"B =", u"C =", u"D =", u"E ="}};
}

GraphTab Ellipse() {
  std::vector<TabControl> c = ConicControls(
      u"TY", {u"optType_TY_0", u"optType_TY_1", u"optType_TY_2", u"optType_TY_3", u"optType_TY_4"},
      {u"x²/a²+y²/b²=1", u"y²/a²+x²/b²=1", u"(x-h)²/a²+(y-k)²/b²=1", u"(y-k)²/a²+(x-h)²/b²=1",
       u"Ax²+By²+Cx+Dy+E=0"});
  for (auto t : {Text(u"txtTY_0", u"a² =", u"9"), Text(u"txtTY_1", u"b² =", u"4"), Row(),
                 Text(u"txtTY_2", u"", u""), Text(u"txtTY_3", u"", u""), Row(),
                 Text(u"txtTY_4", u"", u""), Row(), Check(u"chkFocus_TY", u"焦点"),
                 Check(u"chkDirectrix_TY", u"准线"), Check(u"chkAxis_TY", u"对称轴")})
    c.push_back(t);
  return {u"椭圆",
          c,
          {{u"cmdOK_TY", u"确定", u"ty"}, {u"cmdCancel_TY", u"重置", u""}},
          {{u"TY", u"txtTY", ConicBoxCaptions()}}};
}

GraphTab Hyperbola() {
  std::vector<TabControl> c = ConicControls(
      u"SQX",
      {u"optType_SQX_0", u"optType_SQX_1", u"optType_SQX_2", u"optType_SQX_3", u"optType_SQX_4"},
      {u"x²/a²-y²/b²=1", u"y²/a²-x²/b²=1", u"(x-h)²/a²-(y-k)²/b²=1", u"(y-k)²/a²-(x-h)²/b²=1",
       u"Ax²+By²+Cx+Dy+E=0"});
  for (auto t : {Text(u"txtSQX_0", u"a² =", u"4"), Text(u"txtSQX_1", u"b² =", u"9"), Row(),
                 Text(u"txtSQX_2", u"", u""), Text(u"txtSQX_3", u"", u""), Row(),
                 Text(u"txtSQX_4", u"", u""), Row(), Text(u"txtXmin_SQX", u"沿支从", u"-4"),
                 Text(u"txtXmax_SQX", u"到", u"4"), Row(), Check(u"chkFocus_SQX", u"焦点"),
                 Check(u"chkDirectrix_SQX", u"准线"), Check(u"chkAxis_SQX", u"对称轴"),
                 Check(u"chkJJX_SQX", u"渐近线")})
    c.push_back(t);
  return {u"双曲线",
          c,
          {{u"cmdOK_SQX", u"确定", u"sqx"}, {u"cmdCancel_SQX", u"重置", u""}},
          {{u"SQX", u"txtSQX", ConicBoxCaptions()}}};
}

GraphTab Parabola() {
  return {u"抛物线",
          {Option(u"optType_PWX_0", u"y²=2px", u"PWX"),
           Option(u"optType_PWX_1", u"y²=-2px", u"PWX"),
           Option(u"optType_PWX_2", u"x²=2py", u"PWX", true),
           Option(u"optType_PWX_3", u"x²=-2py", u"PWX"),
           Row(),
           Option(u"optType_PWX_4", u"(y-k)²=2p(x-h)", u"PWX"),
           Option(u"optType_PWX_5", u"(y-k)²=-2p(x-h)", u"PWX"),
           Row(),
           Option(u"optType_PWX_6", u"(x-h)²=2p(y-k)", u"PWX"),
           Option(u"optType_PWX_7", u"(x-h)²=-2p(y-k)", u"PWX"),
           Row(),
           Option(u"optType_PWX_8", u"y=ax²+bx+c", u"PWX"),
           Row(),
           Text(u"txtPWX_0", u"p =", u"1"),
           Text(u"txtPWX_1", u"", u""),
           Row(),
           Text(u"txtPWX_2", u"", u""),
           Row(),
           Text(u"txtXmin_PWX", u"从", u"-3"),
           Text(u"txtXmax_PWX", u"到", u"3"),
           Row(),
           Check(u"chkFocus_PWX", u"焦点"),
           Check(u"chkDirectrix_PWX", u"准线"),
           Check(u"chkAxis_PWX", u"对称轴")},
          {{u"cmdOK_PWX", u"确定", u"pwx"}, {u"cmdCancel_PWX", u"重置", u""}},
          {{u"PWX",
            u"txtPWX",
            {{u"p =", u"", u""},
             {u"p =", u"", u""},
             {u"p =", u"", u""},
             {u"p =", u"", u""},
             {u"p =", u"h =", u"k ="},
             {u"p =", u"h =", u"k ="},
             {u"p =", u"h =", u"k ="},
             {u"p =", u"h =", u"k ="},
             {u"a =", u"b =", u"c ="}}}}};
}

}  // namespace

const std::vector<GraphTab>& GraphTabs() {
  static const std::vector<GraphTab> tabs = {Trig(),   Lines(),    Reciprocal(), Results(),
                                             Power(),  Exponent(), Log(),        Any(),
                                             Circle(), Ellipse(),  Hyperbola(),  Parabola()};
  return tabs;
}

int TabOfTag(const std::u16string& tag) {
  const std::vector<GraphTab>& tabs = GraphTabs();
  for (size_t i = 0; i < tabs.size(); ++i)
    for (const TabButton& b : tabs[i].buttons)
      if (tag == b.tag) return static_cast<int>(i);
  return -1;
}

}  // namespace lp::graph
